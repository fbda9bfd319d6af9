// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "CViewerProcess.h"

#include <QTest>

// The language of the viewer's own texts and of the plug-in's, in one run and the next.
class LanguageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testChoiceTakesEffectAtOnceInTheViewerAndInThePlugin_data();
    void testChoiceTakesEffectAtOnceInTheViewerAndInThePlugin();
    void testChoiceIsRemembered();
    void testLanguageOfTheSystemIsTheDefault();
    void testLanguageWithoutAFontIsNamedInTheLog_data();
    void testLanguageWithoutAFontIsNamedInTheLog();
};

namespace {

// What the script prints: an entry of the viewer, one of the plug-in, the plug-in's tab.
const QString printTexts = QStringLiteral("function texts() {\n"
                                          "    var text = {};\n"
                                          "    menu.list().forEach(function (entry) {\n"
                                          "        text[entry.id] = entry.text; });\n"
                                          "    print(text['NerixViewer.Action.Quit']);\n"
                                          "    print(text['UsageTracking.DataPrivacy']);\n"
                                          "    print(welcome.tabs()[0].title);\n"
                                          "}\n");

const QString withWindows = QStringLiteral("--show-windows");

QStringList english()
{
    return {"Quit", "Data Privacy", "Data Privacy"};
}

QStringList japanese()
{
    return {QStringLiteral(u"\u7d42\u4e86"),
            QStringLiteral(u"\u30c7\u30fc\u30bf\u30d7\u30e9\u30a4\u30d0\u30b7\u30fc"),
            QStringLiteral(u"\u30c7\u30fc\u30bf\u30d7\u30e9\u30a4\u30d0\u30b7\u30fc")};
}

} // namespace

void LanguageTest::testChoiceTakesEffectAtOnceInTheViewerAndInThePlugin_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<QStringList>("texts");
    QTest::newRow("ja") << "ja" << japanese();
    QTest::newRow("ko") << "ko"
                        << QStringList{QStringLiteral(u"\uc885\ub8cc"),
                                       QStringLiteral(u"\uac1c\uc778\uc815\ubcf4 \ubcf4\ud638"),
                                       QStringLiteral(u"\uac1c\uc778\uc815\ubcf4 \ubcf4\ud638")};
    QTest::newRow("zh") << "zh"
                        << QStringList{QStringLiteral(u"\u9000\u51fa"),
                                       QStringLiteral(u"\u6570\u636e\u9690\u79c1"),
                                       QStringLiteral(u"\u6570\u636e\u9690\u79c1")};
    QTest::newRow("en") << "en" << english();
}

void LanguageTest::testChoiceTakesEffectAtOnceInTheViewerAndInThePlugin()
{
    QFETCH(QString, code);
    QFETCH(QStringList, texts);
    CViewerProcess viewer;
    viewer.setOptions({withWindows});
    QCOMPARE(
        viewer.run(printTexts + "texts();\n"
                   + QStringLiteral("menu.trigger('NerixViewer.Action.Language.%1');\n").arg(code)
                   + "texts();\n"
                     "menu.trigger('NerixViewer.Action.Language.en');\n"
                     "texts();"),
        0);
    QCOMPARE(viewer.printed(), english() + texts + english());
}

void LanguageTest::testChoiceIsRemembered()
{
    CViewerProcess viewer;
    viewer.setOptions({withWindows});
    QCOMPARE(viewer.run("menu.trigger('NerixViewer.Action.Language.ja');"), 0);
    QCOMPARE(viewer.run(printTexts
                        + "texts();\n"
                          "menu.trigger('NerixViewer.Action.Language.System');\n"
                          "texts();"),
             0);
    QCOMPARE(viewer.printed(), japanese() + english());
    QVERIFY(!viewer.settings().contains("[Localization]"));
}

void LanguageTest::testLanguageOfTheSystemIsTheDefault()
{
    CViewerProcess viewer;
    viewer.setEnvironment("LC_ALL", "ja_JP.UTF-8");
    QCOMPARE(viewer.run(printTexts + "texts();"), 0);
    QCOMPARE(viewer.printed(), japanese());
}

void LanguageTest::testLanguageWithoutAFontIsNamedInTheLog_data()
{
    QTest::addColumn<QString>("fontFolder");
    QTest::addColumn<QString>("language");
    QTest::addColumn<int>("warnings");
    QTest::newRow("Japanese, all fonts of the machine") << "/usr/share/fonts"
                                                        << "ja_JP" << 0;
    for (const char *language : {"ja_JP", "ko_KR", "zh_CN"}) {
        QTest::addRow("%s, Latin letters alone", language)
            << "/usr/share/fonts/truetype/dejavu" << language << 1;
    }
    QTest::newRow("English, Latin letters alone") << "/usr/share/fonts/truetype/dejavu"
                                                  << "en_US" << 0;
}

void LanguageTest::testLanguageWithoutAFontIsNamedInTheLog()
{
    QFETCH(QString, fontFolder);
    QFETCH(QString, language);
    CViewerProcess viewer;
    QFile fonts(viewer.path("fonts.conf"));
    QVERIFY(fonts.open(QIODevice::WriteOnly));
    fonts.write("<fontconfig><dir>" + fontFolder.toUtf8() + "</dir><cachedir>"
                + viewer.path("cache").toUtf8() + "</cachedir></fontconfig>");
    fonts.close();
    viewer.setEnvironment("FONTCONFIG_FILE", fonts.fileName());
    viewer.setEnvironment("QT_QPA_PLATFORM", "offscreen");
    viewer.setEnvironment("LC_ALL", language + ".UTF-8");
    QCOMPARE(viewer.run("print(language.get());"), 0);
    const QStringList told =
        viewer.logged().filter("no font has the letters of the language \"" + language + "\"");
    QTEST(int(told.size()), "warnings");
}

QTEST_GUILESS_MAIN(LanguageTest)

#include "LanguageTest.moc"
