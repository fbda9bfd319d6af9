// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// The observers of the parameters of an opened camera.

#include "CUsageTrackingProvider.h"

#include <ParameterCollection/IParameterCollection.h>

#include <QDebug>

namespace Plugin {
namespace UsageTracking {
namespace Internal {

using ParameterCollection::IParameter;

namespace {

bool isObservable(const IParameter &parameter)
{
    return !parameter.isUnavailable()
           && parameter.interfaceType() != ParameterCollection::InterfaceCategory
           && parameter.isUserSettable();
}

QString nameForLog(const IParameter &parameter)
{
    try {
        return parameter.name();
    } catch (...) {
        return QString();
    }
}

} // namespace

void CUsageTrackingProvider::attachParameterHandlers(
    const ParameterCollection::IParameterCollection &parameters, const ICameraInfo &camera)
{
    try {
        for (const QSharedPointer<IParameter> &parameter : parameters.parameters()) {
            if (isObservable(*parameter)) {
                attachParameterHandler(parameter, camera);
            }
        }
    } catch (...) {
        qDebug() << "Tracking (createParameterChangedHandler) failed with exception";
    }
}

void CUsageTrackingProvider::attachParameterHandler(const QSharedPointer<IParameter> &parameter,
                                                    const ICameraInfo &camera)
{
    try {
        const int number = cameraNumber(camera);
        m_parameterHandlers.emplace_back(parameter, parameter->name(), m_sdkInstance, number);
        connect(parameter.data(), &IParameter::parameterValueAboutToBeSet,
                &m_parameterHandlers.back(),
                &CParameterChangedHandler::onParameterValueAboutToBeSet);
    } catch (...) {
        qDebug().noquote().nospace() << "Tracking couldn't connect to " << nameForLog(*parameter);
    }
}

} // namespace Internal
} // namespace UsageTracking
} // namespace Plugin
