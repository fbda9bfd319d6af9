// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include <QByteArray>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>

class QProcess;

namespace Plugin {
namespace UsageDataLog {

/// Runs the program `rui-events` on one configuration directory. GUI thread, which never waits.
///
/// Why a program and not a library: how events are kept is the analytics library's own affair, and
/// this program is what it offers to everybody who wants to read them. What the window shows is
/// then the same that a user or an auditor sees on the command line, and a reader in another
/// process can neither hold up nor break the recording.
class CEventsTool : public QObject
{
    Q_OBJECT

public:
    struct Result
    {
        bool succeeded = false;
        QByteArray output;
        QString error; ///< the last line of what the program complained about
    };
    using Answer = std::function<void(const Result &)>;
    using LinesListener = std::function<void(const QByteArray &lines)>;

    CEventsTool(QString program, QString directory, QObject *parent = nullptr);

    /// Ends the programs that still run. Their answers do not come any more.
    ~CEventsTool() override;

    /// Runs `rui-events OPTIONS DIRECTORY`.
    void run(const QStringList &options, Answer answer);

    /// The same with its output in \a file, which is replaced only if all went well.
    void runInto(const QString &file, const QStringList &options, Answer answer);

    /// Runs `rui-events OPTIONS DIRECTORY` for as long as this object lives or until \a owner goes,
    /// whatever comes first; the output goes to \a listener, one or more whole lines at a time.
    void listen(const QStringList &options, QObject *owner, LinesListener listener);

private:
    QProcess *make(const QStringList &options);
    void start(QProcess *process, Answer answer);

    QString m_program;
    QString m_directory;
};

} // namespace UsageDataLog
} // namespace Plugin
