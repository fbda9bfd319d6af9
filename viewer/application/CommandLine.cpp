// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "application/CommandLine.h"

#include <QCommandLineParser>
#include <QFile>

namespace Application {

namespace {

const char helpText[] =
    "Usage: nerix-viewer [OPTION...]\n"
    "Configures industrial cameras and grabs images from them.\n"
    "\n"
    "  --plugin-path DIR   load the plug-ins in DIR instead of those installed with the viewer;\n"
    "                      may be given more than once\n"
    "  --settings-dir DIR  keep the settings in DIR instead of the user's configuration folder\n"
    "  --script FILE.js    run a script, then quit: status 0, or 1 if the script failed\n"
    "  --show-windows      show the windows while the script runs; else it runs without\n"
    "  --help              print this text\n"
    "  --version           print the version\n"
    "\n"
    "Plug-ins are looked for in lib/nerix/plugins beside the folder of the program. Without a\n"
    "display the viewer runs all the same; QT_LOGGING_RULES=\"nerix.*=true\" shows what it does.\n";

const QCommandLineOption pluginPath(QStringLiteral("plugin-path"), {}, QStringLiteral("DIR"));
const QCommandLineOption settingsDir(QStringLiteral("settings-dir"), {}, QStringLiteral("DIR"));
const QCommandLineOption script(QStringLiteral("script"), {}, QStringLiteral("FILE.js"));
const QCommandLineOption showWindows(QStringLiteral("show-windows"));
const QCommandLineOption help(QStringLiteral("help"));
const QCommandLineOption version(QStringLiteral("version"));

CommandLine withError(const QString &error)
{
    CommandLine commandLine;
    commandLine.error = QStringLiteral("nerix-viewer: %1").arg(error);
    return commandLine;
}

CommandLine withOutput(const QString &output)
{
    CommandLine commandLine;
    commandLine.output = output;
    return commandLine;
}

QString parsingError(const QCommandLineParser &parser)
{
    const QString hint = QStringLiteral(" (nerix-viewer --help lists the options)");
    if (!parser.errorText().isEmpty()) {
        return parser.errorText() + hint;
    }
    if (!parser.positionalArguments().isEmpty()) {
        return QStringLiteral("Unexpected argument '%1'.").arg(parser.positionalArguments().at(0))
               + hint;
    }
    return {};
}

QString emptyValueError(const QCommandLineParser &parser)
{
    for (const QCommandLineOption *option : {&pluginPath, &settingsDir, &script}) {
        if (parser.values(*option).contains(QString())) {
            return QStringLiteral("The value of '--%1' is empty: name a %2.")
                .arg(option->names().at(0), option->valueName());
        }
    }
    return {};
}

QString scriptError(const QString &fileName)
{
    QFile file(fileName);
    if (fileName.isEmpty() || file.open(QIODevice::ReadOnly)) {
        return {};
    }
    return QStringLiteral("Script %1 cannot be read (%2): name a file that can.")
        .arg(fileName, file.errorString());
}

CommandLine optionsOf(const QCommandLineParser &parser)
{
    CommandLine commandLine;
    commandLine.pluginFolders = parser.values(pluginPath);
    commandLine.settingsFolder = parser.value(settingsDir);
    commandLine.scriptFile = parser.value(script);
    commandLine.showsWindows = commandLine.scriptFile.isEmpty() || parser.isSet(showWindows);
    return commandLine;
}

} // namespace

CommandLine parseCommandLine(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.addOptions({pluginPath, settingsDir, script, showWindows, help, version});
    parser.parse(arguments);
    const QString error = parsingError(parser);
    if (!error.isEmpty()) {
        return withError(error);
    }
    if (parser.isSet(help)) {
        return withOutput(QString::fromUtf8(helpText));
    }
    if (parser.isSet(version)) {
        return withOutput(QStringLiteral("nerix-viewer " NERIX_VERSION "\n"));
    }
    const QString emptyValue = emptyValueError(parser);
    if (!emptyValue.isEmpty()) {
        return withError(emptyValue);
    }
    const QString unreadable = scriptError(parser.value(script));
    return unreadable.isEmpty() ? optionsOf(parser) : withError(unreadable);
}

} // namespace Application
