// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

/// A heading, a paragraph, an item of a list, a row of a table or a line of code.
struct Block
{
    QString kind; ///< "heading 2", "paragraph", "bullet", "step", "row 3" (cells), "code"
    QString text; ///< without the mark of its kind, its lines joined by spaces
    int lines = 1;
};

/// The blocks of a Markdown document in their order, without its comments and the rules of its
/// tables. Knows what the documents of the help use, not the whole of Markdown.
QList<Block> blocksOf(const QByteArray &document);

/// A line of code is one span.
QStringList codeSpansOf(const Block &block);

QStringList linkTargetsOf(const Block &block);

/// What is set in *emphasis* or **strongly**.
QStringList emphasesOf(const Block &block);

/// What can be the name of something by itself: the whole of a heading, the first cell of a row,
/// emphases and the texts of links.
QStringList labelsOf(const Block &block);

/// What stands between "straight quotes".
QStringList quotesOf(const Block &block);

/// "100,000" and "3956", without what is in code.
QStringList numbersOf(const Block &block);
