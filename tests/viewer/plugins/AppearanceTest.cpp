// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/nerixviewer/CAppearance.h"
#include "support/CSettingsSandbox.h"

#include <QApplication>
#include <QTest>

using Plugin::NerixViewer::CAppearance;

class AppearanceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void testTheSystemDecidesAtFirst();
    void testChoiceTakesEffectAtOnceAndIsRemembered_data();
    void testChoiceTakesEffectAtOnceAndIsRemembered();
    void testSystemBringsItsOwnColoursBack();
    void testUnknownChoiceCountsAsTheSystem();

private:
    QScopedPointer<CSettingsSandbox> m_sandbox;
};

void AppearanceTest::init()
{
    m_sandbox.reset(new CSettingsSandbox);
}

void AppearanceTest::testTheSystemDecidesAtFirst()
{
    QCOMPARE(CAppearance().choice(), QString("system"));
}

void AppearanceTest::testChoiceTakesEffectAtOnceAndIsRemembered_data()
{
    QTest::addColumn<QString>("choice");
    QTest::addColumn<bool>("textIsLighter");
    QTest::newRow("light") << "light" << false;
    QTest::newRow("dark") << "dark" << true;
}

void AppearanceTest::testChoiceTakesEffectAtOnceAndIsRemembered()
{
    QFETCH(QString, choice);
    QFETCH(bool, textIsLighter);
    CAppearance appearance;
    appearance.choose(choice);
    const QPalette palette = QApplication::palette();
    QCOMPARE(palette.color(QPalette::Text).lightness() > palette.color(QPalette::Base).lightness(),
             textIsLighter);
    QCOMPARE(CAppearance().choice(), choice);
    appearance.choose("system");
}

void AppearanceTest::testSystemBringsItsOwnColoursBack()
{
    const QPalette before = QApplication::palette();
    CAppearance appearance;
    appearance.choose("dark");
    QVERIFY(QApplication::palette().color(QPalette::Window) != before.color(QPalette::Window));
    appearance.choose("system");
    QCOMPARE(QApplication::palette().color(QPalette::Window), before.color(QPalette::Window));
    QCOMPARE(QApplication::palette().color(QPalette::Text), before.color(QPalette::Text));
}

void AppearanceTest::testUnknownChoiceCountsAsTheSystem()
{
    QSettings().setValue("MainWindow/Appearance", "pink");
    QCOMPARE(CAppearance().choice(), QString("system"));
}

QTEST_MAIN(AppearanceTest)

#include "AppearanceTest.moc"
