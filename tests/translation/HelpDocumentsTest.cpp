// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// The documents of the help in each language of the viewer say what the English ones say, and name
// menus and buttons as the viewer does in that language.

#include "DocumentFaults.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTest>
#include <QTextDocument>

namespace {

const QString source = QStringLiteral(NERIX_SOURCE_DIR);

const QStringList languages{"ja", "ko", "zh"};
const QStringList documents{"cameras.md", "features.md", "grabbing.md", "help.md", "privacy.md"};

QByteArray contentOf(const QString &path)
{
    QFile file(source + QLatin1Char('/') + path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QList<Message> messagesIn(const QString &language)
{
    return messagesOf(contentOf(QStringLiteral("translation/NerixViewer_%1.ts").arg(language)))
           + messagesOf(contentOf(QStringLiteral("translation/UsageTracking_%1.ts").arg(language)));
}

QByteArray documentIn(const QString &language, const QString &document)
{
    return contentOf(QStringLiteral("docs/%1/%2").arg(language, document));
}

void addDocuments()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("document");
    for (const QString &language : languages) {
        for (const QString &document : documents) {
            QTest::addRow("%s %s", qPrintable(language), qPrintable(document))
                << language << document;
        }
    }
}

} // namespace

class HelpDocumentsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testEachLanguageHasTheSameDocuments_data();
    void testEachLanguageHasTheSameDocuments();
    void testDocumentSaysWhatTheEnglishOneSays_data();
    void testDocumentSaysWhatTheEnglishOneSays();
    void testLinksLeadToFilesThatAreThere_data();
    void testLinksLeadToFilesThatAreThere();
    void testNoMarkIsLeftInWhatIsShown_data();
    void testNoMarkIsLeftInWhatIsShown();
    void testStatementNamesTheButtonOfTheConsentPage_data();
    void testStatementNamesTheButtonOfTheConsentPage();

    void testNameOfAMenuEntry_data();
    void testNameOfAMenuEntry();
    void testFault_data();
    void testFault();
};

void HelpDocumentsTest::testEachLanguageHasTheSameDocuments_data()
{
    QTest::addColumn<QString>("language");
    for (const QString &language : languages) {
        QTest::newRow(qPrintable(language)) << language;
    }
}

void HelpDocumentsTest::testEachLanguageHasTheSameDocuments()
{
    QFETCH(QString, language);
    const QDir folder(source + QStringLiteral("/docs/") + language);
    QCOMPARE(folder.entryList(QDir::Files, QDir::Name), documents);
}

void HelpDocumentsTest::testDocumentSaysWhatTheEnglishOneSays_data()
{
    addDocuments();
}

void HelpDocumentsTest::testDocumentSaysWhatTheEnglishOneSays()
{
    QFETCH(QString, language);
    QFETCH(QString, document);
    const QByteArray english = contentOf(QStringLiteral("docs/") + document);
    const QStringList faults =
        faultsOf(english, documentIn(language, document), CWords(messagesIn(language)));
    const QString remedy = QStringLiteral("docs/%1/%2 does not follow docs/%2:\n%3")
                               .arg(language, document, faults.join('\n'));
    QVERIFY2(english.contains("\n# ") && faults.isEmpty(), qPrintable(remedy));
}

void HelpDocumentsTest::testLinksLeadToFilesThatAreThere_data()
{
    addDocuments();
}

// On a web page as in the help: a link to a document in English only leads a folder up.
void HelpDocumentsTest::testLinksLeadToFilesThatAreThere()
{
    QFETCH(QString, language);
    QFETCH(QString, document);
    const QDir folder(QStringLiteral("%1/docs/%2").arg(source, language));
    const QString text = QString::fromUtf8(documentIn(language, document));
    auto links = QRegularExpression(QStringLiteral("\\]\\(([^)]+)\\)")).globalMatch(text);
    QVERIFY(links.hasNext() || document == QLatin1String("privacy.md"));
    while (links.hasNext()) {
        const QString link = links.next().captured(1);
        QVERIFY2(folder.exists(link), qPrintable(link));
        QVERIFY2(!link.startsWith(QLatin1String("..")) || !folder.exists(link.mid(3)),
                 qPrintable(link));
    }
}

void HelpDocumentsTest::testNoMarkIsLeftInWhatIsShown_data()
{
    addDocuments();
}

// Where no spaces are written between words, Markdown does not see every mark as one.
void HelpDocumentsTest::testNoMarkIsLeftInWhatIsShown()
{
    QFETCH(QString, language);
    QFETCH(QString, document);
    QTextDocument shown;
    shown.setMarkdown(QString::fromUtf8(documentIn(language, document)));
    const QString text = shown.toPlainText().remove(QStringLiteral("***")); // what masks
    QVERIFY(text.size() > 300);
    for (const char mark : {'*', '`', '[', '#'}) {
        QVERIFY2(!text.contains(QLatin1Char(mark)), qPrintable(QString(QLatin1Char(mark))));
    }
}

