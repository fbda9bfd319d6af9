// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// The observers of the parameters of an opened camera.

#include "CUsageTrackingProvider.h"

#include <ParameterCollection/IParameterCollection.h>

#include <QDebug>
#include <QMetaMethod>

namespace Plugin::UsageTracking::Internal {

using ParameterCollection::IParameter;

namespace {

QMetaMethod slotOfObserver()
{
    const QMetaObject &meta = CParameterChangedHandler::staticMetaObject;
    return meta.method(meta.indexOfSlot("onParameterValueAboutToBeSet(QString)"));
}

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
    static const QMetaMethod aboutToBeSet =
        QMetaMethod::fromSignal(&IParameter::parameterValueAboutToBeSet);
    static const QMetaMethod observe = slotOfObserver();
    try {
        const int number = cameraNumber(camera);
        m_parameterHandlers.emplace_back(parameter, parameter->name(), m_sdkInstance, number);
        // By meta-methods: a connection by pointers to members takes 48 bytes more, 840 times.
        connect(parameter.data(), aboutToBeSet, &m_parameterHandlers.back(), observe);
    } catch (...) {
        qDebug().noquote().nospace() << "Tracking couldn't connect to " << nameForLog(*parameter);
    }
}

} // namespace Plugin::UsageTracking::Internal
