// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "CViewerProcess.h"

#include <QTest>

// The entry "Data Privacy" of the Help menu, and the links of the page behind it.
class HelpEntryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testEntryStandsInTheSupportGroupOfTheHelpMenu();
    void testEntryReopensThePage();
    void testMainWindowDoesNotWaitForThePage();
    void testPrivacyStatementIsShown();
    void testPrivacyStatementIsShownInTheLanguageOfTheViewer_data();
    void testPrivacyStatementIsShownInTheLanguageOfTheViewer();
    void testOtherLinksAreWebAddresses();
    void testAddressThatIsNoWebAddressIsRefused();
};

void HelpEntryTest::testEntryStandsInTheSupportGroupOfTheHelpMenu()
{
    CViewerProcess viewer;
    QCOMPARE(viewer.run("menu.list().forEach(function (entry) {\n"
                        "    if (entry.id === 'UsageTracking.DataPrivacy')\n"
                        "        print(entry.text, entry.menu, entry.group, entry.enabled);\n"
                        "});"),
             0);
    QCOMPARE(viewer.printed(), QStringList({"Data Privacy NerixViewer.Menu.Help "
                                            "NerixViewer.Group.Help.Support true"}));
}

void HelpEntryTest::testEntryReopensThePage()
{
    CViewerProcess viewer;
    viewer.storeConsent(true, false);
    QCOMPARE(viewer.run("print(welcome.close(), welcome.visible());\n"
                        "menu.trigger('UsageTracking.DataPrivacy');\n"
                        "print(welcome.visible(), welcome.currentTab());"),
             0);
    QCOMPARE(viewer.printed(),
             QStringList({"true false", "true UsageTracking.NerixWelcome.DataPrivacy"}));
}

void HelpEntryTest::testMainWindowDoesNotWaitForThePage()
{
    CViewerProcess viewer;
    viewer.setOptions({"--show-windows"});
    viewer.setEnvironment("QT_QPA_PLATFORM", "offscreen");
    QCOMPARE(viewer.run("print(welcome.visible(), windows.titles());\n"
                        "waitUntil(function () { return windows.titles().length === 2; }, 60000);\n"
                        "print(windows.titles());"),
             0);
    QCOMPARE(viewer.printed(),
             QStringList({"true Nerix Viewer", "Nerix Viewer,Welcome to the Nerix Viewer"}));
}

void HelpEntryTest::testPrivacyStatementIsShown()
{
    CViewerProcess viewer;
    QCOMPARE(viewer.run("consent.openLink('DataPrivacy.txt'); print(help.lastShown());"), 0);
    const QString document = NERIX_BUILD_DIR "/share/doc/nerix-viewer/privacy.md";
    QCOMPARE(viewer.printed(), QStringList({document}));
    QCOMPARE(viewer.logged(), QStringList({"help document: " + document}));
    QFile file(document);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll().contains("# Privacy statement"));
}

void HelpEntryTest::testPrivacyStatementIsShownInTheLanguageOfTheViewer_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("document");
    QTest::newRow("ja") << "ja_JP.UTF-8"
                        << "ja/privacy.md";
    QTest::newRow("ko") << "ko_KR.UTF-8"
                        << "ko/privacy.md";
    QTest::newRow("zh") << "zh_CN.UTF-8"
                        << "zh/privacy.md";
    QTest::newRow("a language that the viewer does not speak") << "de_DE.UTF-8"
                                                               << "privacy.md";
}

void HelpEntryTest::testPrivacyStatementIsShownInTheLanguageOfTheViewer()
{
    QFETCH(QString, locale);
    QFETCH(QString, document);
    CViewerProcess viewer;
    viewer.setEnvironment("LC_ALL", locale);
    QCOMPARE(viewer.run("consent.openLink('DataPrivacy.txt'); print(help.lastShown());"), 0);
    const QString path = NERIX_BUILD_DIR "/share/doc/nerix-viewer/" + document;
    QCOMPARE(viewer.printed(), QStringList({path}));
    QCOMPARE(viewer.logged(), QStringList({"help document: " + path}));
}

void HelpEntryTest::testOtherLinksAreWebAddresses()
{
    CViewerProcess viewer;
    QCOMPARE(viewer.run("consent.openLink('https://ostrand.example/faq');\n"
                        "print(help.lastShown());"),
             0);
    QCOMPARE(viewer.printed(), QStringList({"https://ostrand.example/faq"}));
}

void HelpEntryTest::testAddressThatIsNoWebAddressIsRefused()
{
    CViewerProcess viewer;
    QCOMPARE(viewer.run("try {\n"
                        "    consent.openLink('file:///etc/passwd');\n"
                        "} catch (error) {\n"
                        "    print(error.message);\n"
                        "}\n"
                        "print(help.lastShown());"),
             0);
    QCOMPARE(viewer.printed(),
             QStringList({"link \"file:///etc/passwd\" was not opened, the log says why: give "
                          "DataPrivacy.txt, or an http, https or mailto address",
                          ""}));
    QCOMPARE(viewer.logged(), QStringList({"warning: not opened: file:///etc/passwd (only http, "
                                           "https and mailto addresses are)"}));
}

QTEST_GUILESS_MAIN(HelpEntryTest)

#include "HelpEntryTest.moc"
