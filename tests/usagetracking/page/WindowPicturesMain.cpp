// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// welcome-window-pictures FOLDER: pictures of the window of the welcome screen with the consent
// page, in each language, with the keyboard at several places, for people to look at. With
// QT_SCALE_FACTOR=2 in twice the size.

#include "ConsentWindow.h"

#include <Core/Plugin/ALocalizedPlugin.h>

#include <QApplication>
#include <QDir>
#include <QRegularExpression>
#include <QSettings>
#include <QTemporaryDir>
#include <QTextStream>

namespace {

bool draw(const QDir &folder, const QString &language, const QString &focus)
{
    storeKeys(QVariant(true), QVariant(true));
    ConsentWindow page;
    page.fixture.plugin->setLanguage(language);
    if (!focus.isEmpty() && !page.walkTo(focus)) {
        return false;
    }
    QCoreApplication::processEvents();
    const QString place = QString(focus).remove(QRegularExpression(QStringLiteral("[^a-zA-Z]")));
    const QString file = folder.filePath(QStringLiteral("%1-%2.png").arg(language, place));
    return page.window->grab().save(file);
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    const QTemporaryDir home;
    const QApplication application(argc, argv);
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, home.path());
    QCoreApplication::setOrganizationName(QStringLiteral("Ostrand"));
    const QDir folder(QCoreApplication::arguments().value(1));
    folder.mkpath(QStringLiteral("."));
    for (const char *language : {"en", "ja", "ko", "zh"}) {
        for (const char *focus : {"", "yesCheckbox", "https://www.ostrand.example/support/contact",
                                  "DataPrivacy.txt", "closeButton", "showOnStartCheckBox"}) {
            if (!draw(folder, QString::fromLatin1(language), QString::fromLatin1(focus))) {
                QTextStream(stderr) << "welcome-window-pictures: " << folder.path()
                                    << " cannot be written, or " << focus << " cannot be reached\n";
                return 1;
            }
        }
    }
    return 0;
}
