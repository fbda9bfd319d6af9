// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include <QElapsedTimer>
#include <QObject>
#include <QString>

namespace Scripting {

class CScriptWait;

/// What the script's prelude builds its global functions on. GUI thread.
class CScriptHost : public QObject
{
    Q_OBJECT

public:
    using Printer = std::function<void(const QString &line)>;

    /// \a wait must outlive the object.
    CScriptHost(CScriptWait &wait, Printer printer, QObject *parent);

    Q_INVOKABLE void printLine(const QString &line);

    Q_INVOKABLE void sleep(int milliseconds);

    /// Since the script began; never goes back.
    Q_INVOKABLE double milliseconds() const;

    Q_INVOKABLE void quit();

    /// Called behind the last line of the script.
    Q_INVOKABLE void endReached();

Q_SIGNALS:
    void quitRequested();
    void lastLineReached();

private:
    CScriptWait &m_wait;
    Printer m_printer;
    QElapsedTimer m_elapsed;
};

} // namespace Scripting
