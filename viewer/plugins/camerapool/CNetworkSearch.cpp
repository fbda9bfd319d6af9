// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CNetworkSearch.h"

#include "AskCameras.h"

#include <arv.h>

#include <QSet>

namespace CameraPool {
namespace {

// Trimmed as in the camera's own answer, so that both make the same identity.
QString text(const char *value)
{
    return QString::fromUtf8(value).trimmed();
}

// Aravis gives the MAC address, with colons, for a serial number that is missing.
void describeGigE(unsigned int index, CFoundCamera *camera)
{
    const QString physicalId = text(arv_get_device_physical_id(index));
    if (camera->serial == physicalId) {
        camera->serial.clear();
    }
    camera->mac = QString(physicalId).remove(u':').toLower();
}

CFoundCamera describe(unsigned int index)
{
    CFoundCamera camera;
    camera.vendor = text(arv_get_device_vendor(index));
    camera.model = text(arv_get_device_model(index));
    camera.serial = text(arv_get_device_serial_nbr(index));
    camera.isGigE = qstrcmp(arv_get_device_protocol(index), "GigEVision") == 0;
    if (camera.isGigE) {
        describeGigE(index, &camera);
    } else {
        // There is nobody to ask who could tell more.
        camera.isNameKnown = true;
        camera.isControlKnown = true;
    }
    // The address, because the same id may be known at two interfaces, one of which is gone.
    camera.openId =
        QString::fromUtf8(camera.isGigE ? arv_get_device_address(index) : arv_get_device_id(index));
    return camera;
}

QVector<CFoundCamera> camerasThatAnswerTheBroadcast()
{
    arv_update_device_list();
    QVector<CFoundCamera> cameras;
    for (unsigned int i = 0; i < arv_get_n_devices(); ++i) {
        cameras.append(describe(i));
    }
    return cameras;
}

} // namespace

QVector<CFoundCamera> CNetworkSearch::search()
{
    QVector<CFoundCamera> cameras = camerasThatAnswerTheBroadcast();
    askCameras(&cameras);
    QVector<CFoundCamera> found;
    QSet<QString> identities;
    for (const CFoundCamera &camera : qAsConst(cameras)) {
        // A camera that is reached through two interfaces is still one camera.
        if (!identities.contains(camera.identity())) {
            identities.insert(camera.identity());
            found.append(camera);
        }
    }
    return found;
}

} // namespace CameraPool
