// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <ruiSDK.h>

#include <QJsonObject>
#include <QString>

namespace Plugin {
namespace UsageTracking {
namespace Internal {

/// The record as text: compact JSON, keys in ascending order.
QString toRecordText(const QJsonObject &record);

/// Hands \a text to the analytics library under \a category and \a name. \a instance may be null:
/// the library answers that with a code, which is ignored as every other one.
void trackText(ruiInstance instance, const QString &category, const QString &name,
               const QString &text);

/// Serialises \a record and hands it over under its own "EventCategory" and "EventName".
void trackRecord(ruiInstance instance, const QJsonObject &record);

} // namespace Internal
} // namespace UsageTracking
} // namespace Plugin
