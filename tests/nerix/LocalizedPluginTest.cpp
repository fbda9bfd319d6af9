// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include <Core/Plugin/ALocalizedPlugin.h>

#include <QCoreApplication>
#include <QEvent>
#include <QTest>

namespace {

class CPlugin : public Core::Plugin::ALocalizedPlugin
{
    Q_OBJECT

public:
    explicit CPlugin(const char *name)
    {
        setObjectName(QString::fromLatin1(name));
    }

    bool preInitialize(const QPointer<Core::Plugin::IPluginInitializer> &) override
    {
        return true;
    }
    bool initialize() override
    {
        return true;
    }
    bool uninitialize(const QPointer<Core::Plugin::IPluginInitializer> &) override
    {
        return true;
    }
};

/// The language of the catalogue that is in use; "catalogue" if none is.
QString shownText()
{
    return QCoreApplication::translate("Fixture", "catalogue");
}

/// Counts how often the texts of the application changed.
class CLanguageChanges : public QObject
{
    Q_OBJECT

public:
    CLanguageChanges()
    {
        QCoreApplication::instance()->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        count += event->type() == QEvent::LanguageChange ? 1 : 0;
        return QObject::eventFilter(watched, event);
    }

    int count = 0;
};

} // namespace

/// The catalogues are ja, en, zh and zh_TW.
class LocalizedPluginTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testLanguage_data();
    void testLanguage();
    void testCatalogueReplacesTheEarlierOne();
    void testUnknownLanguageRemovesTheEarlierOne();
    void testCatalogueIsRemovedWithThePlugin();
    void testCatalogueIsFoundByTheNameOfThePlugin();
    void testBrokenCatalogueIsNone();
    void testProgramHearsOfTheChange();
};

void LocalizedPluginTest::testLanguage_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<bool>("isFound");
    QTest::addColumn<QString>("shown");

    QTest::newRow("a language") << "ja" << true << "ja";
    QTest::newRow("the exact language is preferred") << "zh_TW" << true << "zh_TW";
    QTest::newRow("zh_CN falls back to zh") << "zh_CN" << true << "zh";
    QTest::newRow("en-US falls back to en") << "en-US" << true << "en";
    QTest::newRow("en_GB falls back to en") << "en_GB" << true << "en";
    QTest::newRow("a script is left out, too") << "zh_Hans_CN" << true << "zh";
    QTest::newRow("a hyphen is not an underscore, but falls back") << "zh-TW" << true << "zh";
    QTest::newRow("an unknown language shows the source texts") << "ko" << false << "catalogue";
    QTest::newRow("an unknown language with a country") << "ko_KR" << false << "catalogue";
    QTest::newRow("no language") << "" << false << "catalogue";
    QTest::newRow("a country alone") << "_CN" << false << "catalogue";
    QTest::newRow("languages are told apart by case") << "JA" << false << "catalogue";
    QTest::newRow("the beginning of a language") << "j" << false << "catalogue";
    QTest::newRow("a path is no language") << "../translation/Fixture_ja" << false << "catalogue";
}

void LocalizedPluginTest::testLanguage()
{
    QFETCH(QString, language);
    CPlugin plugin("Fixture");

    QTEST(plugin.setLanguage(language), "isFound");
    QTEST(shownText(), "shown");
}

void LocalizedPluginTest::testCatalogueReplacesTheEarlierOne()
{
    CPlugin plugin("Fixture");
    QVERIFY(plugin.setLanguage(QStringLiteral("ja")));
    QVERIFY(plugin.setLanguage(QStringLiteral("zh")));
    QCOMPARE(shownText(), QStringLiteral("zh"));

    // Nothing is left of the first one below it.
    QVERIFY(!plugin.setLanguage(QStringLiteral("ko")));
    QCOMPARE(shownText(), QStringLiteral("catalogue"));
}

void LocalizedPluginTest::testUnknownLanguageRemovesTheEarlierOne()
{
    CPlugin plugin("Fixture");
    QVERIFY(plugin.setLanguage(QStringLiteral("ja")));

    QVERIFY(!plugin.setLanguage(QStringLiteral("ko")));
    QCOMPARE(shownText(), QStringLiteral("catalogue"));
}

void LocalizedPluginTest::testCatalogueIsRemovedWithThePlugin()
{
    {
        CPlugin plugin("Fixture");
        QVERIFY(plugin.setLanguage(QStringLiteral("ja")));
    }
    QCOMPARE(shownText(), QStringLiteral("catalogue"));
}

void LocalizedPluginTest::testCatalogueIsFoundByTheNameOfThePlugin()
{
    CPlugin plugin("Other");
    QVERIFY(!plugin.setLanguage(QStringLiteral("ja")));

    plugin.setObjectName(QStringLiteral("Fixture"));
    QVERIFY(plugin.setLanguage(QStringLiteral("ja")));
}

void LocalizedPluginTest::testBrokenCatalogueIsNone()
{
    CPlugin plugin("Broken");

    QVERIFY(!plugin.setLanguage(QStringLiteral("en")));
}

void LocalizedPluginTest::testProgramHearsOfTheChange()
{
    CPlugin plugin("Fixture");
    CLanguageChanges changes;

    QVERIFY(plugin.setLanguage(QStringLiteral("ja")));
    QTRY_VERIFY(changes.count > 0);
}

QTEST_GUILESS_MAIN(LocalizedPluginTest)
#include "LocalizedPluginTest.moc"
