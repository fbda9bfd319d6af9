// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "CParameterChangedHandler.h"
#include "GrabRecords.h"

#include <CameraPool/ICameraEnumerationService.h>
#include <CameraPool/ICameraStatusService.h>
#include <CameraSelector/IDeviceSelectorService.h>
#include <Core/CameraPoolComponents/ICameraInfo.h>
#include <Core/Plugin/IPluginInitializer.h>
#include <FeatureTree/IFeatureTreeStatusService.h>
#include <Nerix/CGrabResultData.h>
#include <ParameterCollectionPool/IParameterService.h>
#include <ruiSDK.h>

#include <cstdint>
#include <list>

#include <QJsonObject>
#include <QMap>
#include <QObject>
#include <QPointer>
#include <QSharedPointer>
#include <QStringList>
#include <QVector>

namespace Plugin::UsageTracking::Internal {

using Core::CameraPoolComponents::CameraInfoPtr;
using Core::CameraPoolComponents::DeviceBaseInfoPtr;

/// Turns what happens in the viewer into usage events and hands them to the analytics library.
///
/// Lives in the tracking thread: after `acquireServices`, which the plug-in calls before the move,
/// every slot runs there, one at a time, so nothing here is locked. A session is open while
/// `m_sdkInstance` is not null. The results of the analytics library are ignored but for those of
/// an opt-out: nothing that fails here may disturb the viewer or its user.
class CUsageTrackingProvider : public QObject
{
    Q_OBJECT

public:
    CUsageTrackingProvider();
    ~CUsageTrackingProvider() override;

    /// Looks up the viewer's services. @return whether the four required ones are there; the list
    /// of feature trees may be empty.
    bool acquireServices(const QPointer<Core::Plugin::IPluginInitializer> &initializer);

public Q_SLOTS:
    /// Opens a session, subscribes to the viewer's signals and sends "SessionStarted".
    void startTracking();

    /// Sends "SessionEnded", closes the session and unsubscribes. Without a session: nothing.
    void stopTracking();

    /// Stops tracking and records with the analytics library that the user withdrew. Without a
    /// session: nothing.
    void stopTrackingAndOptOut();

protected Q_SLOTS:
    // The spelling of the argument types is part of the interface: it stands in the meta-object.
    void onParameterSelectionChanged(QSharedPointer<ParameterCollection::IParameter> ptrParameter);
    void onEnumerationChanged();
    void onDeviceSelectionChanged(Core::CameraPoolComponents::DeviceBaseInfoPtr ptrDeviceInfo);
    void onCameraConnected(DeviceBaseInfoPtr ptrDeviceInfo);
    void onCameraDisconnected(DeviceBaseInfoPtr ptrDeviceInfo);
    void onDeviceOpened(DeviceBaseInfoPtr ptrDeviceInfo);
    void onDeviceClosing(DeviceBaseInfoPtr ptrDeviceInfo);
    void onCameraGrabStarted(Core::CameraPoolComponents::DeviceBaseInfoPtr ptrDeviceInfo);
    void onCameraGrabStopped(DeviceBaseInfoPtr ptrDeviceInfo);
    void onCameraImageGrabFailed(Core::CameraPoolComponents::CameraInfoPtr ptrCameraInfo,
                                 const Nerix::CGrabResultPtr &grabResult);
    void onCameraStatisticUpdated(CameraInfoPtr cameraInfo, int imagesGrabbedCount,
                                  int imagesFailedCount, double fps, uint64_t bps);

private:
    using ICameraInfo = Core::CameraPoolComponents::ICameraInfo;
    using ParameterCollectionPtr = QSharedPointer<ParameterCollection::IParameterCollection>;

    // Session
    bool prepareSession();
    void discardInstance();
    int configureSdk();
    int setProductData();
    void recordOptOut();
    void logWarning(const QString &text) const;

    // Subscriptions
    void subscribe();
    void unsubscribe();
    /// Calls \a visit with sender, signal, slot and connection type of each subscription, in the
    /// order in which they are made. A service that is missing is left out.
    template <class Visit>
    void forEachSubscription(Visit visit);

    /// Null if the device has no parameters.
    ParameterCollectionPtr parametersOf(const DeviceBaseInfoPtr &device) const;

    // Cameras
    /// -1 for a camera that was never seen.
    int cameraNumber(const ICameraInfo &camera) const;
    void rememberIdentity(const QString &identity);
    void sendCameraRecord(const QString &name, const CameraInfoPtr &camera, const QString &model);
    void sendConfigurationRecord(const QString &name, int number, const QString &model,
                                 const QString &featureStream);
    void attachParameterHandlers(const ParameterCollection::IParameterCollection &parameters,
                                 const ICameraInfo &camera);
    void attachParameterHandler(const QSharedPointer<ParameterCollection::IParameter> &parameter,
                                const ICameraInfo &camera);

    // Grabs
    QJsonObject grabValues(const QString &grabType, const CameraInfoPtr &camera) const;
    QString statusBarStatistics(const ICameraInfo &camera) const;
    QString streamStatistics(const CameraInfoPtr &camera) const;
    /// The value of an integer parameter of \a camera, or -1.
    qint64 readInteger(const CameraInfoPtr &camera, const QString &fullName) const;
    void reportFailures(const ICameraInfo &camera, const QString &identity);

    /// Null while no session is open. Every event is sent through it.
    ruiInstance m_sdkInstance = nullptr;
    /// Every camera seen since the provider was made; the position is the camera's number. Only
    /// grows.
    QStringList m_cameraIdentities;
    /// A list, so that an observer never moves in memory while it is connected.
    std::list<CParameterChangedHandler> m_parameterHandlers;
    QMap<QString, GrabStatistics> m_grabStatistics;
    QMap<QString, GrabFailures> m_grabFailures;
    /// Cameras connected now, as reported: below zero if more removals than connections were.
    int m_cameraCount = 0;
    QVector<QSharedPointer<FeatureTree::IFeatureTreeStatusService>> m_featureTreeServices;
    QSharedPointer<CameraSelector::IDeviceSelectorService> m_deviceSelectorService;
    QSharedPointer<CameraPool::ICameraStatusService> m_cameraStatusService;
    QSharedPointer<CameraPool::ICameraEnumerationService> m_enumerationService;
    QSharedPointer<ParameterCollectionPool::IParameterService> m_parameterService;
};

} // namespace Plugin::UsageTracking::Internal
