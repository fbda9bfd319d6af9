// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include <pluginsystem/PluginLibrary.h>

#include <QDir>
#include <QPluginLoader>

namespace PluginSystem {

namespace {

void checkIdentifier(CPluginSpec &spec)
{
    const QString &identifier = spec.metaData().identifier;
    if (identifier != QLatin1String(NERIX_PLUGIN_IID)) {
        spec.fail(QStringLiteral("\"%1\" is a plug-in for another program (its identifier is "
                                 "\"%2\", the viewer's is \"%3\"): remove it from the folder")
                      .arg(QDir::toNativeSeparators(spec.libraryPath()), identifier,
                           QStringLiteral(NERIX_PLUGIN_IID)));
    }
}

void readMetaDataOf(CPluginSpec &spec, const QJsonObject &loaderData)
{
    QStringList faults;
    PluginMetaData metaData =
        readMetaData(loaderData.value(QStringLiteral("MetaData")).toObject(), faults);
    metaData.identifier = loaderData.value(QStringLiteral("IID")).toString();
    spec.setMetaData(metaData);
    checkIdentifier(spec);
    if (spec.hasError()) {
        return;
    }
    for (const QString &fault : qAsConst(faults)) {
        spec.fail(QStringLiteral("\"%1\" describes itself wrongly, %2: %3")
                      .arg(QDir::toNativeSeparators(spec.libraryPath()), fault, spec.remedy()));
    }
}

} // namespace

void readPluginLibrary(CPluginSpec &spec)
{
    const QPluginLoader loader(spec.libraryPath());
    const QJsonObject loaderData = loader.metaData();
    if (loaderData.isEmpty()) {
        spec.fail(QStringLiteral("\"%1\" is not a plug-in (%2): remove it from the folder")
                      .arg(QDir::toNativeSeparators(spec.libraryPath()), loader.errorString()));
        return;
    }
    readMetaDataOf(spec, loaderData);
    spec.advance(PluginState::Read);
}

std::unique_ptr<Core::Plugin::IPlugin> loadPluginLibrary(const QString &path, QString &reason)
{
    QPluginLoader loader(path);
    loader.setLoadHints(QLibrary::ResolveAllSymbolsHint | QLibrary::PreventUnloadHint);
    std::unique_ptr<QObject> object(loader.instance());
    if (!object) {
        reason = loader.errorString();
        return nullptr;
    }
    auto *plugin = qobject_cast<Core::Plugin::IPlugin *>(object.get());
    if (!plugin) {
        reason = QStringLiteral("its object is not a Core::Plugin::IPlugin but a %1")
                     .arg(QString::fromLatin1(object->metaObject()->className()));
        return nullptr;
    }
    static_cast<void>(object.release());
    return std::unique_ptr<Core::Plugin::IPlugin>(plugin);
}

} // namespace PluginSystem
