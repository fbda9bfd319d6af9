// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "internal/ModelLabel.h"

#include <QRegExp>

namespace Plugin::UsageTracking::Internal {

namespace {

QString maskedModelName(const QString &modelName)
{
    const QRegExp capitals(QStringLiteral("[A-Z]{3}"), Qt::CaseSensitive, QRegExp::RegExp);
    const QRegExp series(QStringLiteral("KUV|TOG|ZAW|YEL"), Qt::CaseSensitive, QRegExp::RegExp);
    if (!modelName.contains(capitals) || modelName.contains(series)) {
        return modelName;
    }
    return QString(modelName).replace(capitals, QStringLiteral("***"));
}

} // namespace

QString modelLabel(const Core::CameraPoolComponents::CameraInfoPtr &ptrCameraInfo)
{
    Q_ASSERT(ptrCameraInfo);
    // One fill of both places: a "%1" inside a maker's or model name stays as it is.
    return QStringLiteral("%1 %2").arg(ptrCameraInfo->vendorName(),
                                       maskedModelName(ptrCameraInfo->modelName()));
}

} // namespace Plugin::UsageTracking::Internal
