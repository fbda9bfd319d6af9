// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <Core/Plugin/IPluginInitializer.h>
#include <NerixCoreExport.h>

#include <QObject>
#include <QPointer>

namespace Core {
namespace Plugin {

/// A part of the viewer. The viewer is assembled from plug-ins, built-in ones and shared libraries.
///
/// Life cycle, every call in the GUI thread: construction, `preInitialize` of every plug-in,
/// `initialize` of every plug-in (dependencies first), the initializer's `initializationDone`, ...,
/// `checkPluginClosability`, `aboutToUninitialize`, `uninitialize` (dependents first), deletion.
/// An exception that leaves one of these operations is an error of that plug-in and ends only it.
class NERIXCORE_EXPORT IPlugin : public QObject
{
    Q_OBJECT

public:
    ~IPlugin() override;

    /// Keeps \a initializer for later and creates what other plug-ins may ask for in their
    /// `initialize`. The pointer is guarded because the viewer owns the object.
    /// @return false if the plug-in cannot be used; it is then not initialised.
    virtual bool preInitialize(const QPointer<IPluginInitializer> &initializer) = 0;

    /// Looks up the services of others and begins to work. What this plug-in depends on is
    /// initialised already.
    /// @return false if something that the plug-in needs is missing. `uninitialize` is called all
    /// the same, since a part of the work may be under way.
    virtual bool initialize() = 0;

    /// Ends all work before it returns; the services of what this plug-in depends on still work.
    /// @return false if something could not be ended as it should; this is logged.
    virtual bool uninitialize(const QPointer<IPluginInitializer> &initializer) = 0;

    /// Asked before the viewer closes. @return false to veto, for example while a file is being
    /// written. The base agrees.
    virtual bool checkPluginClosability();

    /// Told to every plug-in once the viewer will close, before the first `uninitialize`. The base
    /// does nothing.
    virtual void aboutToUninitialize();

protected:
    explicit IPlugin(QObject *parent = nullptr);
};

} // namespace Plugin
} // namespace Core

/// The identifier of the plug-in interface, which the metadata of a plug-in library must carry.
#define NERIX_PLUGIN_IID "example.ostrand.NerixViewer.IPlugin/1"
