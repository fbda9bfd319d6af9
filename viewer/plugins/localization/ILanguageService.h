// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

namespace Plugin {
namespace Localization {

/// The language of the viewer and of its plug-ins. GUI thread.
///
/// A language is written as in a locale's name: "ja", "zh_CN", "en_US".
class ILanguageService : public QObject
{
    Q_OBJECT

public:
    /// The language in use: the user's choice if there is one, else the system's.
    virtual QString language() const = 0;

    /// What the user has chosen; empty while the system's language is followed, which it is too
    /// where the settings hold a language that cannot be chosen.
    virtual QString choice() const = 0;

    /// The languages that can be chosen. Each may be chosen for a country too, "zh_CN" or
    /// "zh-CN".
    virtual QStringList languages() const = 0;

    /// Switches the viewer and every plug-in to \a language at once and remembers it. An empty
    /// text forgets the choice and follows the system.
    /// @return false, and nothing is changed, for a language that cannot be chosen.
    virtual bool setLanguage(const QString &language) = 0;

Q_SIGNALS:
    /// Every plug-in has been switched to \a language.
    void languageChanged(const QString &language);

protected:
    using QObject::QObject;
};

} // namespace Localization
} // namespace Plugin
