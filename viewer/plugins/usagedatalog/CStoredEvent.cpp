// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/usagedatalog/CStoredEvent.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace Plugin {
namespace UsageDataLog {

CStoredEvent CStoredEvent::fromJson(const QByteArray &line)
{
    const QJsonObject json = QJsonDocument::fromJson(line).object();
    CStoredEvent event;
    event.number = qint64(json.value(QLatin1String("seq")).toDouble());
    event.time =
        QDateTime::fromString(json.value(QLatin1String("time")).toString(), Qt::ISODateWithMs);
    event.category = json.value(QLatin1String("category")).toString();
    event.name = json.value(QLatin1String("name")).toString();
    event.text = json.value(QLatin1String("text")).toString().toUtf8();
    event.isDelivered = json.value(QLatin1String("state")).toString() == QLatin1String("delivered");
    event.isHandedOver = json.value(QLatin1String("state")).toString() == QLatin1String("exported");
    return event;
}

} // namespace UsageDataLog
} // namespace Plugin
