// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/localization/LocalizationPlugin.h"

#include "support/CSettingsSandbox.h"
#include "support/Texts.h"

#include <Core/Plugin/ServiceLookup.h>

#include <pluginsystem/CServiceRegistry.h>

#include <QLocale>
#include <QSignalSpy>
#include <QTest>

using Plugin::Localization::CLocalizationPlugin;
using Plugin::Localization::ILanguageService;

class LocalizationPluginTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void testSystemLanguageIsTheDefault();
    void testLanguageOfTheSettingsIsSetBeforeOthersMakeTheirTexts();
    void testNewLanguageTakesEffectAtOnceAndIsKept();
    void testEmptyLanguageFollowsTheSystemAgain();
    void testChoiceIsEmptyWhileTheSystemIsFollowed();
    void testLanguageMayNameACountry_data();
    void testLanguageMayNameACountry();
    void testUnknownLanguageIsRefused_data();
    void testUnknownLanguageIsRefused();
    void testUnknownLanguageOfTheSettingsIsNotFollowed();
    void testTextsOfQtFollow_data();
    void testTextsOfQtFollow();

private:
    void start();

    QScopedPointer<CSettingsSandbox> m_sandbox;
    PluginSystem::CServiceRegistry m_registry;
    QScopedPointer<CLocalizationPlugin> m_plugin;
    QSharedPointer<ILanguageService> m_service;
    QStringList m_languages;
};

namespace {

const QString languageKey = QStringLiteral("Localization/Language");

} // namespace

void LocalizationPluginTest::init()
{
    m_sandbox.reset(new CSettingsSandbox);
    m_languages.clear();
}

void LocalizationPluginTest::cleanup()
{
    m_service.reset();
    QVERIFY(m_plugin->uninitialize(&m_registry));
    QVERIFY(!Core::Plugin::findService<ILanguageService>(&m_registry));
    m_plugin.reset();
}

void LocalizationPluginTest::start()
{
    m_plugin.reset(
        new CLocalizationPlugin([this](const QString &language) { m_languages.append(language); }));
    QVERIFY(m_plugin->preInitialize(&m_registry));
    m_service = Core::Plugin::findService<ILanguageService>(&m_registry);
}

void LocalizationPluginTest::testSystemLanguageIsTheDefault()
{
    start();
    QCOMPARE(m_service->language(), QStringLiteral("en"));
    QCOMPARE(m_languages, texts({"en"}));
}

void LocalizationPluginTest::testLanguageOfTheSettingsIsSetBeforeOthersMakeTheirTexts()
{
    QSettings().setValue(languageKey, QStringLiteral("zh_CN"));
    start();
    QCOMPARE(m_languages, texts({"zh_CN"}));
}

void LocalizationPluginTest::testNewLanguageTakesEffectAtOnceAndIsKept()
{
    start();
    const QSignalSpy changed(m_service.data(), &ILanguageService::languageChanged);
    m_service->setLanguage(QStringLiteral("ja"));
    QCOMPARE(m_languages, texts({"en", "ja"}));
    QCOMPARE(m_service->language(), QStringLiteral("ja"));
    QCOMPARE(QSettings().value(languageKey), QVariant(QStringLiteral("ja")));
    QCOMPARE(changed, QList<QVariantList>({{QStringLiteral("ja")}}));
}

void LocalizationPluginTest::testEmptyLanguageFollowsTheSystemAgain()
{
    QSettings().setValue(languageKey, QStringLiteral("ko"));
    start();
    m_service->setLanguage({});
    QCOMPARE(m_languages, texts({"ko", "en"}));
    QVERIFY(!QSettings().contains(languageKey));
}

void LocalizationPluginTest::testChoiceIsEmptyWhileTheSystemIsFollowed()
{
    start();
    QCOMPARE(m_service->choice(), QString());
    m_service->setLanguage(QStringLiteral("en"));
    QCOMPARE(m_service->choice(), QStringLiteral("en"));
}

void LocalizationPluginTest::testLanguageMayNameACountry_data()
{
    QTest::addColumn<QString>("language");
    QTest::newRow("as a locale") << "zh_CN";
    QTest::newRow("with a hyphen") << "zh-CN";
    QTest::newRow("with its script") << "zh_Hans_CN";
}

void LocalizationPluginTest::testLanguageMayNameACountry()
{
    QFETCH(QString, language);
    start();
    QVERIFY(m_service->setLanguage(language));
    QCOMPARE(m_languages, QStringList({"en", language}));
}

void LocalizationPluginTest::testUnknownLanguageIsRefused_data()
{
    QTest::addColumn<QString>("language");
    QTest::newRow("of no country") << "klingon";
    QTest::newRow("without a catalogue") << "de_DE";
    QTest::newRow("in other letters") << "JA";
    QTest::newRow("the country alone") << "_JP";
}

void LocalizationPluginTest::testUnknownLanguageIsRefused()
{
    QFETCH(QString, language);
    QSettings().setValue(languageKey, QStringLiteral("ko"));
    start();
    QVERIFY(!m_service->setLanguage(language));
    QCOMPARE(m_languages, texts({"ko"}));
    QCOMPARE(QSettings().value(languageKey), QVariant(QStringLiteral("ko")));
    QCOMPARE(m_service->languages(), texts({"en", "ja", "ko", "zh"}));
}

void LocalizationPluginTest::testUnknownLanguageOfTheSettingsIsNotFollowed()
{
    QSettings().setValue(languageKey, QStringLiteral("klingon"));
    QTest::ignoreMessage(QtWarningMsg,
                         "there is no language \"klingon\", which the settings name; the viewer "
                         "follows the system: choose one of en, ja, ko, zh");
    start();
    QCOMPARE(m_languages, texts({"en"}));
    QCOMPARE(m_service->language(), QStringLiteral("en"));
    QCOMPARE(m_service->choice(), QString());
}

void LocalizationPluginTest::testTextsOfQtFollow_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("cancel");
    QTest::newRow("ja") << "ja" << QStringLiteral(u"\u30ad\u30e3\u30f3\u30bb\u30eb");
    QTest::newRow("ko") << "ko" << QStringLiteral(u"\ucde8\uc18c");
    QTest::newRow("zh") << "zh" << QStringLiteral(u"\u53d6\u6d88");
    QTest::newRow("zh_CN") << "zh_CN" << QStringLiteral(u"\u53d6\u6d88");
}

// They are Qt's own catalogues, a package beside Qt.
void LocalizationPluginTest::testTextsOfQtFollow()
{
    QFETCH(QString, language);
    start();
    const auto cancel = [] { return QCoreApplication::translate("QPlatformTheme", "Cancel"); };
    QCOMPARE(cancel(), QStringLiteral("Cancel"));
    m_service->setLanguage(language);
    QTEST(cancel(), "cancel");
    m_service->setLanguage(QStringLiteral("en"));
    QCOMPARE(cancel(), QStringLiteral("Cancel"));
}

int main(int argc, char **argv)
{
    qputenv("LC_ALL", "C");
    QCoreApplication application(argc, argv);
    LocalizationPluginTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "LocalizationPluginTest.moc"
