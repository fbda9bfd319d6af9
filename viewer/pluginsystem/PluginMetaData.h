// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <Core/Plugin/IPlugin.h>

#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <QVector>
#include <QVersionNumber>

namespace PluginSystem {

/// A plug-in that another one needs, in a version that it was made for.
struct PluginDependency
{
    QString name;
    QVersionNumber version;
};

/// What a plug-in says of itself before it is loaded.
struct PluginMetaData
{
    QString name; ///< unique; what dependencies, translations and messages refer to
    QVersionNumber version;
    QVersionNumber
        compatVersion; ///< oldest version that this one can stand in for; null: `version`
    QString vendor;
    QString description;
    bool required = false; ///< the viewer is of little use without it; a failure is an error line
    QVector<PluginDependency> dependencies;
    QString identifier = QStringLiteral(NERIX_PLUGIN_IID);

    /// Whether who was made for version \a wanted can use this plug-in:
    /// `compatVersion <= wanted <= version`. Versions compare number by number, and 7.1 is 7.1.0.
    bool provides(const QVersionNumber &wanted) const;
};

/// Reads the metadata \a object of a plug-in library, with the keys "Name", "Version",
/// "CompatVersion" (may be absent), "Vendor", "Description", "Required" and "Dependencies". Each
/// fault is appended to \a faults as half a sentence, such as `its "Version" is "7.x"`; what could
/// be read is returned all the same.
PluginMetaData readMetaData(const QJsonObject &object, QStringList &faults);

} // namespace PluginSystem
