// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "FeatureStream.h"

#include <ParameterCollection/CParameterException.h>

#include <QRegularExpression>
#include <QStringList>

namespace ParameterCollectionPool {
namespace FeatureStream {
namespace {

using namespace ParameterCollection;

QString escaped(QString value)
{
    value.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
    value.replace(QLatin1Char('\t'), QLatin1String("\\t"));
    value.replace(QLatin1Char('\n'), QLatin1String("\\n"));
    value.replace(QLatin1Char('\r'), QLatin1String("\\r"));
    return value;
}

// The letter after a backslash, as the character that it stands for; null for any other letter.
QChar meant(QChar letter)
{
    switch (letter.unicode()) {
    case u'\\':
        return letter;
    case u't':
        return QLatin1Char('\t');
    case u'n':
        return QLatin1Char('\n');
    case u'r':
        return QLatin1Char('\r');
    default:
        return {};
    }
}

[[noreturn]] void throwDamaged(int lineNumber)
{
    throw CParameterException(
        QStringLiteral("line %1 of the feature stream is damaged: it must be a name, a tab and a "
                       "value; save the features again")
            .arg(lineNumber));
}

QString unescaped(const QString &text, int lineNumber)
{
    QString value;
    for (int i = 0; i < text.size(); ++i) {
        if (text.at(i) != QLatin1Char('\\')) {
            value.append(text.at(i));
            continue;
        }
        const QChar character = ++i < text.size() ? meant(text.at(i)) : QChar();
        if (character.isNull()) {
            throwDamaged(lineNumber);
        }
        value.append(character);
    }
    return value;
}

// The number of lines that the first line promises.
int promised(const QString &firstLine)
{
    static const QRegularExpression form(QStringLiteral(
        "^# nerix feature stream 1: ([0-9]{1,9}) features, [0-9]{1,9} not readable$"));
    const QRegularExpressionMatch match = form.match(firstLine);
    if (!match.hasMatch()) {
        throw CParameterException(
            QStringLiteral("this is no feature stream of version 1: its first line must begin with "
                           "\"# nerix feature stream 1:\""));
    }
    return match.captured(1).toInt();
}

Line parseLine(const QString &text, int lineNumber)
{
    const int tab = text.indexOf(QLatin1Char('\t'));
    if (tab < 1) {
        throwDamaged(lineNumber);
    }
    return {unescaped(text.left(tab), lineNumber), unescaped(text.mid(tab + 1), lineNumber)};
}

} // namespace

QString format(const QVector<Line> &lines, int notReadable)
{
    QString stream = QStringLiteral("# nerix feature stream 1: %1 features, %2 not readable\n")
                         .arg(lines.size())
                         .arg(notReadable);
    for (const Line &line : lines) {
        stream +=
            escaped(line.first) + QLatin1Char('\t') + escaped(line.second) + QLatin1Char('\n');
    }
    return stream;
}

QVector<Line> parse(const QString &stream)
{
    QStringList texts = stream.split(QLatin1Char('\n'));
    const int count = promised(texts.takeFirst());
    if (texts.size() != count + 1 || !texts.last().isEmpty()) {
        throw CParameterException(
            QStringLiteral("the feature stream is not whole: its first line promises %1 features; "
                           "save the features again")
                .arg(count));
    }
    QVector<Line> lines;
    for (int i = 0; i < count; ++i) {
        lines.append(parseLine(texts.at(i), i + 2));
    }
    return lines;
}

} // namespace FeatureStream
} // namespace ParameterCollectionPool
