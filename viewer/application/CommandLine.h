// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace Application {

/// What the user asked for on the command line.
struct CommandLine
{
    QStringList pluginFolders; ///< empty: the folder that belongs to the viewer
    QString settingsFolder;    ///< empty: the user's configuration folder
    QString scriptFile;        ///< empty: no script
    bool showsWindows = true;  ///< a script runs without windows unless it wants them
    QString output;            ///< text for the user, who wants the viewer not to start
    QString error;             ///< one line that names what is wrong with the command line
};

/// Reads \a arguments, the first of which is the program's name. Needs no application object.
CommandLine parseCommandLine(const QStringList &arguments);

} // namespace Application
