// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include <CCompressionStatistic.h>
#include <Core/CameraPoolComponents/ICameraInfo.h>
#include <Nerix/CGrabResultData.h>
#include <ParameterCollection/IParameter.h>

#include <QCoreApplication>

namespace {

// Registered under every name that a signature of ours spells, so that connections made by name can
// be queued as well as those made by pointer to member.
void registerMetaTypes()
{
    using Core::CameraPoolComponents::CameraInfoPtr;
    using Core::CameraPoolComponents::DeviceBaseInfoPtr;
    qRegisterMetaType<DeviceBaseInfoPtr>("DeviceBaseInfoPtr");
    qRegisterMetaType<DeviceBaseInfoPtr>("Core::CameraPoolComponents::DeviceBaseInfoPtr");
    qRegisterMetaType<DeviceBaseInfoPtr>(
        "QSharedPointer<Core::CameraPoolComponents::IDeviceBaseInfo>");
    qRegisterMetaType<CameraInfoPtr>("CameraInfoPtr");
    qRegisterMetaType<CameraInfoPtr>("Core::CameraPoolComponents::CameraInfoPtr");
    qRegisterMetaType<CameraInfoPtr>("QSharedPointer<Core::CameraPoolComponents::ICameraInfo>");
    qRegisterMetaType<Nerix::CGrabResultPtr>("Nerix::CGrabResultPtr");
    qRegisterMetaType<CCompressionStatistic>("CCompressionStatistic");
    qRegisterMetaType<QSharedPointer<ParameterCollection::IParameter>>();
    qRegisterMetaType<std::uint64_t>("uint64_t");
}

} // namespace

Q_CONSTRUCTOR_FUNCTION(registerMetaTypes)
