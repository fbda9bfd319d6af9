// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "Outline.h"

#include <QRegularExpression>

namespace {

QRegularExpression expression(const char *pattern)
{
    return QRegularExpression(QString::fromLatin1(pattern));
}

QStringList matchesOf(const char *pattern, const QString &text, int group = 1)
{
    QStringList found;
    auto matches = expression(pattern).globalMatch(text);
    while (matches.hasNext()) {
        found.append(matches.next().captured(group));
    }
    return found;
}

QStringList cellsOf(const QString &row)
{
    QStringList cells = row.split(QLatin1Char('|')).mid(1);
    cells.removeLast();
    for (QString &cell : cells) {
        cell = cell.trimmed();
    }
    return cells;
}

Block blockOf(const QString &line)
{
    static const QRegularExpression heading = expression("^(#+) (.+)$");
    static const QRegularExpression step = expression("^\\d+\\. (.+)$");
    if (const auto match = heading.match(line); match.hasMatch()) {
        return {QStringLiteral("heading %1").arg(match.capturedLength(1)), match.captured(2)};
    }
    if (const auto match = step.match(line); match.hasMatch()) {
        return {QStringLiteral("step"), match.captured(1)};
    }
    if (line.startsWith(QLatin1String("    "))) {
        return {QStringLiteral("code"), line.trimmed()};
    }
    if (line.startsWith(QLatin1String("- "))) {
        return {QStringLiteral("bullet"), line.mid(2)};
    }
    if (line.startsWith(QLatin1Char('|'))) {
        return {QStringLiteral("row %1").arg(cellsOf(line).size()), line};
    }
    return {QStringLiteral("paragraph"), line};
}

bool goesOn(const Block &block)
{
    return block.kind == QLatin1String("paragraph") || block.kind == QLatin1String("bullet")
           || block.kind == QLatin1String("step");
}

QString withoutCode(const Block &block)
{
    return block.kind == QLatin1String("code") ? QString()
                                               : QString(block.text).remove(expression("`[^`]+`"));
}

} // namespace

QList<Block> blocksOf(const QByteArray &document)
{
    QList<Block> blocks;
    bool isNew = true;
    const QStringList lines = QString::fromUtf8(document).split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        if (line.startsWith(QLatin1String("<!--")) || line.startsWith(QLatin1String("|---"))) {
            continue;
        }
        if (line.isEmpty()) {
            isNew = true;
            continue;
        }
        const Block block = blockOf(line);
        const bool begins = block.kind != QLatin1String("paragraph")
                            && !(block.kind == QLatin1String("code") && !isNew);
        if (!isNew && !begins && goesOn(blocks.last())) {
            blocks.last().text += QLatin1Char(' ') + line.trimmed();
            ++blocks.last().lines;
        } else {
            blocks.append(block);
        }
        isNew = false;
    }
    return blocks;
}

QStringList codeSpansOf(const Block &block)
{
    return block.kind == QLatin1String("code") ? QStringList(block.text)
                                               : matchesOf("`([^`]+)`", block.text);
}

QStringList linkTargetsOf(const Block &block)
{
    return matchesOf("\\]\\(([^)]+)\\)", withoutCode(block));
}

QStringList emphasesOf(const Block &block)
{
    return matchesOf("(\\*{1,2})([^*]+)\\1", withoutCode(block), 2);
}

QStringList labelsOf(const Block &block)
{
    QStringList labels = emphasesOf(block) + matchesOf("\\[([^\\]]+)\\]\\(", withoutCode(block));
    if (block.kind.startsWith(QLatin1String("row"))) {
        labels.append(cellsOf(block.text).at(0));
    } else if (block.kind.startsWith(QLatin1String("heading"))) {
        labels.append(block.text);
    }
    return labels;
}

QStringList quotesOf(const Block &block)
{
    return matchesOf("\"([^\"]+)\"", withoutCode(block));
}

QStringList numbersOf(const Block &block)
{
    return matchesOf("(\\d+(?:[.,]\\d+)*)", withoutCode(block));
}
