// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include <pluginsystem/PluginMetaData.h>

#include <QJsonArray>
#include <QRegularExpression>

namespace PluginSystem {

namespace {

QVersionNumber readVersion(const QJsonObject &object, const QString &key, const QString &owner,
                           QStringList &faults)
{
    const QString text = object.value(key).toString();
    // Qt 5.15 declares fromString a pure function in spite of its out parameter, so an optimising
    // compiler may ignore that it tells where the numbers end.
    static const QRegularExpression numbersWithDots(QStringLiteral("\\A\\d+(\\.\\d+)*\\z"));
    if (!numbersWithDots.match(text).hasMatch()) {
        faults += QStringLiteral("%1 has the \"%2\" \"%3\" instead of numbers with dots")
                      .arg(owner, key, text);
    }
    return QVersionNumber::fromString(text);
}

QString readName(const QJsonObject &object, const QString &owner, QStringList &faults)
{
    QString name = object.value(QStringLiteral("Name")).toString();
    if (name.isEmpty()) {
        faults += QStringLiteral("%1 has no \"Name\"").arg(owner);
    }
    return name;
}

QVector<PluginDependency> readDependencies(const QJsonValue &value, QStringList &faults)
{
    if (!value.isUndefined() && !value.isArray()) {
        faults += QStringLiteral("its \"Dependencies\" is not a list");
    }
    QVector<PluginDependency> dependencies;
    const QJsonArray entries = value.toArray();
    for (const QJsonValue &entry : entries) {
        const QString owner =
            QStringLiteral("entry %1 of \"Dependencies\"").arg(dependencies.size() + 1);
        const QJsonObject object = entry.toObject();
        const QString name = readName(object, owner, faults);
        dependencies.append({name, readVersion(object, QStringLiteral("Version"), owner, faults)});
    }
    return dependencies;
}

QVersionNumber readCompatVersion(const QJsonObject &object, const QVersionNumber &version,
                                 QStringList &faults)
{
    const QString key = QStringLiteral("CompatVersion");
    if (!object.contains(key)) {
        return version;
    }
    QVersionNumber compatVersion = readVersion(object, key, QStringLiteral("it"), faults);
    if (!version.isNull() && compatVersion.normalized() > version.normalized()) {
        faults += QStringLiteral("its \"CompatVersion\" %1 is above its \"Version\" %2")
                      .arg(compatVersion.toString(), version.toString());
    }
    return compatVersion;
}

} // namespace

bool PluginMetaData::provides(const QVersionNumber &wanted) const
{
    const QVersionNumber &oldest = compatVersion.isNull() ? version : compatVersion;
    // Not normalised, 7.1 would be less than 7.1.0.
    return oldest.normalized() <= wanted.normalized()
           && wanted.normalized() <= version.normalized();
}

PluginMetaData readMetaData(const QJsonObject &object, QStringList &faults)
{
    const QString owner = QStringLiteral("it");
    PluginMetaData metaData;
    metaData.name = readName(object, owner, faults);
    metaData.version = readVersion(object, QStringLiteral("Version"), owner, faults);
    metaData.compatVersion = readCompatVersion(object, metaData.version, faults);
    metaData.vendor = object.value(QStringLiteral("Vendor")).toString();
    metaData.description = object.value(QStringLiteral("Description")).toString();
    metaData.required = object.value(QStringLiteral("Required")).toBool();
    metaData.dependencies = readDependencies(object.value(QStringLiteral("Dependencies")), faults);
    return metaData;
}

} // namespace PluginSystem
