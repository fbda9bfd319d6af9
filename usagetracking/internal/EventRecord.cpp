// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "EventRecord.h"

#include <QJsonDocument>

namespace Plugin {
namespace UsageTracking {
namespace Internal {

QString toRecordText(const QJsonObject &record)
{
    return QString::fromUtf8(QJsonDocument(record).toJson(QJsonDocument::Compact));
}

void trackText(ruiInstance instance, const QString &category, const QString &name,
               const QString &text)
{
    ruiTrackEventText(instance, category.toUtf8().constData(), name.toUtf8().constData(),
                      text.toUtf8().constData(), "");
}

void trackRecord(ruiInstance instance, const QJsonObject &record)
{
    trackText(instance, record.value(QLatin1String("EventCategory")).toString(),
              record.value(QLatin1String("EventName")).toString(), toRecordText(record));
}

} // namespace Internal
} // namespace UsageTracking
} // namespace Plugin