void HelpDocumentsTest::testStatementNamesTheButtonOfTheConsentPage_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("button");
    QTest::newRow("ja") << "ja" << QStringLiteral(u"\u300c\u9069\u7528\u300d");
    QTest::newRow("ko") << "ko" << QStringLiteral(u"\"\uc801\uc6a9\"");
    QTest::newRow("zh") << "zh" << QStringLiteral(u"\u201c\u5e94\u7528\u201d");
}

void HelpDocumentsTest::testStatementNamesTheButtonOfTheConsentPage()
{
    QFETCH(QString, language);
    QFETCH(QString, button);
    QCOMPARE(contentOf("docs/privacy.md").count("Apply"), 2);
    QCOMPARE(QString::fromUtf8(documentIn(language, "privacy.md")).count(button), 2);
}

void HelpDocumentsTest::testNameOfAMenuEntry_data()
{
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QStringList>("names");
    const QString help = QStringLiteral(u"\ub3c4\uc6c0\ub9d0");
    QTest::newRow("without the mnemonic") << "Help" << QStringList(help);
    QTest::newRow("without the dots")
        << "Save Image" << QStringList(QStringLiteral(u"\uc774\ubbf8\uc9c0 \uc800\uc7a5"));
    QTest::newRow("in its menu")
        << "Help > Data Privacy"
        << QStringList(help + QStringLiteral(u" > \uac1c\uc778\uc815\ubcf4 \ubcf4\ud638"));
    QTest::newRow("no such entry") << "Help > Tripods" << QStringList();
    QTest::newRow("no such menu") << "Tripods > Help" << QStringList();
}

void HelpDocumentsTest::testNameOfAMenuEntry()
{
    QFETCH(QString, entry);
    QTEST(CWords(messagesIn("ko")).translationsOf(entry), "names");
}

void HelpDocumentsTest::testFault_data()
{
    QTest::addColumn<QByteArray>("english");
    QTest::addColumn<QByteArray>("translation");
    QTest::addColumn<QStringList>("faults");
    const auto row = [](const char *name, const char *english, const char *translation,
                        const QStringList &faults) {
        QTest::newRow(name) << QByteArray(english) << QByteArray(translation) << faults;
    };
    row("none", "# A\n\nB *c*\nd `e`", "# F\n\n`e` G **h**", {});
    row("heading lost", "# A\n\n## B", "# C\n\nD",
        {"block 2: \"paragraph\" instead of \"heading 2\""});
    row("level of a heading", "## A", "# B", {"block 1: \"heading 1\" instead of \"heading 2\""});
    row("item lost", "- a\n- b", "- c", {"block 2: \"\" instead of \"bullet\""});
    row("step added", "1. a\n", "1. c\n2. d", {"block 2: \"step\" instead of \"\""});
    row("cell lost", "| a | b |\n|---|---|", "| c |", {"block 1: \"row 1\" instead of \"row 2\""});
    row("code span", "- a `b` `b`", "- c `b`", {"block 1: other code"});
    row("line of code", "a\n\n    b --c", "d\n\n    b --d", {"block 2: other code"});
    row("link", "[a](b.md)", "[c](d.md)", {"block 1: other links"});
    row("link to what is not translated", "[a](b.md)", "[c](../b.md)", {});
    row("emphasis lost", "a *b*", "c", {"block 1: other emphasis"});
    row("several lines", "a\nb", "c\nd", {"block 1: more than one line"});
    row("item of several lines", "- a", "- c\n  d", {"block 1: more than one line"});
    row("number", "100,000 or 3", "3 or 10,000", {"block 1: number 100,000 is lost"});
    row("menu entry", "*View > Quit*", "**Blick > Ende**", {});
    row("another menu", "*View > Quit*", "**Sicht > Ende**",
        {"block 1: View > Quit is called Blick > Ende"});
    row("no such menu", "*Look > Quit*", "**Blick > Ende**", {"block 1: there is no Look > Quit"});
    row("first cell", "| Quit |", "| Schluss |", {"block 1: Quit is called Ende"});
    row("text of a link", "[Quit](q.md)", "[Schluss](q.md)", {"block 1: Quit is called Ende"});
    row("heading", "# Quit", "# Schluss", {"block 1: Quit is called Ende"});
    row("in quotes", "\"Quit\"", "<Schluss>", {"block 1: \"Quit\" is called Ende"});
    row("in other quotes", "\"Quit\"", "<Ende>", {});
    row("in quotes in every language", "\"Yes\"", "\"Ja\"", {"block 1: \"Yes\" is called Yes"});
}

void HelpDocumentsTest::testFault()
{
    QFETCH(QByteArray, english);
    QFETCH(QByteArray, translation);
    const CWords words({{"Menu", "&View", "Blick(&V)", true}, {"Menu", "&Quit...", "Ende", true}});
    QTEST(faultsOf(english, translation, words), "faults");
}

QTEST_MAIN(HelpDocumentsTest)

#include "HelpDocumentsTest.moc"
