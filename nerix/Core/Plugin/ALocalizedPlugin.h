// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <Core/Plugin/IPlugin.h>
#include <NerixCoreExport.h>

#include <QScopedPointer>
#include <QString>

class QTranslator;

namespace Core {
namespace Plugin {

/// A plug-in that brings its own translations, as compiled-in resources
/// ":/translation/<plug-in name>_<language>.qm". The plug-in's name is its object name
/// (`QObject::objectName`), which the viewer sets to the "Name" of the metadata before
/// `preInitialize`.
class NERIXCORE_EXPORT ALocalizedPlugin : public IPlugin
{
    Q_OBJECT

public:
    ~ALocalizedPlugin() override;

    /// Installs the catalogue for \a language ("ja", "zh_CN", "en-US"), in place of the one of an
    /// earlier call. A catalogue of the exact language is preferred; without one the part before
    /// the first '_' or '-' is tried, so "zh_CN" falls back to "zh". Without any catalogue the
    /// plug-in shows its source texts. In the GUI thread.
    /// @return whether a catalogue was found.
    virtual bool setLanguage(const QString &language);

protected:
    explicit ALocalizedPlugin(QObject *parent = nullptr);

private:
    bool loadCatalogue(const QString &language);

    QScopedPointer<QTranslator> m_translator;
};

} // namespace Plugin
} // namespace Core
