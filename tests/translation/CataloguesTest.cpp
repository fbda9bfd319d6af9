// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// The catalogue sources of the plug-in and of the viewer: complete, up to date with the texts in
// the code and in the pages, with links, places and mnemonics as they are in English.

#include "Catalogue.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

namespace {

const QString folder = QStringLiteral(NERIX_SOURCE_DIR "/translation");

const QStringList catalogues{"UsageTracking", "NerixViewer"};
const QStringList languages{"ja", "ko", "zh"};

QString pathOf(const QString &inFolder, const QString &catalogue, const QString &language)
{
    return QStringLiteral("%1/%2_%3.ts").arg(inFolder, catalogue, language);
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList sourcesOf(const QString &catalogue, const QString &language)
{
    QStringList sources;
    for (const Message &message : messagesOf(contentOf(pathOf(folder, catalogue, language)))) {
        sources.append(message.context + QLatin1Char('|') + message.source);
    }
    return sources;
}

void addCatalogues()
{
    QTest::addColumn<QString>("catalogue");
    for (const QString &catalogue : catalogues) {
        QTest::newRow(qPrintable(catalogue)) << catalogue;
    }
}

const char link[] = "Our <a href=\"https://www.ostrand.example/faq\">FAQ</a>, <b>now</b>";

} // namespace

class CataloguesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testCatalogueIsComplete_data();
    void testCatalogueIsComplete();
    void testCatalogueOfThePluginHasItsTenMessages();
    void testCataloguesHoldTheSameTexts_data();
    void testCataloguesHoldTheSameTexts();
    void testEnglishCatalogueIsEmpty_data();
    void testEnglishCatalogueIsEmpty();
    void testCataloguesAreUpToDateWithTheSources_data();
    void testCataloguesAreUpToDateWithTheSources();
    void testUpdateFindsATextThatWasForgotten();

    void testFault_data();
    void testFault();
    void testBrokenCatalogueHasNoMessages();
};

void CataloguesTest::testCatalogueIsComplete_data()
{
    QTest::addColumn<QString>("catalogue");
    QTest::addColumn<QString>("language");
    for (const QString &catalogue : catalogues) {
        for (const QString &language : languages) {
            QTest::addRow("%s %s", qPrintable(catalogue), qPrintable(language))
                << catalogue << language;
        }
    }
}

void CataloguesTest::testCatalogueIsComplete()
{
    QFETCH(QString, catalogue);
    QFETCH(QString, language);
    const QList<Message> messages = messagesOf(contentOf(pathOf(folder, catalogue, language)));
    QVERIFY(!messages.isEmpty());
    QCOMPARE(faultsOf(messages), QStringList());
}

void CataloguesTest::testCatalogueOfThePluginHasItsTenMessages()
{
    QCOMPARE(sourcesOf("UsageTracking", "ja").size(), 10);
}

void CataloguesTest::testCataloguesHoldTheSameTexts_data()
{
    addCatalogues();
}

void CataloguesTest::testCataloguesHoldTheSameTexts()
{
    QFETCH(QString, catalogue);
    QCOMPARE(sourcesOf(catalogue, "ko"), sourcesOf(catalogue, "ja"));
    QCOMPARE(sourcesOf(catalogue, "zh"), sourcesOf(catalogue, "ja"));
}

void CataloguesTest::testEnglishCatalogueIsEmpty_data()
{
    addCatalogues();
}

void CataloguesTest::testEnglishCatalogueIsEmpty()
{
    QFETCH(QString, catalogue);
    const QByteArray english = contentOf(pathOf(folder, catalogue, "en"));
    QVERIFY(english.contains("<TS "));
    QVERIFY(!english.contains("<message"));
}

void CataloguesTest::testCataloguesAreUpToDateWithTheSources_data()
{
    addCatalogues();
}

