// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/localization/CLanguageService.h"

#include <utility>

#include <QLocale>
#include <QSettings>

namespace Plugin {
namespace Localization {

namespace {

const QLatin1String languageKey("Localization/Language");

// The locale "C" is what a system without any language says; the texts in the source are English.
QString systemLanguage()
{
    const QLocale locale = QLocale::system();
    return locale.language() == QLocale::C ? QStringLiteral("en") : locale.name();
}

} // namespace

CLanguageService::CLanguageService(Switch switchPlugins, QObject *parent)
    : ILanguageService(parent)
    , m_switchPlugins(std::move(switchPlugins))
{}

CLanguageService::~CLanguageService() = default;

QString CLanguageService::language() const
{
    const QString chosen = choice();
    return chosen.isEmpty() ? systemLanguage() : chosen;
}

QString CLanguageService::choice() const
{
    return QSettings().value(languageKey).toString();
}

void CLanguageService::setLanguage(const QString &language)
{
    QSettings settings;
    if (language.isEmpty()) {
        settings.remove(languageKey);
    } else {
        settings.setValue(languageKey, language);
    }
    apply();
}

void CLanguageService::apply()
{
    const QString current = language();
    m_qtTexts.setLanguage(current);
    m_switchPlugins(current);
    Q_EMIT languageChanged(current);
}

} // namespace Localization
} // namespace Plugin
