// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// Cameras that come and go, the numbers by which events name them, and what the user selects.

#include "CUsageTrackingProvider.h"
#include "EventRecord.h"
#include "ModelLabel.h"

namespace Plugin {
namespace UsageTracking {
namespace Internal {

namespace {

constexpr int unknownCamera = -1;

} // namespace

int CUsageTrackingProvider::cameraNumber(const ICameraInfo &camera) const
{
    return m_cameraNumbers.value(camera.identity(), unknownCamera);
}

void CUsageTrackingProvider::rememberIdentity(const QString &identity)
{
    if (!m_cameraNumbers.contains(identity)) {
        m_cameraNumbers.insert(identity, m_cameraIdentities.size());
        m_cameraIdentities.append(identity);
    }
}

void CUsageTrackingProvider::sendCameraRecord(const QString &name, const CameraInfoPtr &camera,
                                              const QString &model)
{
    trackRecord(m_sdkInstance, {
                                   {QStringLiteral("EventCategory"), QStringLiteral("Camera")},
                                   {QStringLiteral("EventName"), name},
                                   {QStringLiteral("CameraNr"), cameraNumber(*camera)},
                                   {QStringLiteral("Model"), model},
                               });
}

void CUsageTrackingProvider::onCameraConnected(DeviceBaseInfoPtr ptrDeviceInfo)
{
    ++m_cameraCount;
    const auto camera = ptrDeviceInfo.dynamicCast<ICameraInfo>();
    if (!camera) {
        return;
    }
    const QString model = modelLabel(camera);
    rememberIdentity(camera->identity());
    // A plain event besides the record, so that cameras can be counted by model without parsing.
    ruiTrackEvent(m_sdkInstance, "Model", model.toUtf8().constData(), "");
    sendCameraRecord(QStringLiteral("Connected"), camera, model);
}

void CUsageTrackingProvider::onCameraDisconnected(DeviceBaseInfoPtr ptrDeviceInfo)
{
    --m_cameraCount;
    if (const auto camera = ptrDeviceInfo.dynamicCast<ICameraInfo>()) {
        sendCameraRecord(QStringLiteral("Removed"), camera, modelLabel(camera));
    }
}

void CUsageTrackingProvider::onDeviceSelectionChanged(
    Core::CameraPoolComponents::DeviceBaseInfoPtr ptrDeviceInfo)
{
    const auto camera = ptrDeviceInfo.dynamicCast<ICameraInfo>();
    if (!camera) {
        return;
    }
    // Observed and formatted, but on purpose not sent: no such event leaves the plug-in.
    toRecordText({
        {QStringLiteral("EventCategory"), QStringLiteral("DeviceChosen")},
        {QStringLiteral("EventName"), modelLabel(camera)},
        {QStringLiteral("CameraNr"), cameraNumber(*camera)},
    });
}

void CUsageTrackingProvider::onParameterSelectionChanged(
    QSharedPointer<ParameterCollection::IParameter> ptrParameter)
{
    trackRecord(m_sdkInstance,
                {
                    {QStringLiteral("EventCategory"), QStringLiteral("FeatureChosen")},
                    {QStringLiteral("EventName"), ptrParameter->name()},
                });
}

} // namespace Internal
} // namespace UsageTracking
} // namespace Plugin
