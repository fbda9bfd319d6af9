// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "Documents.h"

#include <QFile>

namespace {

struct Block
{
    QString language;
    QStringList lines;
};

QList<Block> blocksOf(const QString &document)
{
    QList<Block> blocks;
    bool isInside = false;
    const QStringList lines = document.split('\n');
    for (const QString &line : lines) {
        if (line.startsWith("```")) {
            isInside = !isInside;
            if (isInside) {
                blocks.append({line.mid(3), {}});
            }
        } else if (isInside) {
            blocks.last().lines.append(line);
        }
    }
    return blocks;
}

QString textOf(const Block &block)
{
    return block.lines.isEmpty() ? QString() : block.lines.join('\n') + '\n';
}

void addLine(QList<ConsoleExample> &examples, const QString &line)
{
    if (line.startsWith("$ ")) {
        examples.append({line.mid(2), QString()});
    } else if (line.startsWith("> ")) {
        examples.last().command += '\n' + line.mid(2);
    } else {
        examples.last().output += line + '\n';
    }
}

} // namespace

QString readDocument(const QString &path)
{
    QFile file(NERIX_SOURCE_DIR "/" + path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QList<ConsoleExample> consoleExamples(const QString &document)
{
    QList<ConsoleExample> examples;
    const QList<Block> blocks = blocksOf(document);
    for (const Block &block : blocks) {
        if (block.language == "console") {
            for (const QString &line : block.lines) {
                addLine(examples, line);
            }
        }
    }
    return examples;
}

QList<ScriptExample> scriptExamples(const QString &document)
{
    QList<ScriptExample> examples;
    const QList<Block> blocks = blocksOf(document);
    for (int index = 0; index + 1 < blocks.size(); ++index) {
        if (blocks.at(index).language == "js") {
            examples.append({textOf(blocks.at(index)), textOf(blocks.at(index + 1))});
        }
    }
    return examples;
}

QStringList codeBlocks(const QString &document, const QString &language)
{
    QStringList contents;
    const QList<Block> blocks = blocksOf(document);
    for (const Block &block : blocks) {
        if (block.language == language) {
            contents.append(textOf(block));
        }
    }
    return contents;
}
