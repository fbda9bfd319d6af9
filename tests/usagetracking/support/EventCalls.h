// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

/// How the recording analytics library writes down an event with a record. \a session is the
/// number of the instance.
inline QString eventCall(const char *category, const QString &name, const QString &record,
                         int session = 1)
{
    return QStringLiteral("ruiTrackEventText(#%1 | ").arg(session) + QLatin1String(category)
           + QStringLiteral(" | ") + name + QStringLiteral(" | ") + record + QStringLiteral(" | )");
}

/// The same for a list of just that call.
inline QStringList oneEvent(const char *category, const QString &name, const QString &record,
                            int session = 1)
{
    return {eventCall(category, name, record, session)};
}

/// And for the plain event that a connected camera gives.
inline QString modelCall(const QString &label, int session = 1)
{
    return QStringLiteral("ruiTrackEvent(#%1 | Model | ").arg(session) + label
           + QStringLiteral(" | )");
}
