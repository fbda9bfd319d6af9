// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// Cameras that come and go, the numbers by which events name them, and what the user selects.

#include "CUsageTrackingProvider.h"
#include "EventRecord.h"
#include "ModelLabel.h"

namespace Plugin::UsageTracking::Internal {

int CUsageTrackingProvider::cameraNumber(const ICameraInfo &camera) const
{
    return m_cameraIdentities.indexOf(camera.identity());
}

void CUsageTrackingProvider::rememberIdentity(const QString &identity)
{
    if (!m_cameraIdentities.contains(identity)) {
        m_cameraIdentities.append(identity);
    }
}

void CUsageTrackingProvider::sendCameraRecord(const QString &name, const CameraInfoPtr &camera,
                                              const QString &model)
{
    trackEvent(
        m_sdkInstance, QStringLiteral("Camera"), name,
        {{QStringLiteral("CameraNr"), cameraNumber(*camera)}, {QStringLiteral("Model"), model}});
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
    const QString model = modelLabel(camera);
    // Observed and formatted, but on purpose not sent: no such event leaves the plug-in.
    toRecordText(eventRecord(QStringLiteral("DeviceChosen"), model,
                             {{QStringLiteral("CameraNr"), cameraNumber(*camera)}}));
}

void CUsageTrackingProvider::onParameterSelectionChanged(
    QSharedPointer<ParameterCollection::IParameter> ptrParameter)
{
    if (ptrParameter) {
        trackEvent(m_sdkInstance, QStringLiteral("FeatureChosen"), ptrParameter->name());
    }
}

} // namespace Plugin::UsageTracking::Internal
