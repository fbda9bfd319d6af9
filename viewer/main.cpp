// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "application/CGuardedApplication.h"
#include "application/CommandLine.h"
#include "application/CQuitSignals.h"
#include "application/CViewer.h"
#include "application/EndQuestion.h"
#include "application/LogOutput.h"
#include "application/ProcessExit.h"
#include "plugins/camerapool/LeftBehind.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <QSessionManager>
#include <QTextCodec>

namespace {

constexpr int badCommandLine = 2;

// In the "C" locale Qt would lose every character outside ASCII, also in the names of files.
void readTextAsUtf8()
{
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
}

QStringList argumentsOf(int argc, char **argv)
{
    QStringList arguments;
    for (int index = 0; index < argc; ++index) {
        arguments.append(QString::fromLocal8Bit(argv[index]));
    }
    return arguments;
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

// Qt would close all windows to see whether they agree, and end the viewer in the middle of it.
void followSession(Application::CGuardedApplication &application, Application::CViewer &viewer)
{
    QGuiApplication::setFallbackSessionManagementEnabled(false);
    QObject::connect(
        &application, &QGuiApplication::commitDataRequest, &viewer,
        [&viewer](QSessionManager &manager) {
            if (!viewer.agreesToEndOfSession() && manager.allowsInteraction()) {
                manager.release();
                manager.cancel();
            }
        },
        Qt::DirectConnection);
    application.setQuitHandler([&viewer] { viewer.quitBySession(); });
}

int runViewer(int &argc, char **argv, const Application::CommandLine &commandLine)
{
    Application::CGuardedApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    Application::CViewer viewer(commandLine);
    const Application::CQuitSignals quitSignals([&viewer] { viewer.quitBySignal(); });
    const Application::CProcessExit processExit([&viewer] { viewer.shutDownWithoutDisplay(); });
    followSession(application, viewer);
    viewer.start();
    const int status = QApplication::exec();
    viewer.shutDown();
    return status;
}

// A process of its own of the viewer, when that hangs.
int askToEnd(int argc, char **argv)
{
    scaleForFineScreens();
    const QStringList question = argumentsOf(argc, argv).mid(2);
    argc = 1;
    return Application::showEndQuestion(argc, argv, question);
}

} // namespace

int main(int argc, char **argv)
{
    readTextAsUtf8();
    if (argc > 1 && std::strcmp(argv[1], Application::endQuestionOption) == 0) {
        return askToEnd(argc, argv);
    }
    const Application::CommandLine commandLine =
        Application::parseCommandLine(argumentsOf(argc, argv));
    if (!commandLine.error.isEmpty()) {
        std::fprintf(stderr, "%s\n", qPrintable(commandLine.error));
        return badCommandLine;
    }
    if (!commandLine.output.isEmpty()) {
        std::fputs(qPrintable(commandLine.output), stdout);
        return 0;
    }
    Application::installLogOutput();
    // Who reads the output may stop to do so: that is no reason to end without saving.
    std::signal(SIGPIPE, SIG_IGN);
    chooseDisplay();
    scaleForFineScreens();
    const int status = runViewer(argc, argv, commandLine);
    if (CameraPool::isAnythingLeftBehind()) {
        std::fflush(nullptr);
        std::_Exit(status);
    }
    return status;
}
