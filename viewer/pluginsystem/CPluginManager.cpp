// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include <pluginsystem/CPluginManager.h>
#include <pluginsystem/Dependencies.h>
#include <pluginsystem/DependencyPath.h>
#include <pluginsystem/LoggingCategory.h>
#include <pluginsystem/PluginFolder.h>

#include <algorithm>
#include <utility>

#include <QCoreApplication>
#include <QDir>
#include <QEvent>
#include <QMetaObject>

namespace PluginSystem {

namespace {

QVector<CPluginSpec *> specsOf(const std::vector<std::unique_ptr<CHostedPlugin>> &plugins)
{
    QVector<CPluginSpec *> specs;
    for (const auto &plugin : plugins) {
        specs.append(&plugin->spec());
    }
    return specs;
}

QString origin(const CPluginSpec &spec)
{
    return spec.isBuiltIn()
               ? QStringLiteral("the viewer itself")
               : QStringLiteral("\"%1\"").arg(QDir::toNativeSeparators(spec.libraryPath()));
}

QString alreadyThere(const CPluginSpec &spec, const CPluginSpec &other)
{
    return QStringLiteral("Plug-in \"%1\" from %2 is there already, from %3: remove one of them")
        .arg(spec.name(), origin(spec), origin(other));
}

QString vetoOf(const CPluginSpec &spec)
{
    return QStringLiteral("Plug-in \"%1\" does not let the viewer close: wait until it has "
                          "finished, or end what it does")
        .arg(spec.name());
}

} // namespace

CPluginManager::CPluginManager(QObject *parent)
    : QObject(parent)
{}

CPluginManager::~CPluginManager()
{
    shutDown();
}

void CPluginManager::addBuiltIn(const PluginMetaData &metaData, PluginFactory factory)
{
    add(std::make_unique<CHostedPlugin>(metaData, std::move(factory), m_registry));
}

void CPluginManager::addFolder(const QString &folder)
{
    QString error;
    const QStringList libraries = librariesIn(folder, error);
    if (!error.isEmpty()) {
        qCWarning(pluginSystem).noquote() << error;
        m_folderErrors += error;
    }
    for (const QString &library : libraries) {
        add(std::make_unique<CHostedPlugin>(library, m_registry));
    }
}

void CPluginManager::setLanguage(const QString &language)
{
    m_language = language;
    for (CHostedPlugin *plugin : m_order) {
        plugin->setLanguage(language);
    }
}

void CPluginManager::setEndListener(EndListener listener)
{
    m_endListener = std::move(listener);
}

QStringList CPluginManager::librariesAtWork() const
{
    QStringList names;
    for (const auto &plugin : m_plugins) {
        if (plugin->isWorking() && !plugin->spec().isBuiltIn()) {
            names += plugin->spec().name();
        }
    }
    return names;
}

void CPluginManager::start()
{
    if (std::exchange(m_isStarted, true)) {
        qCWarning(pluginSystem) << "The plug-ins are started already";
        return;
    }
    resolve();
    forEachUsable(&CHostedPlugin::load);
    if (!m_language.isEmpty()) {
        setLanguage(m_language);
    }
    forEachUsable(&CHostedPlugin::preInitialize);
    forEachUsable(&CHostedPlugin::initialize);
    QMetaObject::invokeMethod(this, &CPluginManager::finishStart, Qt::QueuedConnection);
}

bool CPluginManager::canClose(QStringList *vetoes)
{
    QStringList lines;
    forEachDependentFirst([&](CHostedPlugin &plugin) {
        m_endListener(plugin, "checkPluginClosability");
        if (!plugin.isClosable()) {
            lines += vetoOf(plugin.spec());
        }
    });
    if (vetoes) {
        *vetoes = lines;
    }
    return lines.isEmpty();
}

void CPluginManager::uninitialize()
{
    if (!std::exchange(m_isTold, true)) {
        atTheEnd("aboutToUninitialize", &CHostedPlugin::aboutToUninitialize);
    }
    atTheEnd("uninitialize", &CHostedPlugin::uninitialize);
}

void CPluginManager::shutDown()
{
    if (std::exchange(m_isShutDown, true)) {
        return;
    }
    uninitialize();
    // There may be no event loop any more that would run what the plug-ins left to deleteLater.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    atTheEnd("its destructor", &CHostedPlugin::destroy);
    m_registry.clear();
}

CServiceRegistry &CPluginManager::registry()
{
    return m_registry;
}

QVector<const CPluginSpec *> CPluginManager::plugins() const
{
    const QVector<CPluginSpec *> specs = specsOf(m_plugins);
    return {specs.cbegin(), specs.cend()};
}

const CPluginSpec *CPluginManager::plugin(const QString &name) const
{
    return findSpec(specsOf(m_plugins), name);
}

QStringList CPluginManager::errors() const
{
    QStringList lines = m_folderErrors;
    for (const auto &plugin : m_plugins) {
        lines += plugin->spec().error().split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    }
    return lines;
}

void CPluginManager::add(std::unique_ptr<CHostedPlugin> plugin)
{
    CPluginSpec &spec = plugin->spec();
    const CPluginSpec *other = findSpec(specsOf(m_plugins), spec.name());
    if (!spec.hasError() && other && !other->hasError()) {
        spec.fail(alreadyThere(spec, *other));
    }
    m_plugins.push_back(std::move(plugin));
}

void CPluginManager::resolve()
{
    const QVector<CPluginSpec *> resolved = resolveDependencies(specsOf(m_plugins));
    for (const CPluginSpec *spec : resolved) {
        const auto plugin =
            std::find_if(m_plugins.cbegin(), m_plugins.cend(),
                         [&](const auto &candidate) { return &candidate->spec() == spec; });
        m_order.push_back(plugin->get());
    }
}

void CPluginManager::forEachUsable(void (CHostedPlugin::*step)())
{
    const QVector<CPluginSpec *> specs = specsOf(m_plugins);
    for (CHostedPlugin *plugin : m_order) {
        if (plugin->spec().hasError()) {
            continue;
        }
        failWithDependencies(plugin->spec(), specs);
        if (plugin->spec().hasError()) {
            plugin->dropServices();
        }
        (plugin->*step)();
    }
}

template <class Step>
void CPluginManager::forEachDependentFirst(Step step)
{
    std::for_each(m_order.rbegin(), m_order.rend(), [&](CHostedPlugin *plugin) { step(*plugin); });
}

void CPluginManager::atTheEnd(const char *operation, void (CHostedPlugin::*step)())
{
    forEachDependentFirst([&](CHostedPlugin &plugin) {
        m_endListener(plugin, operation);
        (plugin.*step)();
    });
}

void CPluginManager::finishStart()
{
    if (m_isTold) {
        return;
    }
    for (CHostedPlugin *plugin : m_order) {
        plugin->announceInitializationDone();
    }
    Q_EMIT m_registry.initializationDone();
}

} // namespace PluginSystem
