// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/featuretree/CFeatureController.h"

#include "plugins/featuretree/CFeatureTexts.h"
#include "plugins/featuretree/IFeatureSelectionService.h"
#include "plugins/nerixviewer/IMessageService.h"

#include <ParameterCollectionPool/IParameterService.h>

#include <chrono>

namespace FeatureTree {

namespace {

// Often enough for a temperature, seldom enough not to be in the way of who works with the device.
constexpr std::chrono::milliseconds quietInterval(1000);

// The news come before the device takes the value; several of them lead to one refresh.
constexpr std::chrono::milliseconds afterChange(100);

// Long enough to be read after a click.
constexpr std::chrono::milliseconds signDuration(2000);

} // namespace

CFeatureController::CFeatureController(const CFeatureServices &services)
    : m_services(services)
    , m_device(services.deviceSelection, services.control, services.status)
{
    m_refresh.setSingleShot(true);
    m_refresh.setInterval(quietInterval);
    m_refreshSoon.setSingleShot(true);
    m_refreshSoon.setInterval(afterChange);
    m_signEnds.setSingleShot(true);
    m_signEnds.setInterval(signDuration);
    connect(&m_signEnds, &QTimer::timeout, this, [this] { showExecuted(-1); });
    connect(&m_device, &CShownDevice::changed, this, &CFeatureController::showDevice);
    connect(&m_device, &CShownDevice::renamed, this, &CFeatureController::noticeChanged);
    connect(&m_model, &CFeatureModel::changeWanted, this, &CFeatureController::onChangeWanted);
    connect(&m_access, &CFeatureAccess::described, this, &CFeatureController::onDescribed);
    connect(&m_access, &CFeatureAccess::notDescribed, this, &CFeatureController::onNotDescribed);
    connect(&m_access, &CFeatureAccess::stateRead, &m_model, &CFeatureModel::setState);
    connect(&m_access, &CFeatureAccess::allRead, this, &CFeatureController::onAllRead);
    connect(&m_access, &CFeatureAccess::written, this, &CFeatureController::onWritten);
    connect(&m_access, &CFeatureAccess::setBySomebody, this, [this] {
        if (!m_refreshSoon.isActive()) {
            m_refreshSoon.start();
        }
    });
    connect(&m_refresh, &QTimer::timeout, this, &CFeatureController::refresh);
    connect(&m_refreshSoon, &QTimer::timeout, this, &CFeatureController::onSomethingSet);
    if (services.featureSelection) {
        connect(services.featureSelection.data(), &IFeatureSelectionService::currentChanged, this,
                &CFeatureController::showCurrent);
    }
    showDevice();
}

CFeatureController::~CFeatureController() = default;

QString CFeatureController::notice() const
{
    const auto camera = m_device.camera();
    const QString name = camera ? camera->displayName() : QString();
    switch (m_device.condition()) {
    case CShownDevice::Condition::None:
        return tr("Select a camera to see its features.");
    case CShownDevice::Condition::Gone:
        return tr("%1 is not connected.\nConnect and open it to see its features.").arg(name);
    case CShownDevice::Condition::Closed:
        return tr("%1 is closed.\nOpen it to see its features.").arg(name);
    case CShownDevice::Condition::Open:
        break;
    }
    if (m_isDescribed) {
        return {};
    }
    return m_describeFailure.isNull()
               ? tr("Reading the features of %1...").arg(name)
               : tr("The features of %1 cannot be read.\nClose it and open it again.").arg(name)
                     + QLatin1Char('\n') + m_describeFailure;
}

void CFeatureController::dismissProblem()
{
    setProblem(-1, QString());
}

void CFeatureController::explainRefusal(int feature)
{
    if (!isThere(feature) || !m_model.state(feature).isKnown) {
        return;
    }
    const CFeatureState &state = m_model.state(feature);
    const QString name = m_model.description(feature).displayName;
    if (state.canBeSet()) {
        if (m_model.description(feature).type == ParameterCollection::InterfaceRegister) {
            setProblem(feature, tr("%1: its bytes can only be set by a script").arg(name));
        }
    } else if (!state.isOffered()) {
        setProblem(feature, tr("%1: the camera does not offer it now").arg(name));
    } else if (state.isLocked()) {
        setProblem(feature, tr("%1: it is locked now; stop the grab, then set it").arg(name));
    } else {
        setProblem(feature, tr("%1: it can only be read").arg(name));
    }
}

void CFeatureController::refuseNumber(int feature, const QString &typed)
{
    if (isThere(feature)) {
        tell(feature,
             CFeatureTexts::noNumber(m_model.description(feature), m_model.state(feature), typed));
    }
}

// The device may have been closed since the view told of the feature.
bool CFeatureController::isThere(int feature) const
{
    return m_model.indexOf(feature, CFeatureModel::NameColumn).isValid();
}

void CFeatureController::keepUpToDate(const QVector<int> &features)
{
    m_inSight = features;
    refresh();
}

void CFeatureController::select(int feature)
{
    if (feature != m_problemFeature) {
        dismissProblem();
    }
    const auto parameter = m_access.parameter(feature);
    if (parameter && m_services.featureSelection) {
        m_services.featureSelection->select(parameter);
    }
}

void CFeatureController::setRefreshInterval(std::chrono::milliseconds interval)
{
    m_refresh.setInterval(interval);
}

void CFeatureController::setSignDuration(std::chrono::milliseconds duration)
{
    m_signEnds.setInterval(duration);
}

void CFeatureController::showExecuted(int feature)
{
    if (m_executed >= 0) {
        m_model.setExecuted(m_executed, false);
    }
    m_executed = feature;
    if (feature >= 0) {
        m_model.setExecuted(feature, true);
        m_signEnds.start();
    }
}

void CFeatureController::showDevice()
{
    m_isDescribed = false;
    m_describeFailure = QString();
    m_inSight.clear();
    m_refresh.stop();
    m_signEnds.stop();
    m_executed = -1;
    m_access.close();
    m_model.setFeatures({});
    dismissProblem();
    if (m_device.condition() == CShownDevice::Condition::Open && m_services.parameters) {
        m_access.open([parameters = m_services.parameters, camera = m_device.camera()] {
            return parameters->parameterCollection(camera);
        });
    }
    Q_EMIT noticeChanged();
}

void CFeatureController::onDescribed(const QVector<CFeatureDescription> &features)
{
    m_isDescribed = true;
    m_model.setFeatures(features);
    Q_EMIT noticeChanged();
    showCurrent();
}

// The current feature may be one of another camera, or of this one before it was opened anew.
void CFeatureController::showCurrent()
{
    if (!m_services.featureSelection) {
        return;
    }
    const auto current = m_services.featureSelection->current();
    const int feature = current ? m_model.featureNamed(current->fullName()) : -1;
    if (feature >= 0 && m_access.parameter(feature) == current) {
        if (feature != m_problemFeature) {
            dismissProblem();
        }
        Q_EMIT selected(feature);
    }
}

void CFeatureController::onNotDescribed(const QString &reason)
{
    m_describeFailure = reason.isNull() ? QStringLiteral("") : CFeatureTexts::withoutTree(reason);
    Q_EMIT noticeChanged();
}

void CFeatureController::onChangeWanted(int feature, const QString &text)
{
    dismissProblem();
    m_model.expect(feature, text);
    m_access.write(feature, text);
}

void CFeatureController::onWritten(int feature, const QString &failure)
{
    if (failure.isEmpty()) {
        m_model.confirm(feature);
        dismissProblem();
        if (m_model.description(feature).type == ParameterCollection::InterfaceCommand) {
            showExecuted(feature);
        }
    } else {
        m_model.refuse(feature);
        tell(feature, CFeatureTexts::withoutTree(failure));
    }
    // First itself, in sight or not, then what may depend on it.
    QVector<int> affected = m_inSight;
    affected.removeAll(feature);
    affected.prepend(feature);
    m_access.read(affected);
}

void CFeatureController::refresh()
{
    if (m_isDescribed && !m_inSight.isEmpty()) {
        m_access.read(m_inSight);
    }
}

// To begin anew each time would leave the last ones unread as long as somebody sets something.
void CFeatureController::onSomethingSet()
{
    if (m_access.isReading()) {
        m_isOutdated = true;
    } else {
        refresh();
    }
}

void CFeatureController::onAllRead()
{
    if (m_isOutdated) {
        m_isOutdated = false;
        m_refreshSoon.start();
    } else {
        m_refresh.start();
    }
}

void CFeatureController::tell(int feature, const QString &problem)
{
    setProblem(feature, problem);
    if (m_services.messages) {
        m_services.messages->add(Plugin::NerixViewer::IMessageService::Severity::Warning,
                                 m_device.camera()->displayName() + QStringLiteral(": ") + problem);
    }
}

void CFeatureController::setProblem(int feature, const QString &problem)
{
    if (problem != m_problem || feature != m_problemFeature) {
        m_problem = problem;
        m_problemFeature = feature;
        Q_EMIT problemChanged();
    }
}

} // namespace FeatureTree
