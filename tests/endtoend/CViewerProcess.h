// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include <QObject>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

// The viewer as the program that users run, with a script, and with settings and data of its own
// that disappear with this object. It may run several times, one after the other, on the same data.
//
// Every wait runs the event loop and ends when the program does what it waits for or ends itself; a
// limit of 120 s keeps a broken viewer from hanging the test.
class CViewerProcess : public QObject
{
    Q_OBJECT

public:
    CViewerProcess();
    ~CViewerProcess() override;

    QString path(const QString &name) const;

    // As an earlier run would have left them in the settings.
    void storeConsent(bool selected, bool enabled);

    void setEnvironment(const QString &name, const QString &value);

    // Instead of the folders of this object and of the plug-ins that were built.
    void setOptions(const QStringList &options);

    void setProgram(const QString &program);

    // Runs \a script to its end. @return the exit status; -1 if the program crashed.
    int run(const QString &script);

    void start(const QString &script);

    // Whether the script printed \a line since `start`.
    bool waitForLine(const QString &line);

    // Waits for the end. @return as `run`.
    int finish();

    // SIGTERM.
    void terminate();

    // Sends the signal \a number.
    void send(int number);

    // Nobody reads any more what the script prints.
    void closeOutput();

    // Whether the program ends within \a milliseconds.
    bool endsWithin(int milliseconds);

    // Whether a line that contains \a text is in the log before \a milliseconds have passed.
    bool waitForLog(const QString &text, int milliseconds);

    // Of the program that runs; 0 if none does.
    qint64 processId() const;

    // What the script printed, and what the viewer logged, in the last run.
    QStringList printed() const;
    QStringList logged() const;

    QByteArray settings() const;

    // The events that are stored, as `rui-events --raw` prints them; none without a database.
    QStringList storedEvents() const;
    QStringList storedEvents(const QString &category) const;

    // Where the analytics library keeps its files, and their names.
    QString libraryFolder() const;
    QStringList libraryFiles() const;

    // Whether the events become such that \a condition holds.
    bool waitForEvents(const std::function<bool(const QStringList &)> &condition) const;

Q_SIGNALS:
    void lineWasPrinted(const QString &line);

private:
    void onOutput();

    QTemporaryDir m_folder;
    QProcessEnvironment m_environment;
    QString m_program;
    QStringList m_options;
    QProcess *m_process;
    QStringList m_printed;
};
