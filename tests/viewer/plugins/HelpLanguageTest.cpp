// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "HelpWindowFixture.h"
#include "support/CSettingsSandbox.h"

#include <CHelpHelper.h>

#include <QScrollBar>
#include <QSettings>
#include <QTest>
#include <QTextBlock>

using Plugin::Help::CHelpDocuments;

namespace {

void write(const QString &path)
{
    QFile document(path);
    QVERIFY(QDir().mkpath(QFileInfo(document).path()));
    QVERIFY(document.open(QIODevice::WriteOnly));
    QCOMPARE(document.write("text"), qint64(4));
}

} // namespace

// The documents are shown in the language of the viewer, as far as they are translated.
class HelpLanguageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void testDocumentIsInTheLanguageOfTheViewer_data();
    void testDocumentIsInTheLanguageOfTheViewer();
    void testDocumentOfALanguage_data();
    void testDocumentOfALanguage();
    void testDocumentFollowsAChangeOfTheLanguage();
    void testPlaceIsKeptWhenTheLanguageChanges();
    void testChangeOfTheLanguageShowsNoWindow();
    void testWayBackIsInTheNewLanguage();
    void testEntryOfTheDocumentInViewIsNoStepOfTheWay();
    void testButtonContentsIsInTheNewLanguage();
    void testLinkLeadsToTheTranslation();
    void testLinkToWhatIsNotTranslatedLeadsToEnglishAndBack();
    void testOtherFoldersAreNotRead_data();
    void testOtherFoldersAreNotRead();
    void testDocumentsOfTheViewerAreTranslated_data();
    void testDocumentsOfTheViewerAreTranslated();

private:
    QString title() const;

    std::unique_ptr<CSettingsSandbox> m_sandbox;
    std::unique_ptr<HelpWindowFixture> m_help;
};

void HelpLanguageTest::init()
{
    m_sandbox = std::make_unique<CSettingsSandbox>();
    m_help = std::make_unique<HelpWindowFixture>();
    m_help->write("ja/help.md", "# Mokuji\n\n[Kamera](cameras.md) [Hogo](../privacy.md)\n");
    m_help->write("ja/cameras.md", "# Kamera\n\n[Mokuji](help.md)\n");
    m_help->write("zh/help.md", "# Mulu\n");
}

void HelpLanguageTest::cleanup()
{
    m_help.reset();
    m_sandbox.reset();
}

QString HelpLanguageTest::title() const
{
    return m_help->window()->windowTitle();
}

void HelpLanguageTest::testDocumentIsInTheLanguageOfTheViewer_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QByteArray>("entry");
    QTest::addColumn<QString>("title");
    const QByteArray contents = "Help.Action.Contents";
    QTest::newRow("translated") << "ja" << contents << "Mokuji - Help";
    QTest::newRow("for every region") << "zh_CN" << contents << "Mulu - Help";
    QTest::newRow("document without a translation")
        << "ja" << QByteArray("Help.Action.PrivacyStatement") << "Privacy - Help";
    QTest::newRow("language without documents") << "ko" << contents << "The Contents - Help";
    QTest::newRow("English") << "en" << contents << "The Contents - Help";
}

void HelpLanguageTest::testDocumentIsInTheLanguageOfTheViewer()
{
    QFETCH(QString, language);
    QFETCH(QByteArray, entry);
    QSettings().setValue("Localization/Language", language);
    m_help->start();
    m_help->trigger(entry);
    QTEST(title(), "title");
}

void HelpLanguageTest::testDocumentOfALanguage_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("file");
    QTest::newRow("language") << "zh"
                              << "zh/help.md";
    QTest::newRow("region") << "zh_CN"
                            << "zh/help.md";
    QTest::newRow("region with a hyphen") << "zh-CN"
                                          << "zh/help.md";
    QTest::newRow("region with documents of its own") << "zh_TW"
                                                      << "zh_TW/help.md";
    QTest::newRow("without documents") << "de_DE"
                                       << "help.md";
    QTest::newRow("English") << "en"
                             << "help.md";
    QTest::newRow("none") << ""
                          << "help.md";
}

void HelpLanguageTest::testDocumentOfALanguage()
{
    QFETCH(QString, language);
    const QTemporaryDir folder;
    for (const char *name : {"help.md", "zh/help.md", "zh_TW/help.md"}) {
        write(folder.filePath(name));
    }
    const CHelpDocuments documents(folder.path(), [language] { return language; });
    const QString path = documents.path(CHelpHelper::HelpContents);
    QTEST(QDir(folder.path()).relativeFilePath(path), "file");
}

void HelpLanguageTest::testDocumentFollowsAChangeOfTheLanguage()
{
    m_help->start();
    m_help->trigger("Help.Action.Contents");
    QCOMPARE(title(), QStringLiteral("The Contents - Help"));
    m_help->setLanguage("ja");
    QCOMPARE(title(), QStringLiteral("Mokuji - Help"));
    QCOMPARE(m_help->browser()->toPlainText(), QStringLiteral("Mokuji\nKamera Hogo"));
    m_help->setLanguage("zh");
    QCOMPARE(title(), QStringLiteral("Mulu - Help"));
    m_help->setLanguage("ko");
    QCOMPARE(title(), QStringLiteral("The Contents - Help"));
}

