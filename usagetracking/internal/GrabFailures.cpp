// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// What went wrong in a grab: the counters of the stream, and the failed images by error code.

#include "CUsageTrackingProvider.h"
#include "EventRecord.h"
#include "PathFilter.h"

#include <ParameterCollection/IParameterCollection.h>

namespace Plugin::UsageTracking::Internal {

namespace {

constexpr qint64 unreadable = -1;

QString counterName(const char *counter)
{
    return QStringLiteral("@StreamGrabber0/Statistic_") + QLatin1String(counter);
}

QString hexadecimal(std::uint32_t code)
{
    return QStringLiteral("0x%1").arg(code, 8, 16, QLatin1Char('0'));
}

QString maskedDescription(const Nerix::CGrabResultData &result)
{
    // fromUtf8 takes a null pointer for an empty text.
    return maskPaths(QString::fromUtf8(result.GetErrorDescription().c_str()));
}

} // namespace

qint64 CUsageTrackingProvider::readInteger(const CameraInfoPtr &camera,
                                           const QString &fullName) const
{
    const ParameterCollectionPtr parameters = parametersOf(camera);
    if (!parameters) {
        return unreadable;
    }
    const auto parameter = parameters->integerParameter(fullName);
    return parameter->isNull() || !parameter->isReadable() ? unreadable : parameter->value();
}

QString CUsageTrackingProvider::streamStatistics(const CameraInfoPtr &camera) const
{
    const auto read = [&](const char *counter) {
        return readInteger(camera, counterName(counter));
    };
    return toRecordText({
        {QStringLiteral("TotalBufferCount"), read("Total_Buffer_Count")},
        {QStringLiteral("FailedBufferCount"), read("Failed_Buffer_Count")},
        {QStringLiteral("TotalPacketCount"), read("Total_Packet_Count")},
        {QStringLiteral("ResendRequestCount"), read("Resend_Request_Count")},
        {QStringLiteral("ResendPacketCount"), read("Resend_Packet_Count")},
        {QStringLiteral("FailedPacketCount"), read("Failed_Packet_Count")},
        {QStringLiteral("MissedFrameCount"), read("Missed_Frame_Count")},
        {QStringLiteral("ResynchronizationCount"), read("Resynchronization_Count")},
    });
}

void CUsageTrackingProvider::onCameraImageGrabFailed(
    Core::CameraPoolComponents::CameraInfoPtr ptrCameraInfo,
    const Nerix::CGrabResultPtr &grabResult)
{
    if (!ptrCameraInfo || !grabResult || grabResult->GrabSucceeded()) {
        return;
    }
    GrabFailures &failures = m_grabFailures[ptrCameraInfo->identity()];
    const auto known = failures.find(grabResult->GetErrorCode());
    // The text of the first failure stays, so that a burst costs a look-up each and no masking.
    if (known != failures.end()) {
        ++known->second.count;
        return;
    }
    failures.insert({grabResult->GetErrorCode(), {1, maskedDescription(*grabResult)}});
}

void CUsageTrackingProvider::reportFailures(const ICameraInfo &camera, const QString &identity)
{
    const GrabFailures failures = m_grabFailures.value(identity);
    for (const auto &[code, failure] : failures) {
        trackEvent(m_sdkInstance, QStringLiteral("Grab"), QStringLiteral("Failed"),
                   {{QStringLiteral("CameraNr"), cameraNumber(camera)},
                    {QStringLiteral("ExceptionCode"), hexadecimal(code)},
                    {QStringLiteral("ExceptionCount"), failure.count},
                    {QStringLiteral("ExceptionText"), failure.text}});
    }
    m_grabFailures.remove(identity); // kept for a later stop if the report breaks off
}

} // namespace Plugin::UsageTracking::Internal
