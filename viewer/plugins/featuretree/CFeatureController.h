// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "plugins/featuretree/CFeatureAccess.h"
#include "plugins/featuretree/CFeatureModel.h"
#include "plugins/featuretree/CShownDevice.h"

#include <QObject>
#include <QSharedPointer>
#include <QTimer>

namespace ParameterCollectionPool {
class IParameterService;
}
namespace Plugin {
namespace NerixViewer {
class IMessageService;
}
} // namespace Plugin

namespace FeatureTree {

class IFeatureSelectionService;

/// The services that the features are shown with. Any may be null.
struct CFeatureServices
{
    QSharedPointer<CameraSelector::IDeviceSelectionService> deviceSelection;
    QSharedPointer<CameraPool::ICameraControlService> control;
    QSharedPointer<CameraPool::ICameraStatusService> status;
    QSharedPointer<ParameterCollectionPool::IParameterService> parameters;
    QSharedPointer<IFeatureSelectionService> featureSelection;
    QSharedPointer<Plugin::NerixViewer::IMessageService> messages;
};

/// What the feature panel shows, without the panel: the features of the selected device as long as
/// it is open, words where there are none, and the last thing that went wrong. It keeps the values
/// of the features that are in sight up to date. GUI thread; it never waits for a device.
class CFeatureController : public QObject
{
    Q_OBJECT

public:
    explicit CFeatureController(const CFeatureServices &services);
    ~CFeatureController() override;

    CFeatureModel &model()
    {
        return m_model;
    }

    /// What to show in place of the features, in the language of the moment. Empty: show them.
    QString notice() const;

    /// Why the last change was refused. Empty for none.
    QString problem() const
    {
        return m_problem;
    }
    void dismissProblem();

    /// The feature that the problem is about; -1 if there is none.
    int problemFeature() const
    {
        return m_problemFeature;
    }

    /// Tells the user why \a feature cannot be set now. Nothing if it can.
    void explainRefusal(int feature);

    /// Tells the user that \a typed is no number for \a feature.
    void refuseNumber(int feature, const QString &typed);

    /// Reads \a features at once, and again from time to time and when something was set.
    void keepUpToDate(const QVector<int> &features);

    /// Makes \a feature the current one of the viewer; -1 for none of them. The problem of another
    /// one is dismissed.
    void select(int feature);

    /// How long the values that are in sight are left alone.
    void setRefreshInterval(std::chrono::milliseconds interval);

    /// How long a command that was executed says so.
    void setSignDuration(std::chrono::milliseconds duration);

Q_SIGNALS:
    void noticeChanged();
    void problemChanged();

    /// Somebody, for example a script, made this feature the current one.
    void selected(int feature);

private:
    void showDevice();
    void onDescribed(const QVector<CFeatureDescription> &features);
    void onNotDescribed(const QString &reason);
    void onChangeWanted(int feature, const QString &text);
    void onWritten(int feature, const QString &failure);
    void showExecuted(int feature);
    void refresh();
    void showCurrent();
    void onSomethingSet();
    void onAllRead();
    bool isThere(int feature) const;
    void tell(int feature, const QString &problem);
    void setProblem(int feature, const QString &problem);

    const CFeatureServices m_services;
    CShownDevice m_device;
    CFeatureModel m_model;
    CFeatureAccess m_access;
    bool m_isDescribed = false;
    QString m_describeFailure; // null: none
    QString m_problem;
    int m_problemFeature = -1;
    QVector<int> m_inSight;
    bool m_isOutdated = false; // something was set while values were read
    int m_executed = -1;       // the command that says that it was executed
    QTimer m_signEnds;         // that of m_executed
    QTimer m_refresh;          // when nothing happens
    QTimer m_refreshSoon;      // when somebody sets something
};

} // namespace FeatureTree
