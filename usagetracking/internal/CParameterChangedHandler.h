// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <ParameterCollection/IParameter.h>
#include <ruiSDK.h>

#include <QObject>
#include <QSharedPointer>
#include <QString>

/// Observes one parameter of an opened camera and sends a "ParameterValueChanged" event for every
/// value that is about to be set.
///
/// Lives in the tracking thread, held by the provider. What it was given at creation stays: the
/// handle of the session and the number of the camera do not follow later changes.
class CParameterChangedHandler : public QObject
{
    Q_OBJECT

public:
    /// \a name is the parameter's name; \a cameraNumber is -1 for an unknown camera.
    CParameterChangedHandler(QSharedPointer<ParameterCollection::IParameter> parameter,
                             QString name, ruiInstance sdkInstance, int cameraNumber);
    ~CParameterChangedHandler() override;

public Q_SLOTS:
    void onParameterValueAboutToBeSet(const QString &newValue);

private:
    const QString m_name;
    QString m_lastValue;
    /// Keeps the parameter alive.
    const QSharedPointer<ParameterCollection::IParameter> m_parameter;
    const ruiInstance m_sdkInstance;
    const int m_cameraNumber;
};
