// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// The catalogue sources: complete, up to date with the texts of the plug-in, links untouched.

#include "Catalogue.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

namespace {

const QString folder = QStringLiteral(NERIX_SOURCE_DIR "/translation");

QString pathOf(const QString &inFolder, const QString &language)
{
    return QStringLiteral("%1/UsageTracking_%2.ts").arg(inFolder, language);
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList sourcesOf(const QString &language)
{
    QStringList sources;
    for (const Message &message : messagesOf(contentOf(pathOf(folder, language)))) {
        sources.append(message.context + QLatin1Char('|') + message.source);
    }
    return sources;
}

void addLanguages()
{
    QTest::addColumn<QString>("language");
    for (const char *language : {"ja", "ko", "zh"}) {
        QTest::newRow(language) << QString::fromLatin1(language);
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
    void testCataloguesHoldTheSameTexts();
    void testEnglishCatalogueIsEmpty();
    void testCataloguesAreUpToDateWithThePlugin();
    void testUpdateFindsATextThatWasForgotten();

    void testFault_data();
    void testFault();
    void testBrokenCatalogueHasNoMessages();
};

void CataloguesTest::testCatalogueIsComplete_data()
{
    addLanguages();
}

void CataloguesTest::testCatalogueIsComplete()
{
    QFETCH(QString, language);
    const QList<Message> messages = messagesOf(contentOf(pathOf(folder, language)));
    QCOMPARE(messages.size(), 10);
    QCOMPARE(faultsOf(messages), QStringList());
}

void CataloguesTest::testCataloguesHoldTheSameTexts()
{
    QCOMPARE(sourcesOf("ko"), sourcesOf("ja"));
    QCOMPARE(sourcesOf("zh"), sourcesOf("ja"));
}

void CataloguesTest::testEnglishCatalogueIsEmpty()
{
    const QByteArray english = contentOf(pathOf(folder, "en"));
    QVERIFY(english.contains("<TS "));
    QVERIFY(!english.contains("<message"));
}

// What the tool would change has been forgotten: a new text in the page or in the code, or one that
// is gone or was reworded.
void CataloguesTest::testCataloguesAreUpToDateWithThePlugin()
{
    const QTemporaryDir copies;
    const QStringList languages{"ja", "ko", "zh"};
    for (const QString &language : languages) {
        QVERIFY(QFile::copy(pathOf(folder, language), pathOf(copies.path(), language)));
    }
    QCOMPARE(QProcess::execute(NERIX_SOURCE_DIR "/tools/update-translations.sh", {copies.path()}),
             0);
    for (const QString &language : languages) {
        QVERIFY2(contentOf(pathOf(copies.path(), language)) == contentOf(pathOf(folder, language)),
                 "run tools/update-translations.sh, and translate what is new");
    }
}

void CataloguesTest::testUpdateFindsATextThatWasForgotten()
{
    const QTemporaryDir copies;
    QByteArray catalogue = contentOf(pathOf(folder, "ja"));
    const int begin = catalogue.indexOf("    <message>");
    const int end = catalogue.indexOf("</message>\n", begin) + int(sizeof "</message>\n") - 1;
    QFile shortened(pathOf(copies.path(), "ja"));
    QVERIFY(shortened.open(QIODevice::WriteOnly));
    shortened.write(catalogue.remove(begin, end - begin));
    shortened.close();
    QCOMPARE(QProcess::execute(NERIX_SOURCE_DIR "/tools/update-translations.sh", {copies.path()}),
             0);
    const QStringList faults = faultsOf(messagesOf(contentOf(pathOf(copies.path(), "ja"))));
    QCOMPARE(faults, QStringList("not translated: DataPrivacy: At Ostrand, we are constantly "));
}

void CataloguesTest::testFault_data()
{
    QTest::addColumn<QString>("translation");
    QTest::addColumn<bool>("finished");
    QTest::addColumn<QStringList>("faults");

    const QStringList missing{"not translated: Page: Our <a href=\"https://www.ostra"};
    const QStringList links{"other links: Page: Our <a href=\"https://www.ostra"};
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
