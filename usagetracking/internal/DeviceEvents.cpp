// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// Devices that are opened and closed, with the camera's whole configuration at that moment.

#include "CUsageTrackingProvider.h"
#include "EventRecord.h"
#include "ModelLabel.h"

namespace Plugin::UsageTracking::Internal {

using ParameterCollection::IParameterCollection;

namespace {

const QString cameraTree = QStringLiteral("@CameraDevice");
const QString sequencerMode = QStringLiteral("@CameraDevice/SequencerConfigurationMode");
const QString sequencerEnable = QStringLiteral("@CameraDevice/SequenceEnable");

/// Longest feature stream in a record, in UTF-16 units, and what stands for the rest.
constexpr int longestFeatureStream = 100000;
const QString cutMarker = QStringLiteral("[...cut]");

QString cut(const QString &featureStream)
{
    return featureStream.size() > longestFeatureStream
               ? featureStream.left(longestFeatureStream) + cutMarker
               : featureStream;
}

bool isSequencerConfigured(const IParameterCollection &parameters)
{
    try {
        const auto mode = parameters.enumerationParameter(sequencerMode);
        return !mode->isNull() && !mode->isUnavailable() && mode->intValue() != 0;
    } catch (...) {
        return false;
    }
}

bool isSequencerRunning(const IParameterCollection &parameters)
{
    try {
        const auto enable = parameters.booleanParameter(sequencerEnable);
        return !enable->isNull() && !enable->isUnavailable() && enable->value();
    } catch (...) {
        return false;
    }
}

} // namespace

void CUsageTrackingProvider::sendConfigurationRecord(const QString &name, int number,
                                                     const QString &model,
                                                     const QString &featureStream)
{
    trackEvent(m_sdkInstance, QStringLiteral("Camera"), name,
               {{QStringLiteral("CameraNr"), number},
                {QStringLiteral("Model"), model},
                {QStringLiteral("FeatureStreamStats"), cut(featureStream)}});
}

void CUsageTrackingProvider::onDeviceOpened(DeviceBaseInfoPtr ptrDeviceInfo)
{
    const auto camera = ptrDeviceInfo.dynamicCast<ICameraInfo>();
    if (!camera) {
        return;
    }
    // A camera that was never reported as connected gets its number here.
    rememberIdentity(camera->identity());
    const QString model = modelLabel(camera);
    const ParameterCollectionPtr parameters = parametersOf(ptrDeviceInfo);
    if (!parameters) {
        return;
    }
    attachParameterHandlers(*parameters, *camera);
    // Reading the whole tree would disturb a sequencer that is being configured or is running.
    const bool configured = isSequencerConfigured(*parameters);
    const bool running = isSequencerRunning(*parameters);
    const QString featureStream =
        configured || running ? cutMarker : parameters->featureStream(cameraTree);
    sendConfigurationRecord(QStringLiteral("Opened"), cameraNumber(*camera), model, featureStream);
}

void CUsageTrackingProvider::onDeviceClosing(DeviceBaseInfoPtr ptrDeviceInfo)
{
    const auto camera = ptrDeviceInfo.dynamicCast<ICameraInfo>();
    if (!camera) {
        return;
    }
    const QString model = modelLabel(camera);
    const ParameterCollectionPtr parameters = parametersOf(ptrDeviceInfo);
    if (!parameters) {
        return;
    }
    const QString featureStream = parameters->featureStream(cameraTree);
    sendConfigurationRecord(QStringLiteral("Closed"), cameraNumber(*camera), model, featureStream);
}

} // namespace Plugin::UsageTracking::Internal
