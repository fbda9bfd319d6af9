// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/localization/CLanguageService.h"

#include "plugins/localization/MissingFonts.h"

#include <utility>

#include <QLocale>
#include <QLoggingCategory>
#include <QSettings>

namespace Plugin {
namespace Localization {

namespace {

Q_LOGGING_CATEGORY(log, "nerix.localization", QtInfoMsg)

const QLatin1String languageKey("Localization/Language");

QString storedLanguage()
{
    return QSettings().value(languageKey).toString();
}

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
    const QString stored = storedLanguage();
    return canBeChosen(stored) ? stored : QString();
}

QStringList CLanguageService::languages() const
{
    return {QStringLiteral("en"), QStringLiteral("ja"), QStringLiteral("ko"), QStringLiteral("zh")};
}

bool CLanguageService::setLanguage(const QString &language)
{
    if (language.isEmpty()) {
        QSettings().remove(languageKey);
    } else if (canBeChosen(language)) {
        QSettings().setValue(languageKey, language);
    } else {
        return false;
    }
    apply();
    return true;
}

void CLanguageService::apply()
{
    warnOfUnknownChoice();
    const QString current = language();
    warnOfMissingFonts(current);
    m_qtTexts.setLanguage(current);
    m_switchPlugins(current);
    Q_EMIT languageChanged(current);
}

bool CLanguageService::canBeChosen(const QString &language) const
{
    const QString name = QString(language).replace(QLatin1Char('-'), QLatin1Char('_'));
    return languages().contains(name.section(QLatin1Char('_'), 0, 0));
}

void CLanguageService::warnOfUnknownChoice() const
{
    const QString stored = storedLanguage();
    if (!stored.isEmpty() && !canBeChosen(stored)) {
        qCWarning(log).noquote().nospace()
            << "there is no language \"" << stored << "\", which the settings name; the viewer "
            << "follows the system: choose one of " << languages().join(QStringLiteral(", "));
    }
}

} // namespace Localization
} // namespace Plugin