void HelpLanguageTest::testPlaceIsKeptWhenTheLanguageChanges()
{
    const QByteArray words = QByteArray("Kotoba.\n\n").repeated(200);
    m_help->write("ja/privacy.md", "# Hogo\n\n" + words + "## Tekkai\n\n" + words);
    m_help->write("help.md", "# Contents\n\n[Go](privacy.md#how-to-withdraw)\n");
    m_help->start();
    m_help->trigger("Help.Action.Contents");
    m_help->press("Go");
    const int place = m_help->browser()->verticalScrollBar()->value();
    QVERIFY(place > 0);
    m_help->setLanguage("ja");
    QCOMPARE(title(), QStringLiteral("Hogo - Help"));
    const QTextCursor top = m_help->browser()->cursorForPosition({20, 20});
    QVERIFY2(qAbs(top.blockNumber() - 201) <= 2, qPrintable(top.block().text()));
}

void HelpLanguageTest::testChangeOfTheLanguageShowsNoWindow()
{
    m_help->start();
    m_help->setLanguage("ja");
    QVERIFY(!m_help->window());
    m_help->trigger("Help.Action.Contents");
    QTest::keyClick(m_help->browser(), Qt::Key_Escape);
    m_help->setLanguage("zh");
    QVERIFY(!m_help->window()->isVisible());
    QCOMPARE(title(), QStringLiteral("Mulu - Help"));
}

void HelpLanguageTest::testWayBackIsInTheNewLanguage()
{
    m_help->start();
    m_help->trigger("Help.Action.Contents");
    m_help->press("Cameras");
    m_help->setLanguage("ja");
    QCOMPARE(title(), QStringLiteral("Kamera - Help"));
    QTest::keyClick(m_help->browser(), Qt::Key_Left, Qt::AltModifier);
    QCOMPARE(title(), QStringLiteral("Mokuji - Help"));
    QTest::keyClick(m_help->browser(), Qt::Key_Right, Qt::AltModifier);
    QCOMPARE(title(), QStringLiteral("Kamera - Help"));
}

void HelpLanguageTest::testEntryOfTheDocumentInViewIsNoStepOfTheWay()
{
    m_help->start();
    m_help->trigger("Help.Action.Contents");
    m_help->setLanguage("ja");
    m_help->trigger("Help.Action.Contents");
    QCOMPARE(title(), QStringLiteral("Mokuji - Help"));
    QVERIFY(!m_help->browser()->isBackwardAvailable());
}

void HelpLanguageTest::testButtonContentsIsInTheNewLanguage()
{
    m_help->start();
    m_help->trigger("Help.Action.Cameras");
    QVERIFY(QTest::qWaitForWindowActive(m_help->window()));
    m_help->setLanguage("ja");
    QTest::keyClick(m_help->browser(), Qt::Key_Home, Qt::AltModifier);
    QCOMPARE(title(), QStringLiteral("Mokuji - Help"));
}

void HelpLanguageTest::testLinkLeadsToTheTranslation()
{
    m_help->start();
    m_help->setLanguage("ja");
    m_help->trigger("Help.Action.Contents");
    m_help->press("Kamera");
    QCOMPARE(title(), QStringLiteral("Kamera - Help"));
    QCOMPARE(m_help->browser()->toPlainText(), QStringLiteral("Kamera\nMokuji"));
}

void HelpLanguageTest::testLinkToWhatIsNotTranslatedLeadsToEnglishAndBack()
{
    m_help->write("privacy.md", "# Privacy\n\n[Contents](help.md)\n");
    m_help->start();
    m_help->setLanguage("ja");
    m_help->trigger("Help.Action.Contents");
    m_help->press("Hogo");
    QCOMPARE(title(), QStringLiteral("Privacy - Help"));
    m_help->press("Contents");
    QCOMPARE(title(), QStringLiteral("Mokuji - Help"));
}

void HelpLanguageTest::testOtherFoldersAreNotRead_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<bool>("isRead");
    QTest::newRow("English") << "docs/help.md" << true;
    QTest::newRow("a language") << "docs/ja/help.md" << true;
    QTest::newRow("elsewhere") << "help.md" << false;
    QTest::newRow("a folder whose name begins likewise") << "docs2/help.md" << false;
    QTest::newRow("from a language up and away") << "docs/ja/../../help.md" << false;
}

void HelpLanguageTest::testOtherFoldersAreNotRead()
{
    QFETCH(QString, file);
    QFETCH(bool, isRead);
    const QTemporaryDir folder;
    for (const char *name : {"docs/help.md", "docs/ja/help.md", "help.md", "docs2/help.md"}) {
        write(folder.filePath(name));
    }
    const CHelpDocuments documents(folder.filePath("docs"));
    QCOMPARE(documents.text(folder.filePath(file)), isRead ? QString("text") : QString());
}

void HelpLanguageTest::testDocumentsOfTheViewerAreTranslated_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("name");
    for (const char *language : {"ja", "ko", "zh"}) {
        const QString folder = QString(language) + '/';
        QTest::addRow("%s contents", language) << language << 0 << folder + "help.md";
        QTest::addRow("%s cameras", language) << language << 1 << folder + "cameras.md";
        QTest::addRow("%s features", language) << language << 2 << folder + "features.md";
        QTest::addRow("%s grabbing", language) << language << 3 << folder + "grabbing.md";
        QTest::addRow("%s licences", language) << language << 4 << "licenses.md";
        QTest::addRow("%s privacy", language) << language << 5 << folder + "privacy.md";
    }
}

void HelpLanguageTest::testDocumentsOfTheViewerAreTranslated()
{
    QFETCH(QString, language);
    QFETCH(int, type);
    QFETCH(QString, name);
    const CHelpDocuments documents(NERIX_DOCUMENTS, [language] { return language; });
    const QString path = documents.path(static_cast<CHelpHelper::HelpType>(type));
    QCOMPARE(path, NERIX_DOCUMENTS "/" + name);
    QVERIFY2(documents.text(path).startsWith("# "), qPrintable(documents.text(path).left(30)));
}

QTEST_MAIN(HelpLanguageTest)

#include "HelpLanguageTest.moc"
