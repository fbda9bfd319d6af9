// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QProcess>
#include <QStringList>

// The simulated camera, run as the program that users run.
//
// Every wait runs the event loop, so what else lives in the thread goes on, and ends on a signal
// of the process; a limit of 30 s keeps a broken camera from hanging the test. The program ends
// with this object, and with the test should that be killed. Used from one thread, which must
// live as long as the camera shall run.
//
//     CSimulatorProcess camera({QStringLiteral("--features"), QStringLiteral("840")});
//     QVERIFY2(camera.start(), qPrintable(camera.errorText()));
//     QCOMPARE(camera.command(QStringLiteral("vanish")), QStringLiteral("vanished"));
class CSimulatorProcess : public QObject
{
    Q_OBJECT

public:
    // Options as on the command line; see nerix-camera-simulator --help.
    explicit CSimulatorProcess(QStringList options = {}, QObject *parent = nullptr);
    ~CSimulatorProcess() override;

    // Starts the program and waits until the camera can be opened. False when it ended instead;
    // errorText() then has its reason. May be called again after stop() or kill().
    bool start();

    bool isRunning() const;
    qint64 processId() const;
    // The line that the camera said when it was ready; null before.
    QString readyLine() const;
    // Address and serial number out of that line; null before.
    QString address() const;
    QString serial() const;
    // What it wrote to standard error since start().
    QString errorText() const;
    // Exit status of the last run; -1 while it runs and when a signal ended it.
    int exitStatus() const;

    // Sends a line and waits for the answer. Null when the camera ended instead.
    QString command(const QString &line);
    // Sends quit and waits for the end. True when the status was 0.
    bool stop();
    // Closes its standard input; it goes on running.
    void closeInput();
    // SIGTERM and SIGKILL, and waits for the end.
    void terminate();
    void kill();

Q_SIGNALS:
    void ready();
    // Each line but the one that says that the camera is ready.
    void answered(const QString &line);
    void ended();

private:
    void onOutput();
    void onLine(const QString &line);

    QStringList m_options;
    QProcess *m_process;
    QString m_readyLine;
    QString m_errorText;
};
