// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

// A command that a document shows behind "$ ", with the lines that it prints. Lines that begin with
// "> " go on with the command.
struct ConsoleExample
{
    QString command;
    QString output;
};

// A script that a document shows in a block "js", with what it prints, the block "text" under it.
struct ScriptExample
{
    QString script;
    QString output;
};

// The document at \a path, which is relative to the root of the source.
QString readDocument(const QString &path);

QList<ConsoleExample> consoleExamples(const QString &document);
QList<ScriptExample> scriptExamples(const QString &document);

// The contents of the blocks of \a language.
QStringList codeBlocks(const QString &document, const QString &language);
