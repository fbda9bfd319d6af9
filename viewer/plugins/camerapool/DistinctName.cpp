// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "DistinctName.h"

#include <algorithm>

#include <QHash>
#include <QSet>

namespace CameraPool {

using Core::CameraPoolComponents::CameraInfoPtr;
using Core::CameraPoolComponents::ICameraInfo;

namespace {

// The identity is the maker, the model and the serial number.
QString serialNumberOf(const ICameraInfo &camera)
{
    const QString before = QStringLiteral("%1-%2-").arg(camera.vendorName(), camera.modelName());
    const QString identity = camera.identity();
    return identity.startsWith(before) ? identity.mid(before.size()) : identity;
}

QString nameOf(const ICameraInfo &camera, bool isShared)
{
    const QString name = camera.displayName();
    return isShared ? QStringLiteral("%1 (%2)").arg(name, serialNumberOf(camera)) : name;
}

} // namespace

QString distinctName(const CameraInfoPtr &camera, const QList<CameraInfoPtr> &all)
{
    const QString name = camera->displayName();
    const bool isShared = std::any_of(all.begin(), all.end(), [&](const CameraInfoPtr &other) {
        return other->displayName() == name && other->identity() != camera->identity();
    });
    return nameOf(*camera, isShared);
}

QStringList distinctNames(const QList<CameraInfoPtr> &all)
{
    QHash<QString, QSet<QString>> identities; // by name
    for (const CameraInfoPtr &camera : all) {
        identities[camera->displayName()].insert(camera->identity());
    }
    QStringList names;
    for (const CameraInfoPtr &camera : all) {
        names.append(nameOf(*camera, identities.value(camera->displayName()).size() > 1));
    }
    return names;
}

} // namespace CameraPool
