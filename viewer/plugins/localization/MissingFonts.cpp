// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/localization/MissingFonts.h"

#include <QFontDatabase>
#include <QGuiApplication>
#include <QLocale>
#include <QLoggingCategory>

namespace Plugin {
namespace Localization {

namespace {

Q_LOGGING_CATEGORY(log, "nerix.localization", QtInfoMsg)

QFontDatabase::WritingSystem lettersOf(const QLocale &locale)
{
    switch (locale.language()) {
    case QLocale::Japanese:
        return QFontDatabase::Japanese;
    case QLocale::Korean:
        return QFontDatabase::Korean;
    case QLocale::Chinese:
        return locale.script() == QLocale::TraditionalHanScript ? QFontDatabase::TraditionalChinese
                                                                : QFontDatabase::SimplifiedChinese;
    default: // in every font
        return QFontDatabase::Any;
    }
}

// The platform without a screen does not look at the fonts of the machine.
bool knowsFonts()
{
    return qobject_cast<QGuiApplication *>(QCoreApplication::instance())
           && QGuiApplication::platformName() != QLatin1String("minimal");
}

} // namespace

void warnOfMissingFonts(const QString &language)
{
    if (!knowsFonts() || !QFontDatabase().families(lettersOf(QLocale(language))).isEmpty()) {
        return;
    }
    qCWarning(log).noquote().nospace()
        << "no font has the letters of the language \"" << language << "\", so they are shown as "
        << "boxes: install one, on Debian the package fonts-noto-cjk";
}

} // namespace Localization
} // namespace Plugin