// What the tool would change has been forgotten: a new text in a page or in the code, or one that
// is gone or was reworded.
void CataloguesTest::testCataloguesAreUpToDateWithTheSources()
{
    QFETCH(QString, catalogue);
    const QTemporaryDir copies;
    for (const QString &language : languages) {
        QVERIFY(QFile::copy(pathOf(folder, catalogue, language),
                            pathOf(copies.path(), catalogue, language)));
    }
    QCOMPARE(QProcess::execute(NERIX_SOURCE_DIR "/tools/update-translations.sh", {copies.path()}),
             0);
    for (const QString &language : languages) {
        const QByteArray updated = contentOf(pathOf(copies.path(), catalogue, language));
        const QStringList faults = faultsOf(messagesOf(updated));
        const QString remedy = QStringLiteral("run tools/update-translations.sh, and translate "
                                              "what is new:\n%1")
                                   .arg(faults.join('\n'));
        QVERIFY2(updated == contentOf(pathOf(folder, catalogue, language)), qPrintable(remedy));
    }
}

void CataloguesTest::testUpdateFindsATextThatWasForgotten()
{
    const QTemporaryDir copies;
    QByteArray catalogue = contentOf(pathOf(folder, "UsageTracking", "ja"));
    const int begin = catalogue.indexOf("    <message>");
    const int end = catalogue.indexOf("</message>\n", begin) + int(sizeof "</message>\n") - 1;
    QFile shortened(pathOf(copies.path(), "UsageTracking", "ja"));
    QVERIFY(shortened.open(QIODevice::WriteOnly));
    shortened.write(catalogue.remove(begin, end - begin));
    shortened.close();
    QCOMPARE(QProcess::execute(NERIX_SOURCE_DIR "/tools/update-translations.sh", {copies.path()}),
             0);
    const QStringList faults =
        faultsOf(messagesOf(contentOf(pathOf(copies.path(), "UsageTracking", "ja"))));
    QCOMPARE(faults, QStringList("not translated: DataPrivacy: At Ostrand, we are constantly "));
}

void CataloguesTest::testFault_data()
{
    QTest::addColumn<QString>("translation");
    QTest::addColumn<bool>("finished");
    QTest::addColumn<QStringList>("faults");

    const QStringList missing{"not translated: Page: Our <a href=\"https://www.ostra"};
    const QStringList links{"other links: Page: Our <a href=\"https://www.ostra"};
    const QStringList places{"other places: Page: Our <a href=\"https://www.ostra"};
    const QStringList mnemonics{"other mnemonic: Page: Our <a href=\"https://www.ostra"};
    const QStringList tags{"other tags: Page: Our <a href=\"https://www.ostra"};
    QTest::newRow("translated") << "Nos <a href=\"https://www.ostrand.example/faq\">FAQ</a>, "
                                   "<b>ici</b>"
                                << true << QStringList();
    QTest::newRow("emphasis may stand elsewhere")
        << "<b>Ici</b> nos <a href=\"https://www.ostrand.example/faq\">FAQ</a>" << true
        << QStringList();
    QTest::newRow("empty") << "" << true << missing;
    QTest::newRow("blank") << "  " << true << missing;
    QTest::newRow("not finished") << link << false << missing;
    QTest::newRow("another target")
        << "<a href=\"https://www.ostrand.example/fr\">FAQ</a> <b>ici</b>" << true << links;
    QTest::newRow("no link") << "Nos FAQ <b>ici</b>" << true << links;
    QTest::newRow("emphasis lost")
        << "<a href=\"https://www.ostrand.example/faq\">FAQ</a> ici" << true << tags;
    QTest::newRow("place lost") << "Nos <a href=\"https://www.ostrand.example/faq\">FAQ</a>, "
                                   "<b>ici</b> %1"
                                << true << places;
    QTest::newRow("mnemonic added")
        << "&Nos <a href=\"https://www.ostrand.example/faq\">FAQ</a>, <b>ici</b>" << true
        << mnemonics;
    QTest::newRow("emphasis not closed")
        << "<a href=\"https://www.ostrand.example/faq\">FAQ</a> <b>ici" << true << tags;
}

void CataloguesTest::testFault()
{
    QFETCH(QString, translation);
    QFETCH(bool, finished);
    const Message message{"Page", link, translation, finished};
    QTEST(faultsOf({message}), "faults");
}

void CataloguesTest::testBrokenCatalogueHasNoMessages()
{
    QVERIFY(messagesOf("").isEmpty());
    QVERIFY(messagesOf("<TS><context><name>Page</name><message><source>Text").isEmpty());
}

QTEST_GUILESS_MAIN(CataloguesTest)

#include "CataloguesTest.moc"
