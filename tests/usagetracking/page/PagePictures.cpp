// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// consent-page-pictures FOLDER: pictures of the page in each state and language, for people to look
// at. By a display with OpenGL, since the shadows of the tiles are drawn by it.

#include "ConsentPage.h"

#include <QApplication>
#include <QCursor>
#include <QDir>
#include <QTemporaryDir>
#include <QTextStream>
#include <QtTest>

namespace {

struct State
{
    const char *name;
    bool answered;
    bool answer;
    QByteArrayList clicks;
};

const QList<State> &states()
{
    static const QList<State> all{
        {"1-nothing-clicked", false, false, {}},
        {"2-yes-clicked", false, false, {"yesCheckbox"}},
        {"3-no-clicked", false, false, {"noCheckbox"}},
        {"4-yes-applied", true, true, {}},
        {"5-no-applied", true, false, {}},
        {"6-no-clicked-after-yes", true, true, {"noCheckbox"}},
    };
    return all;
}

bool take(const State &state, const QString &language, const QDir &folder)
{
    if (state.answered) {
        storeAnswer(state.answer);
    } else {
        storeNoAnswer();
    }
    ConsentPage page;
    page.fixture.plugin->setLanguage(language);
    for (const QByteArray &name : state.clicks) {
        page.click(name.constData());
    }
    QCursor::setPos(page.window.mapToGlobal({2, 2}));
    page.hoverNothing();
    const QString file = folder.filePath(
        QStringLiteral("consent-page-%1-%2.png").arg(language, QLatin1String(state.name)));
    return page.window.grabWindow().save(file);
}

} // namespace

int main(int argc, char *argv[])
{
    const QTemporaryDir home;
    QApplication application(argc, argv);
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, home.path());
    QCoreApplication::setOrganizationName(QStringLiteral("Ostrand"));
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 2 || !QDir().mkpath(arguments.at(1))) {
        QTextStream(stderr) << "usage: consent-page-pictures FOLDER (one that can be written)\n";
        return 1;
    }
    bool taken = true;
    for (const char *language : {"en", "ja", "ko", "zh"}) {
        for (const State &state : states()) {
            taken = take(state, QString::fromLatin1(language), QDir(arguments.at(1))) && taken;
        }
    }
    return taken ? 0 : 1;
}
