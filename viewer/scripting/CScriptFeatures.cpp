// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "scripting/CScriptFeatures.h"

#include "plugins/featurefiles/CFeatureFile.h"
#include "plugins/featuretree/IFeatureSelectionService.h"

#include <ParameterCollectionPool/IParameterService.h>

#include <memory>
#include <utility>

namespace Scripting {

using ParameterCollection::IParameter;
using ParameterCollection::IParameterCollection;

namespace {

QString withTree(const QString &feature)
{
    return feature.startsWith(QLatin1Char('@')) ? feature
                                                : QStringLiteral("@CameraDevice/") + feature;
}

QVariantMap describe(const IParameter &parameter)
{
    return {
        {QStringLiteral("name"), parameter.name()},
        {QStringLiteral("fullName"), parameter.fullName()},
        {QStringLiteral("type"), int(parameter.interfaceType())},
        {QStringLiteral("isUnavailable"), parameter.isUnavailable()},
        {QStringLiteral("isUserSettable"), parameter.isUserSettable()},
    };
}

QVariantMap describe(const FeatureFiles::CLoadReport &report)
{
    QVariantList refused;
    for (const auto &feature : report.refused) {
        refused.append(QVariantMap{{QStringLiteral("name"), feature.name},
                                   {QStringLiteral("reason"), feature.reason}});
    }
    return {
        {QStringLiteral("set"), report.set},
        {QStringLiteral("unchanged"), report.unchanged},
        {QStringLiteral("readOnly"), report.readOnly},
        {QStringLiteral("leftAlone"), report.leftAlone + report.ofConnection},
        {QStringLiteral("refused"), refused},
    };
}

} // namespace

CScriptFeatures::CScriptFeatures(const Core::Plugin::IPluginInitializer &services,
                                 CScriptWait &wait, QObject *parent)
    : CScriptCameraObject(services, wait, parent)
    , m_access(wait)
{}

CScriptFeatures::~CScriptFeatures() = default;

QVariantList CScriptFeatures::list(const QJSValue &camera)
{
    const auto descriptions = std::make_shared<QVariantList>();
    if (const auto parameters = parametersOf(camera)) {
        access([parameters, descriptions] {
            for (const auto &parameter : parameters->parameters()) {
                descriptions->append(describe(*parameter));
            }
        });
    }
    return *descriptions;
}

QString CScriptFeatures::get(const QJSValue &camera, const QString &feature)
{
    const auto value = std::make_shared<QString>();
    if (const auto parameter = find(camera, feature)) {
        access([parameter, value] { *value = parameter->valueText(); });
    }
    return *value;
}

void CScriptFeatures::set(const QJSValue &camera, const QString &feature, const QString &value)
{
    if (const auto parameter = find(camera, feature)) {
        access([parameter, value] { parameter->setValueText(value); });
    }
}

void CScriptFeatures::select(const QJSValue &camera, const QString &feature)
{
    const auto selection = service<FeatureTree::IFeatureSelectionService>("FeatureTree");
    if (!selection) {
        return;
    }
    if (const auto parameter = find(camera, feature)) {
        selection->select(parameter);
    }
}

QString CScriptFeatures::stream(const QJSValue &camera)
{
    const auto text = std::make_shared<QString>();
    if (const auto parameters = parametersOf(camera)) {
        access([parameters, text] {
            *text = parameters->featureStream(QStringLiteral("@CameraDevice"));
        });
    }
    return *text;
}

void CScriptFeatures::save(const QJSValue &camera, const QString &file)
{
    if (const auto parameters = parametersOf(camera)) {
        access([parameters, file] { FeatureFiles::CFeatureFile(file).save(*parameters); });
    }
}

QVariantMap CScriptFeatures::load(const QJSValue &camera, const QString &file)
{
    const auto report = std::make_shared<FeatureFiles::CLoadReport>();
    if (const auto parameters = parametersOf(camera)) {
        access([parameters, file, report] {
            *report = FeatureFiles::CFeatureFile(file).load(*parameters);
        });
    }
    return describe(*report);
}

QSharedPointer<IParameterCollection> CScriptFeatures::parametersOf(const QJSValue &camera)
{
    const CameraInfoPtr found = CScriptCameraObject::find(camera);
    const auto pool =
        service<ParameterCollectionPool::IParameterService>("ParameterCollectionPool");
    if (!found || !pool) {
        return {};
    }
    const auto parameters = pool->parameterCollection(found);
    if (!parameters) {
        fail(QStringLiteral("camera \"%1\" has no features to show: open it first")
                 .arg(found->identity()));
    }
    return parameters;
}

QSharedPointer<IParameter> CScriptFeatures::find(const QJSValue &camera, const QString &feature)
{
    const auto parameters = parametersOf(camera);
    if (!parameters) {
        return {};
    }
    const auto parameter = parameters->parameter(withTree(feature));
    if (parameter->isNull()) {
        fail(QStringLiteral("camera \"%1\" has no feature \"%2\": see features.list")
                 .arg(cameraName(camera), feature));
        return {};
    }
    return parameter;
}

void CScriptFeatures::access(std::function<void()> work)
{
    const QString failure = m_access.run(std::move(work));
    if (!failure.isEmpty()) {
        fail(failure);
    }
}

} // namespace Scripting
