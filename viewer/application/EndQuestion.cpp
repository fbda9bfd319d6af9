// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "application/EndQuestion.h"

#include "windows/MessageBox.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <vector>

#include <QApplication>
#include <QIcon>
#include <QList>
#include <QPushButton>
#include <QSocketNotifier>

extern char **environ;

namespace Application {

const char *const endQuestionOption = "--ask-to-end";

namespace {

constexpr int endIsWanted = 10;

QString text(const char *source)
{
    return QCoreApplication::translate("Application::EndQuestion", source);
}

// @return the exit status; -1 if there is none. Standard input of the program is a pipe that ends
// with this process.
int run(const QStringList &arguments)
{
    int pipeEnds[2];
    if (pipe2(pipeEnds, O_CLOEXEC) != 0) {
        return -1;
    }
    QList<QByteArray> texts;
    std::vector<char *> argv;
    for (const QString &argument : arguments) {
        texts.append(argument.toUtf8());
        argv.push_back(texts.last().data());
    }
    argv.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, pipeEnds[0], STDIN_FILENO);
    pid_t child = -1;
    const int failure =
        posix_spawn(&child, "/proc/self/exe", &actions, nullptr, argv.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    ::close(pipeEnds[0]);
    int status = -1;
    while (failure == 0 && waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    ::close(pipeEnds[1]);
    return failure == 0 && WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

} // namespace

QStringList endQuestion(const QString &stuck, const QString &unsaved)
{
    const QString isStuck =
        text(QT_TRANSLATE_NOOP("Application::EndQuestion",
                               "The viewer is being closed, but this does not come to an end: %1. "
                               "You can wait for it, or end the viewer without it."))
            .arg(stuck);
    const QString isSaved =
        unsaved.isEmpty()
            ? text(QT_TRANSLATE_NOOP("Application::EndQuestion", "Everything else is saved."))
            : text(QT_TRANSLATE_NOOP("Application::EndQuestion",
                                     "What these plug-ins keep at the end is not saved yet: %1."))
                  .arg(unsaved);
    return {text(QT_TRANSLATE_NOOP("Application::EndQuestion", "Nerix Viewer")),
            isStuck + QStringLiteral("\n\n") + isSaved,
            text(QT_TRANSLATE_NOOP("Application::EndQuestion", "&Wait")),
            text(QT_TRANSLATE_NOOP("Application::EndQuestion", "&End Now"))};
}

bool isEndWanted(const QStringList &question)
{
    return run(QStringList{QStringLiteral("nerix-viewer"), QLatin1String(endQuestionOption)}
               + question)
           == endIsWanted;
}

int showEndQuestion(int &argc, char **argv, const QStringList &question)
{
    QApplication application(argc, argv);
    QGuiApplication::setWindowIcon(QIcon(QStringLiteral(":/nerixviewer/icon.svg")));
    QMessageBox *box = Windows::newMessageBox(QMessageBox::Warning, question.value(0),
                                              question.value(1), QMessageBox::NoButton, nullptr);
    box->setDefaultButton(box->addButton(question.value(2), QMessageBox::RejectRole));
    const QAbstractButton *end = box->addButton(question.value(3), QMessageBox::DestructiveRole);
    QObject::connect(box, &QMessageBox::buttonClicked, &application, [end](const auto *clicked) {
        QCoreApplication::exit(clicked == end ? endIsWanted : 0);
    });
    QObject::connect(box, &QDialog::finished, &application, &QCoreApplication::quit,
                     Qt::QueuedConnection);
    const QSocketNotifier viewerEnds(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&viewerEnds, &QSocketNotifier::activated, &application,
                     &QCoreApplication::quit);
    box->open();
    return QApplication::exec();
}

} // namespace Application
