// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "CPoolRig.h"
#include "CSimulatorProcess.h"
#include "plugins/camerapool/CDeviceStore.h"
#include "plugins/parametercollectionpool/CParameterService.h"

#include <ParameterCollection/IParameterCollection.h>

#include <memory>

#include <QString>
#include <QStringList>

// One simulated camera that is open, and its parameters.
class COpenCamera
{
public:
    explicit COpenCamera(const QStringList &options = {},
                         const QString &serial = QStringLiteral("A1"))
        : m_simulator(options + QStringList{QStringLiteral("--serial"), serial})
    {
        if (!m_simulator.start() || !m_rig.search()) {
            return;
        }
        m_info = m_rig.camera(serial);
        if (m_info && m_rig.open(m_info)) {
            m_parameters = m_service.parameterCollection(m_info);
        }
    }

    // False if anything went wrong on the way.
    bool isOpen() const
    {
        return m_parameters != nullptr;
    }

    CSimulatorProcess &simulator()
    {
        return m_simulator;
    }
    CPoolRig &rig()
    {
        return m_rig;
    }
    const CPoolRig::CameraInfoPtr &info() const
    {
        return m_info;
    }
    ParameterCollectionPool::CParameterService &service()
    {
        return m_service;
    }
    ParameterCollection::IParameterCollection &parameters()
    {
        return *m_parameters;
    }

    // A feature by its name without the tree.
    QSharedPointer<ParameterCollection::IParameter> feature(const char *name) const
    {
        return m_parameters->parameter(QStringLiteral("@CameraDevice/")
                                       + QString::fromLatin1(name));
    }

private:
    CSimulatorProcess m_simulator;
    CPoolRig m_rig;
    ParameterCollectionPool::CParameterService m_service{m_rig.pool().devices()};
    CPoolRig::CameraInfoPtr m_info;
    QSharedPointer<ParameterCollection::IParameterCollection> m_parameters;
};
