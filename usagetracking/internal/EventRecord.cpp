// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "EventRecord.h"

#include <QJsonDocument>

namespace Plugin {
namespace UsageTracking {
namespace Internal {

namespace {

QByteArray serialised(const QJsonObject &record)
{
    return QJsonDocument(record).toJson(QJsonDocument::Compact);
}

void trackBytes(ruiInstance instance, const QString &category, const QString &name,
                const QByteArray &text)
{
    ruiTrackEventText(instance, category.toUtf8().constData(), name.toUtf8().constData(),
                      text.constData(), "");
}

} // namespace

QString toRecordText(const QJsonObject &record)
{
    return QString::fromUtf8(serialised(record));
}

void trackText(ruiInstance instance, const QString &category, const QString &name,
               const QString &text)
{
    trackBytes(instance, category, name, text.toUtf8());
}

void trackRecord(ruiInstance instance, const QJsonObject &record)
{
    // What is serialised is UTF-8 already, so a feature stream is not converted there and back.
    trackBytes(instance, record.value(QLatin1String("EventCategory")).toString(),
               record.value(QLatin1String("EventName")).toString(), serialised(record));
}

} // namespace Internal
} // namespace UsageTracking
} // namespace Plugin
