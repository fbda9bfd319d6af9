// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "application/CGuardedApplication.h"
#include "application/CommandLine.h"
#include "application/CQuitSignals.h"
#include "application/CViewer.h"
#include "application/LogOutput.h"

#include <cstdio>

#include <QTextCodec>

namespace {

constexpr int badCommandLine = 2;

// In the "C" locale Qt would lose every character outside ASCII, also in the names of files.
void readTextAsUtf8()
{
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
}

Application::CommandLine commandLineOf(int argc, char **argv)
{
    QStringList arguments;
    for (int index = 0; index < argc; ++index) {
        arguments.append(QString::fromLocal8Bit(argv[index]));
    }
    return Application::parseCommandLine(arguments);
}

// Without a display Qt would end the program.
void chooseDisplay()
{
    const bool hasDisplay =
        !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
    if (!hasDisplay && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
}

// Pages, icons and images are laid out in pixels of a usual screen; on a fine one each of them is
// several. Before the application object.
void scaleForFineScreens()
{
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
}

int runViewer(int &argc, char **argv, const Application::CommandLine &commandLine)
{
    Application::CGuardedApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    Application::CViewer viewer(commandLine);
    const Application::CQuitSignals quitSignals([&viewer] { viewer.quitBySignal(); });
    viewer.start();
    const int status = QApplication::exec();
    viewer.shutDown();
    return status;
}

} // namespace

int main(int argc, char **argv)
{
    readTextAsUtf8();
    const Application::CommandLine commandLine = commandLineOf(argc, argv);
    if (!commandLine.error.isEmpty()) {
        std::fprintf(stderr, "%s\n", qPrintable(commandLine.error));
        return badCommandLine;
    }
    if (!commandLine.output.isEmpty()) {
        std::fputs(qPrintable(commandLine.output), stdout);
        return 0;
    }
    Application::installLogOutput();
    chooseDisplay();
    scaleForFineScreens();
    return runViewer(argc, argv, commandLine);
}
