// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <pluginsystem/CPluginInitializer.h>
#include <pluginsystem/CPluginSpec.h>

#include <functional>
#include <memory>

namespace PluginSystem {

/// Creates the object of a built-in plug-in. May throw; null is an error.
using PluginFactory = std::function<std::unique_ptr<Core::Plugin::IPlugin>()>;

/// One plug-in in the care of the viewer: its description, its object, and the steps of its life.
///
/// A step that fails, or that an exception leaves, becomes the plug-in's error; none of the steps
/// throws. A step whose turn it is not does nothing. GUI thread.
class CHostedPlugin
{
public:
    /// A built-in plug-in. It is read already.
    CHostedPlugin(const PluginMetaData &metaData, PluginFactory factory,
                  CServiceRegistry &registry);

    /// The plug-in of the shared library \a libraryPath, whose metadata is read here.
    CHostedPlugin(const QString &libraryPath, CServiceRegistry &registry);

    /// Destroys the plug-in's object, if `destroy` has not done so yet.
    ~CHostedPlugin();

    Q_DISABLE_COPY_MOVE(CHostedPlugin)

    CPluginSpec &spec();
    const CPluginSpec &spec() const;

    /// Null before `load` and after `destroy`.
    Core::Plugin::IPlugin *plugin() const;

    void load();

    /// Only a plug-in that is loaded and brings translations takes notice.
    void setLanguage(const QString &language);

    void preInitialize();
    void initialize();

    /// Whether `initialize` was called, and `uninitialize` was not yet.
    bool isWorking() const;

    /// Emits `initializationDone` for this plug-in, if `initialize` was called.
    void announceInitializationDone();

    /// Whether the plug-in agrees to the viewer being closed. One that is not running is not asked
    /// and agrees, and so does one that throws.
    bool isClosable();

    void aboutToUninitialize();

    /// Also of a plug-in whose `initialize` failed, which may have work under way; not of one whose
    /// `initialize` was never called.
    void uninitialize();

    /// Removes the services that the plug-in has left behind, and destroys its object.
    void destroy();

    /// Removes the services of a plug-in that will not be initialised.
    void dropServices();

private:
    template <class Step>
    bool guarded(const char *operation, Step step);
    void failIn(const char *operation, const QString &reason);
    std::unique_ptr<Core::Plugin::IPlugin> createBuiltIn();
    std::unique_ptr<Core::Plugin::IPlugin> create();

    CPluginSpec m_spec;
    PluginFactory m_factory;
    CPluginInitializer m_initializer;
    std::unique_ptr<Core::Plugin::IPlugin> m_plugin;
    bool m_initializeWasCalled = false;
    bool m_uninitializeWasCalled = false;
};

} // namespace PluginSystem
