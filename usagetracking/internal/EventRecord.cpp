// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "EventRecord.h"

#include <QJsonDocument>

namespace Plugin::UsageTracking::Internal {

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

QJsonObject eventRecord(const QString &category, const QString &name, const QJsonObject &values)
{
    QJsonObject record = values;
    record.insert(QStringLiteral("EventCategory"), category);
    record.insert(QStringLiteral("EventName"), name);
    return record;
}

QString toRecordText(const QJsonObject &record)
{
    return QString::fromUtf8(serialised(record));
}

void trackText(ruiInstance instance, const QString &category, const QString &name,
               const QString &text)
{
    trackBytes(instance, category, name, text.toUtf8());
}

void trackEvent(ruiInstance instance, const QString &category, const QString &name,
                const QJsonObject &values)
{
    // What is serialised is UTF-8 already, so a feature stream is not converted there and back.
    trackBytes(instance, category, name, serialised(eventRecord(category, name, values)));
}

} // namespace Plugin::UsageTracking::Internal
