// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "scripting/CameraDescription.h"

#include <QJSValue>
#include <QRegularExpression>
#include <QStringList>

namespace Scripting {

namespace {

QString stateName(CameraPool::ICameraControlService::CameraState state)
{
    using CameraPool::ICameraControlService;
    switch (state) {
    case ICameraControlService::Gone:
        return QStringLiteral("gone");
    case ICameraControlService::Free:
        return QStringLiteral("free");
    case ICameraControlService::InUseElsewhere:
        return QStringLiteral("in use elsewhere");
    case ICameraControlService::Open:
        return QStringLiteral("open");
    case ICameraControlService::Grabbing:
        return QStringLiteral("grabbing");
    }
    return {};
}

QRegularExpression expressionFor(const QString &pattern)
{
    QString expression = QRegularExpression::escape(pattern);
    expression.replace(QLatin1String("\\*"), QLatin1String(".*"));
    expression.replace(QLatin1String("\\?"), QLatin1String("."));
    return QRegularExpression(QRegularExpression::anchoredPattern(expression));
}

} // namespace

QVariantMap describeCamera(const CameraInfoPtr &camera)
{
    return {{QStringLiteral("identity"), camera->identity()},
            {QStringLiteral("displayName"), camera->displayName()},
            {QStringLiteral("model"), camera->modelName()},
            {QStringLiteral("vendor"), camera->vendorName()}};
}

QVariantMap describeCamera(const CameraInfoPtr &camera,
                           const CameraPool::ICameraControlService &control)
{
    QVariantMap description = describeCamera(camera);
    description.insert(QStringLiteral("state"), stateName(control.state(camera)));
    return description;
}

QString namesOf(const QList<CameraInfoPtr> &cameras)
{
    if (cameras.isEmpty()) {
        return QStringLiteral("no camera is connected: plug one in, and check its power and that "
                              "its address is in a network of this computer");
    }
    QStringList names;
    for (const CameraInfoPtr &camera : cameras) {
        names.append(camera->identity());
    }
    return QStringLiteral("connected: %1").arg(names.join(QLatin1String(", ")));
}

bool matches(const CameraInfoPtr &camera, const QString &pattern)
{
    const QRegularExpression expression = expressionFor(pattern);
    return expression.match(camera->identity()).hasMatch()
           || expression.match(camera->displayName()).hasMatch()
           || expression.match(camera->modelName()).hasMatch();
}

QString cameraName(const QJSValue &value)
{
    return value.isObject() ? value.property(QStringLiteral("identity")).toString()
                            : value.toString();
}

} // namespace Scripting
