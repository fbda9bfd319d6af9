// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/localization/CQtTexts.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QLoggingCategory>
#include <QTranslator>

namespace Plugin {
namespace Localization {

namespace {

Q_LOGGING_CATEGORY(log, "nerix.localization", QtInfoMsg)

} // namespace

CQtTexts::CQtTexts() = default;

CQtTexts::~CQtTexts() = default;

bool CQtTexts::setLanguage(const QString &language)
{
    m_translator.reset();
    auto translator = std::make_unique<QTranslator>();
    if (!translator->load(QLocale(language), QStringLiteral("qtbase"), QStringLiteral("_"),
                          QLibraryInfo::location(QLibraryInfo::TranslationsPath))) {
        qCDebug(log).noquote() << "Qt has no texts for the language" << language;
        return false;
    }
    m_translator = std::move(translator);
    QCoreApplication::installTranslator(m_translator.get());
    return true;
}

} // namespace Localization
} // namespace Plugin
