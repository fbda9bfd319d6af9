// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <ruiSDK.h>

#include <QJsonObject>
#include <QString>

namespace Plugin::UsageTracking::Internal {

/// The record of an event: \a values, with \a category and \a name under "EventCategory" and
/// "EventName".
QJsonObject eventRecord(const QString &category, const QString &name,
                        const QJsonObject &values = {});

/// \a record as text: compact JSON, keys in ascending order.
QString toRecordText(const QJsonObject &record);

/// Hands \a text to the analytics library under \a category and \a name. \a instance may be null:
/// the library answers that with a code, which is ignored as every other one.
void trackText(ruiInstance instance, const QString &category, const QString &name,
               const QString &text);

/// Hands the record of \a category, \a name and \a values over under that category and name.
void trackEvent(ruiInstance instance, const QString &category, const QString &name,
                const QJsonObject &values = {});

} // namespace Plugin::UsageTracking::Internal
