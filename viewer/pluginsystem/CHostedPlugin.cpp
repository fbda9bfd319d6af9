// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include <Core/Plugin/ALocalizedPlugin.h>

#include <pluginsystem/CHostedPlugin.h>
#include <pluginsystem/FailedDestructor.h>
#include <pluginsystem/LoggingCategory.h>
#include <pluginsystem/PluginLibrary.h>

#include <exception>
#include <utility>

namespace PluginSystem {

CHostedPlugin::CHostedPlugin(const PluginMetaData &metaData, PluginFactory factory,
                             CServiceRegistry &registry)
    : m_factory(std::move(factory))
    , m_initializer(registry)
{
    m_spec.setMetaData(metaData);
    m_spec.advance(PluginState::Read);
}

CHostedPlugin::CHostedPlugin(const QString &libraryPath, CServiceRegistry &registry)
    : m_spec(libraryPath)
    , m_initializer(registry)
{
    readPluginLibrary(m_spec);
}

CHostedPlugin::~CHostedPlugin() = default;

CPluginSpec &CHostedPlugin::spec()
{
    return m_spec;
}

const CPluginSpec &CHostedPlugin::spec() const
{
    return m_spec;
}

Core::Plugin::IPlugin *CHostedPlugin::plugin() const
{
    return m_plugin.get();
}

void CHostedPlugin::load()
{
    if (m_spec.hasError() || m_spec.state() != PluginState::Resolved) {
        return;
    }
    guarded("its constructor", [this] { return (m_plugin = create()) != nullptr; });
    if (m_plugin) {
        m_plugin->setObjectName(m_spec.name());
        m_spec.advance(PluginState::Loaded);
    }
}

void CHostedPlugin::setLanguage(const QString &language)
{
    auto *localized = qobject_cast<Core::Plugin::ALocalizedPlugin *>(m_plugin.get());
    if (!localized) {
        return;
    }
    guarded("setLanguage", [&] {
        const bool found = localized->setLanguage(language);
        qCDebug(pluginSystem).noquote().nospace() << '"' << m_spec.name() << "\": language "
                                                  << language << (found ? "" : " is not there");
        return true;
    });
}

void CHostedPlugin::preInitialize()
{
    if (m_spec.hasError() || m_spec.state() != PluginState::Loaded) {
        return;
    }
    if (guarded("preInitialize", [this] { return m_plugin->preInitialize(&m_initializer); })) {
        m_spec.advance(PluginState::PreInitialized);
    } else {
        dropServices();
    }
}

void CHostedPlugin::initialize()
{
    if (m_spec.hasError() || m_spec.state() != PluginState::PreInitialized) {
        return;
    }
    m_initializeWasCalled = true;
    if (guarded("initialize", [this] { return m_plugin->initialize(); })) {
        m_spec.advance(PluginState::Initialized);
    }
}

bool CHostedPlugin::isWorking() const
{
    return m_initializeWasCalled && !m_uninitializeWasCalled;
}

void CHostedPlugin::announceInitializationDone()
{
    if (!isWorking()) {
        return;
    }
    guarded("a slot for initializationDone", [this] {
        Q_EMIT m_initializer.initializationDone();
        return true;
    });
    m_spec.advance(PluginState::Running);
}

bool CHostedPlugin::isClosable()
{
    if (m_spec.hasError() || m_spec.state() != PluginState::Running) {
        return true;
    }
    bool closable = true;
    guarded("checkPluginClosability", [&] {
        closable = m_plugin->checkPluginClosability();
        return true;
    });
    return closable;
}

void CHostedPlugin::aboutToUninitialize()
{
    if (!isWorking()) {
        return;
    }
    guarded("aboutToUninitialize", [this] {
        m_plugin->aboutToUninitialize();
        return true;
    });
}

void CHostedPlugin::uninitialize()
{
    if (!isWorking()) {
        return;
    }
    m_uninitializeWasCalled = true;
    if (guarded("uninitialize", [this] { return m_plugin->uninitialize(&m_initializer); })) {
        m_spec.advance(PluginState::Uninitialized);
    }
}

void CHostedPlugin::destroy()
{
    dropServices();
    {
        const CFailedDestructor watch(m_spec.name());
        m_plugin.reset();
    }
    m_spec.advance(PluginState::Deleted);
}

void CHostedPlugin::dropServices()
{
    if (const int dropped = m_initializer.dropServices()) {
        qCDebug(pluginSystem).noquote().nospace()
            << '"' << m_spec.name() << "\": removed " << dropped << " services that it left";
    }
}

template <class Step>
bool CHostedPlugin::guarded(const char *operation, Step step)
{
    try {
        if (step()) {
            return true;
        }
        if (!m_spec.hasError()) {
            failIn(operation, QStringLiteral("it returned false"));
        }
    } catch (const std::exception &exception) {
        failIn(operation, QStringLiteral("exception: %1").arg(QString::fromUtf8(exception.what())));
    } catch (...) {
        failIn(operation, QStringLiteral("exception of an unknown type"));
    }
    return false;
}

void CHostedPlugin::failIn(const char *operation, const QString &reason)
{
    m_spec.fail(QStringLiteral("Plug-in \"%1\" failed in %2 (%3): %4")
                    .arg(m_spec.name(), QString::fromLatin1(operation), reason, m_spec.remedy()));
}

std::unique_ptr<Core::Plugin::IPlugin> CHostedPlugin::createBuiltIn()
{
    auto plugin = m_factory();
    if (!plugin) {
        failIn("its constructor", QStringLiteral("there is no object"));
    }
    return plugin;
}

std::unique_ptr<Core::Plugin::IPlugin> CHostedPlugin::create()
{
    if (m_spec.isBuiltIn()) {
        return createBuiltIn();
    }
    QString reason;
    auto plugin = loadPluginLibrary(m_spec.libraryPath(), reason);
    if (!plugin) {
        m_spec.fail(QStringLiteral("Plug-in \"%1\" cannot be loaded (%2): %3")
                        .arg(m_spec.name(), reason, m_spec.remedy()));
    }
    return plugin;
}

} // namespace PluginSystem
