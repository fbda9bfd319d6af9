// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "CParameterChangedHandler.h"

#include "EventRecord.h"

#include <utility>

namespace {

/// Longest value in a record, in UTF-16 units. Longer ones are cut without a mark.
constexpr int longestValue = 128;

} // namespace

CParameterChangedHandler::CParameterChangedHandler(
    QSharedPointer<ParameterCollection::IParameter> parameter, QString name,
    ruiInstance sdkInstance, int cameraNumber)
    : m_name(std::move(name))
    , m_lastValue(QLatin1String(""))
    , m_parameter(std::move(parameter))
    , m_sdkInstance(sdkInstance)
    , m_cameraNumber(cameraNumber)
{}

CParameterChangedHandler::~CParameterChangedHandler() = default;

void CParameterChangedHandler::onParameterValueAboutToBeSet(const QString &newValue)
{
    const QJsonObject values{
        {QStringLiteral("CameraNr"), m_cameraNumber},
        {QStringLiteral("ParameterName"), m_name},
        {QStringLiteral("InitialValue"), m_lastValue.left(longestValue)},
        {QStringLiteral("ParameterValue"), newValue.left(longestValue)},
    };
    m_lastValue = newValue;
    Plugin::UsageTracking::Internal::trackEvent(
        m_sdkInstance, QStringLiteral("ParameterValueChanged"), m_name, values);
}
