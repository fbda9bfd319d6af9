// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QMutex>
#include <QPair>
#include <QSet>
#include <QString>

namespace Application {

/// Tells of exceptions that nobody caught, each kind once: a slot that throws may be called a
/// thousand times a second. Callable in any thread.
class CExceptionLog
{
public:
    CExceptionLog() = default;

    Q_DISABLE_COPY_MOVE(CExceptionLog)

    /// Logs that an exception with the text \a what left a \a className, unless that was logged
    /// before.
    /// @return whether it was logged.
    bool report(const char *className, const char *what);

private:
    QMutex m_mutex;
    QSet<QPair<QString, QString>> m_reported;
};

} // namespace Application
