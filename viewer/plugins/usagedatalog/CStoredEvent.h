// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QMetaType>
#include <QString>
#include <QVector>

namespace Plugin {
namespace UsageDataLog {

/// One usage event as the analytics library keeps it.
struct CStoredEvent
{
    /// From a line of `rui-events --json`. A line that is none gives an event with the number 0.
    static CStoredEvent fromJson(const QByteArray &line);

    qint64 number = 0; ///< grows with each event
    QDateTime time;    ///< UTC, to the millisecond
    QString category;
    QString name;
    QByteArray text; ///< the very bytes that were tracked; empty for an event without a record
    bool isDelivered = false;
    bool isHandedOver = false; ///< in a file; with neither it waits
};

using CStoredEvents = QVector<CStoredEvent>;

} // namespace UsageDataLog
} // namespace Plugin

Q_DECLARE_METATYPE(Plugin::UsageDataLog::CStoredEvents)
