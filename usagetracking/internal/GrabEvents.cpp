// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// Grabs that start and stop, with the figures that the viewer shows in its status bar.

#include "CUsageTrackingProvider.h"
#include "EventRecord.h"
#include "ModelLabel.h"

#include <ParameterCollection/IParameterCollection.h>

namespace Plugin::UsageTracking::Internal {

namespace {

const QString grab = QStringLiteral("Grab");
const QString acquisitionMode = QStringLiteral("@CameraDevice/AcquisitionMode");

/// \a value without its fraction. What no integer can hold counts as nothing.
qint64 truncated(double value)
{
    constexpr double beyondInteger = 9223372036854775808.0; // 2^63
    return value >= -beyondInteger && value < beyondInteger ? static_cast<qint64>(value) : 0;
}

QString modeOrUndefined(const ParameterCollection::IParameterCollection &parameters)
{
    try {
        const auto mode = parameters.parameter(acquisitionMode);
        if (!mode->isNull()) {
            return mode->valueText();
        }
    } catch (...) {
        // An unreadable mode is an undefined one.
    }
    return QStringLiteral("undefined");
}

} // namespace

QJsonObject CUsageTrackingProvider::grabValues(const QString &grabType,
                                               const CameraInfoPtr &camera) const
{
    const QString model = modelLabel(camera);
    return {
        {QStringLiteral("GrabType"), grabType},
        {QStringLiteral("CameraNr"), cameraNumber(*camera)},
        {QStringLiteral("Model"), model},
    };
}

void CUsageTrackingProvider::onCameraGrabStarted(
    Core::CameraPoolComponents::DeviceBaseInfoPtr ptrDeviceInfo)
{
    const auto camera = ptrDeviceInfo.dynamicCast<ICameraInfo>();
    if (!camera) {
        return;
    }
    try {
        if (const ParameterCollectionPtr parameters = parametersOf(camera)) {
            // A missing mode throws here and so drops the event.
            const QString mode = parameters->parameter(acquisitionMode)->valueText();
            trackEvent(m_sdkInstance, grab, QStringLiteral("Started"), grabValues(mode, camera));
        }
    } catch (...) {
        // The event is dropped.
    }
}

void CUsageTrackingProvider::onCameraStatisticUpdated(CameraInfoPtr cameraInfo,
                                                      int imagesGrabbedCount, int imagesFailedCount,
                                                      double fps, uint64_t bps)
{
    if (cameraInfo) {
        m_grabStatistics.insert(cameraInfo->identity(),
                                {imagesGrabbedCount, imagesFailedCount, fps, bps});
    }
}

QString CUsageTrackingProvider::statusBarStatistics(const ICameraInfo &camera) const
{
    // Filed under the identity but looked up under the display name, on purpose: a camera to which
    // its user gave a name reports zeros.
    const GrabStatistics statistics = m_grabStatistics.value(camera.displayName());
    return toRecordText({
        {QStringLiteral("ImagesGrabbedCount"), statistics.imagesGrabbedCount},
        {QStringLiteral("ImagesFailedCount"), statistics.imagesFailedCount},
        {QStringLiteral("FPS"), truncated(statistics.fps)},
        {QStringLiteral("BPS"), static_cast<qint64>(statistics.bps)},
    });
}

void CUsageTrackingProvider::onCameraGrabStopped(DeviceBaseInfoPtr ptrDeviceInfo)
{
    const auto camera = ptrDeviceInfo.dynamicCast<ICameraInfo>();
    if (!camera) {
        return;
    }
    const ParameterCollectionPtr parameters = parametersOf(camera);
    if (!parameters) {
        return;
    }
    const QString mode = modeOrUndefined(*parameters);
    const QString streamStats = streamStatistics(camera);
    const QString statusBarStats = statusBarStatistics(*camera);

    const QString stopped = QStringLiteral("Stopped");
    QJsonObject values = grabValues(mode, camera);
    values.insert(QStringLiteral("StatusBarStats"), statusBarStats);
    values.insert(QStringLiteral("StreamStats"), streamStats);
    // The two inner records lose the backslashes that escape their quotes, on purpose: the
    // analytics side reads them as bare objects inside quotes.
    QString text = toRecordText(eventRecord(grab, stopped, values));
    text.remove(QLatin1Char('\\'));
    trackText(m_sdkInstance, grab, stopped, text);

    reportFailures(*camera, camera->identity());
}

} // namespace Plugin::UsageTracking::Internal
