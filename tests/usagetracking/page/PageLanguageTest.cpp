// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// The texts of the page in English, letter by letter, and what changes with the language while the
// page is open.

#include "ConsentPage.h"
#include "TestMain.h"

#include <QSignalSpy>

namespace {

const char apply[] = "applyButton";

QMap<QString, QString> textsOf(const ConsentPage &page)
{
    QMap<QString, QString> texts;
    for (const char *name :
         {"selectTrackingLabelTop", "selectTrackingLabelBottom", "trackingLabelOne",
          "trackingLabelTwo", "applyButton", "closeButton", "showOnStartCheckBox"}) {
        texts.insert(QString::fromLatin1(name), page.of(name, "text").toString());
    }
    return texts;
}

} // namespace

class PageLanguageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        storeAnswer(true);
    }

    void englishTexts_data()
    {
        QTest::addColumn<bool>("yes");
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QString>("text");
        QTest::newRow("intro, with a grave accent in won`t")
            << true << QByteArray("selectTrackingLabelTop")
            << QStringLiteral(
                   "At Ostrand, we are constantly investing in our products and services. To learn "
                   "more about how our customers use our features and camera models, we started "
                   "our product improvement program. It helps us to tailor our products to your "
                   "needs and optimize your experience with Ostrand. We will not gather any "
                   "personal data and your system performance won`t be affected.<br/><h3>Would you "
                   "like to participate in our product improvement program?</h3>");
        QTest::newRow("thank-you")
            << true << QByteArray("selectTrackingLabelBottom")
            << QStringLiteral(
                   "Thank you. We will work hard to improve nerix and our cameras even "
                   "further!<br/><br/>Our promise to you:<br/><ul><li><b>Benefit from "
                   "improvements</b> that will save you time in your own product "
                   "development.</li><li><b>Influence the development of new technologies</b> by "
                   "participating in the program.</li><li><b>Be more competitive</b> with a user "
                   "experience, features, and products tailored to your "
                   "needs.</li></ul><br/>Any comments or concerns? <a "
                   "href=\"https://www.ostrand.example/support/contact\">Let us know</a>");
        QTest::newRow("sorry, with typographic apostrophes")
            << false << QByteArray("selectTrackingLabelBottom")
            << QStringLiteral(
                   "Sorry to hear that. Are you sure?<br/><ul><li>Don\u2019t <b>delay your "
                   "time-to-market</b> due to a user experience optimized to "
                   "others.</li><li>Don\u2019t <b>minimize your influence</b> on the development "
                   "of <b>new technologies</b>.</li><li>Don\u2019t <b>lose your competitive "
                   "advantage</b> through features and cameras not tailored to "
                   "you.</li></ul><br/>Please reconsider and participate in our improvement "
                   "program.<br/><br/>Any comments or concerns? <a "
                   "href=\"https://www.ostrand.example/support/contact\">Let us know</a>");
        QTest::newRow("withdraw hint")
            << true << QByteArray("trackingLabelOne")
            << QStringLiteral("You can withdraw your consent anytime. Click <b>Help > Data "
                              "Privacy</b> and change your selection.");
        QTest::newRow("more information")
            << true << QByteArray("trackingLabelTwo")
            << QStringLiteral("For more information, read our <a "
                              "href=\"DataPrivacy.txt\">privacy statement</a> and <a "
                              "href=\"https://www.ostrand.example/faq\">FAQs</a>. Our <a "
                              "href=\"https://www.ostrand.example/support/contact\">support</a> "
                              "team is happy to answer your questions.");
        QTest::newRow("Apply") << true << QByteArray(apply) << "Apply";
        QTest::newRow("Close") << true << QByteArray("closeButton") << "Close";
        QTest::newRow("show on launch")
            << true << QByteArray("showOnStartCheckBox") << "Show this window on launch";
        QTest::newRow("yes") << true << QByteArray("yesCheckbox") << "Yes";
        QTest::newRow("no") << true << QByteArray("noCheckbox") << "No";
    }

    void englishTexts()
    {
        QFETCH(bool, yes);
        QFETCH(QByteArray, name);
        storeAnswer(yes);
        const ConsentPage page;
        QTEST(page.of(name.constData(), "text").toString(), "text");
    }

    void openPageChangesItsLanguage_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("applyText");
        QTest::addColumn<QString>("title");
        QTest::newRow("ja") << "ja" << QStringLiteral(u"\u9069\u7528")
                            << QStringLiteral(u"\u30c7\u30fc\u30bf\u30d7\u30e9\u30a4\u30d0\u30b7"
                                              u"\u30fc");
        QTest::newRow("ko") << "ko" << QStringLiteral(u"\uc801\uc6a9")
                            << QStringLiteral(u"\uac1c\uc778\uc815\ubcf4 \ubcf4\ud638");
        QTest::newRow("zh") << "zh" << QStringLiteral(u"\u5e94\u7528")
                            << QStringLiteral(u"\u6570\u636e\u9690\u79c1");
        QTest::newRow("zh_CN") << "zh_CN" << QStringLiteral(u"\u5e94\u7528")
                               << QStringLiteral(u"\u6570\u636e\u9690\u79c1");
    }

    void openPageChangesItsLanguage()
    {
        QFETCH(QString, language);
        QFETCH(QString, title);
        const ConsentPage page;
        const auto *tab = page.welcome.currentTab();
        const QSignalSpy titleChanged(tab, &Plugin::NerixWelcome::INerixWelcomeTab::titleChanged);
        const QMap<QString, QString> english = textsOf(page);

        QVERIFY(page.fixture.plugin->setLanguage(language));
        QTEST(page.of(apply, "text").toString(), "applyText");
        QCOMPARE(tab->tabTitle(), title);
        QCOMPARE(titleChanged.count(), 1);
        QCOMPARE(page.fixture.host.menu->registeredAction->text(), title);
        const QMap<QString, QString> translated = textsOf(page);
        for (auto text = english.cbegin(); text != english.cend(); ++text) {
            QVERIFY2(translated.value(text.key()) != text.value(), qPrintable(text.key()));
        }
        QCOMPARE(page.of("yesCheckbox", "text").toString(), QStringLiteral("Yes"));
        QCOMPARE(page.of("noCheckbox", "text").toString(), QStringLiteral("No"));

        QVERIFY(page.fixture.plugin->setLanguage(QStringLiteral("en")));
        QCOMPARE(textsOf(page), english);
        QCOMPARE(tab->tabTitle(), QStringLiteral("Data Privacy"));
        QCOMPARE(page.fixture.host.menu->registeredAction->text(), QStringLiteral("Data Privacy"));
    }

    void sorryChangesItsLanguage_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("beginning");
        QTest::newRow("ja") << "ja" << QStringLiteral(u"\u6b8b\u5ff5\u3067\u3059\u3002");
        QTest::newRow("ko") << "ko" << QStringLiteral(u"\uc544\uc27d\uc2b5\ub2c8\ub2e4.");
        QTest::newRow("zh") << "zh" << QStringLiteral(u"\u5f88\u9057\u61be\u3002");
        QTest::newRow("zh_CN") << "zh_CN" << QStringLiteral(u"\u5f88\u9057\u61be\u3002");
    }

    void sorryChangesItsLanguage()
    {
        QFETCH(QString, language);
        QFETCH(QString, beginning);
        storeAnswer(false);
        const ConsentPage page;
        const auto begins = [&](const QString &text) {
            return page.of("selectTrackingLabelBottom", "text").toString().startsWith(text);
        };
        QVERIFY(begins(QStringLiteral("Sorry to hear that.")));
        QVERIFY(page.fixture.plugin->setLanguage(language));
        QVERIFY(begins(beginning));
        QVERIFY(page.fixture.plugin->setLanguage(QStringLiteral("en")));
        QVERIFY(begins(QStringLiteral("Sorry to hear that.")));
    }

    void answerStaysWhenTheLanguageChanges()
    {
        ConsentPage page;
        page.click("noCheckbox");
        QVERIFY(page.fixture.plugin->setLanguage(QStringLiteral("ja")));
        QVERIFY(page.of("noCheckbox", "checked").toBool());
        QVERIFY(page.of(apply, "enabled").toBool());
        QVERIFY(page.fixture.controller()->appliedOptInEnabled());
    }

    void languageThatIsThereAlreadyIsNoChangeOfTheTitle()
    {
        const ConsentPage page;
        const QSignalSpy titleChanged(page.welcome.currentTab(),
                                      &Plugin::NerixWelcome::INerixWelcomeTab::titleChanged);
        QVERIFY(page.fixture.plugin->setLanguage(QStringLiteral("en")));
        QVERIFY(!page.fixture.plugin->setLanguage(QStringLiteral("fr")));
        QCOMPARE(titleChanged.count(), 0);
        QCOMPARE(page.welcome.currentTab()->tabTitle(), QStringLiteral("Data Privacy"));
    }

    void pageOpenedLaterIsInTheLanguageToo()
    {
        ConsentPage page;
        QVERIFY(page.fixture.plugin->setLanguage(QStringLiteral("zh")));
        page.reload();
        QCOMPARE(page.of(apply, "text").toString(), QStringLiteral(u"\u5e94\u7528"));
    }
};

NERIX_TEST_MAIN(PageLanguageTest)
#include "PageLanguageTest.moc"
