// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "plugins/camerapool/CDevice.h"

#include <ParameterCollection/IIntegerParameter.h>

#include <QSharedPointer>

namespace ParameterCollectionPool {

/// A figure of the device's first stream, for example
/// "@StreamGrabber0/Statistic_Total_Buffer_Count". It tells what was noted last, also when the
/// device is gone.
class CStreamCounterParameter : public ParameterCollection::IIntegerParameter
{
public:
    /// \a index is that of CameraPool::CStreamCounters.
    CStreamCounterParameter(QSharedPointer<CameraPool::CDevice> device, int index);
    ~CStreamCounterParameter() override;

    /// "@StreamGrabber0/"
    static QString treePrefix();

    bool isNull() const override
    {
        return false;
    }
    QString name() const override;
    QString fullName() const override;
    ParameterCollection::InterfaceType interfaceType() const override;
    bool isUnavailable() const override;
    bool isReadable() const override;
    bool isUserSettable() const override
    {
        return false;
    }
    QString valueText() const override;
    void setValueText(const QString &text) override;
    qint64 value() const override;

private:
    const QSharedPointer<CameraPool::CDevice> m_device;
    const int m_index;
};

} // namespace ParameterCollectionPool
