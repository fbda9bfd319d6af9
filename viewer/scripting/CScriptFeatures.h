// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "scripting/CDeviceAccess.h"
#include "scripting/CScriptCameraObject.h"

#include <ParameterCollection/IParameterCollection.h>

#include <QVariant>

namespace Scripting {

/// `features`: the parameters of an open camera. A feature is meant by its name, for example
/// "Gain", or by its full name with the tree, "@StreamGrabber0/Statistic_Total_Buffer_Count". GUI
/// thread; the device is asked in another one.
class CScriptFeatures : public CScriptCameraObject
{
    Q_OBJECT

public:
    /// \a services and \a wait must outlive the object.
    CScriptFeatures(const Core::Plugin::IPluginInitializer &services, CScriptWait &wait,
                    QObject *parent);
    ~CScriptFeatures() override;

    /// Every parameter in tree order: "name", "fullName", "type" in GenApi's numbering,
    /// "isUnavailable", "isUserSettable".
    Q_INVOKABLE QVariantList list(const QJSValue &camera);

    /// The value as text.
    Q_INVOKABLE QString get(const QJSValue &camera, const QString &feature);

    /// Sets the value from its text.
    Q_INVOKABLE void set(const QJSValue &camera, const QString &feature, const QString &value);

    /// Makes the feature the current one of the feature tree.
    Q_INVOKABLE void select(const QJSValue &camera, const QString &feature);

    /// Every value of the camera as one text.
    Q_INVOKABLE QString stream(const QJSValue &camera);

    /// Saves every value of the camera in \a file.
    Q_INVOKABLE void save(const QJSValue &camera, const QString &file);

    /// Sets the features to what \a file says. @return "set", "unchanged" and "readOnly" as
    /// numbers, and "refused", a list of "name" and "reason".
    Q_INVOKABLE QVariantMap load(const QJSValue &camera, const QString &file);

private:
    QSharedPointer<ParameterCollection::IParameterCollection> parametersOf(const QJSValue &camera);
    QSharedPointer<ParameterCollection::IParameter> find(const QJSValue &camera,
                                                         const QString &feature);

    /// Runs \a work away from the GUI thread; what fails becomes an exception in the script.
    void access(std::function<void()> work);

    CDeviceAccess m_access;
};

} // namespace Scripting
