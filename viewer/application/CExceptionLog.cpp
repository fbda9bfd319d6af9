// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "application/CExceptionLog.h"

#include <QLoggingCategory>
#include <QMutexLocker>

namespace Application {

namespace {

Q_LOGGING_CATEGORY(log, "nerix.application", QtInfoMsg)

// Texts that hold a changing number must not fill the memory.
constexpr int reportedLimit = 1000;

} // namespace

bool CExceptionLog::report(const char *className, const char *what)
{
    const auto kind = qMakePair(QString::fromLatin1(className), QString::fromUtf8(what));
    {
        const QMutexLocker lock(&m_mutex);
        if (m_reported.contains(kind) || m_reported.size() >= reportedLimit) {
            return false;
        }
        m_reported.insert(kind);
    }
    qCWarning(log).noquote().nospace()
        << "an exception left a slot of " << kind.first << " (" << kind.second
        << "); the viewer goes on, further ones like it are not told";
    return true;
}

} // namespace Application
