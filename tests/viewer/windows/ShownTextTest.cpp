// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "windows/ShownText.h"

#include "windows/CPlainLabel.h"
#include "windows/MessageBox.h"

#include <QDirIterator>
#include <QRegularExpression>
#include <QTest>
#include <QTextDocument>

using Windows::shownLine;
using Windows::shownText;
using Windows::toolTipText;

class ShownTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testCharactersThatNobodySeesAreWrittenOut_data();
    void testCharactersThatNobodySeesAreWrittenOut();
    void testWhatIsShownStaysAsItIsWhenItIsShownAgain();
    void testLinesAreKeptInATextOnly();
    void testWhatIsTooLongEndsWithAnEllipsis_data();
    void testWhatIsTooLongEndsWithAnEllipsis();
    void testToolTipIsReadAsItIs_data();
    void testToolTipIsReadAsItIs();
    void testLabelIsPlain();
    void testMessageBoxIsPlain();
    void testSourcesShowTextsByTheseMeansOnly_data();
    void testSourcesShowTextsByTheseMeansOnly();
};

void ShownTextTest::testCharactersThatNobodySeesAreWrittenOut_data()
{
    QTest::addColumn<QString>("foreign");
    QTest::addColumn<QString>("shown");
    const auto row = [](const char *name, const QString &foreign, const char *shown) {
        QTest::newRow(name) << foreign << QString::fromUtf8(shown);
    };
    row("nothing to do", QString::fromUtf8("Räder 左 😀 <b> & \\n"), "Räder 左 😀 <b> & \\n");
    row("empty", QString(), "");
    row("end of a line", "a\nb\r\n", "a\\nb\\r\\n");
    row("tabulator", "a\tb", "a\\tb");
    row("zero", QString("a") + QChar(0) + "b", "a\\u{0}b");
    row("command to a terminal", "\x1b[2J", "\\u{1b}[2J");
    row("second half of the control characters", QString(QChar(0x9b)), "\\u{9b}");
    row("override of the direction", QString::fromUtf8("a\u202egnp.exe"), "a\\u{202e}gnp.exe");
    row("isolation", QString::fromUtf8("\u2066a\u2069"), "\\u{2066}a\\u{2069}");
    row("marks of the direction", QString::fromUtf8("\u200e\u200f\u061c"),
        "\\u{200e}\\u{200f}\\u{61c}");
    row("no width", QString::fromUtf8("a\u200bb\ufeff"), "a\\u{200b}b\\u{feff}");
    row("separators of lines and paragraphs", QString::fromUtf8("a\u2028b\u2029"),
        "a\\u{2028}b\\u{2029}");
    row("tag above the first plane", QString::fromUtf8("a\U000e0041"), "a\\u{e0041}");
    row("half a pair", QString("a") + QChar(0xd83d) + "b", "a\uFFFDb");
}

void ShownTextTest::testCharactersThatNobodySeesAreWrittenOut()
{
    QFETCH(QString, foreign);
    QFETCH(QString, shown);
    QCOMPARE(shownLine(foreign), shown);
}

void ShownTextTest::testWhatIsShownStaysAsItIsWhenItIsShownAgain()
{
    const QString once = shownLine(QString::fromUtf8("a\n\u202eb\\"));
    QCOMPARE(shownLine(once), once);
    QCOMPARE(shownText(once), once);
}

void ShownTextTest::testLinesAreKeptInATextOnly()
{
    QCOMPARE(shownText("a\nb\tc"), QString("a\nb\\tc"));
    QCOMPARE(shownLine("a\nb\tc"), QString("a\\nb\\tc"));
}

void ShownTextTest::testWhatIsTooLongEndsWithAnEllipsis_data()
{
    QTest::addColumn<QString>("foreign");
    QTest::addColumn<QString>("shown");
    QTest::newRow("as long as allowed") << "1234"
                                        << "1234";
    QTest::newRow("one more") << "12345" << QString::fromUtf8("1234…");
    QTest::newRow("no half character") << QString::fromUtf8("123😀5") << QString::fromUtf8("123…");
    QTest::newRow("written out it may be longer") << "\x1b\x1b\x1b\x1b"
                                                  << "\\u{1b}\\u{1b}\\u{1b}\\u{1b}";
}

void ShownTextTest::testWhatIsTooLongEndsWithAnEllipsis()
{
    QFETCH(QString, foreign);
    QFETCH(QString, shown);
    QCOMPARE(shownLine(foreign, 4), shown);
}

void ShownTextTest::testToolTipIsReadAsItIs_data()
{
    QTest::addColumn<QString>("foreign");
    QTest::newRow("plain") << "Camera 1";
    QTest::newRow("a tag") << "<img src=file:///dev/zero>";
    QTest::newRow("a tag after words") << "Camera <b>1</b> & more";
    QTest::newRow("an entity") << "Camera &lt;1&gt;";
    QTest::newRow("a tag in the second line") << "Camera\n<b>1";
    QTest::newRow("XML") << "<?xml version=\"1.0\"?><a/>";
    QTest::newRow("signs that are no tag") << "a < b, c > d & e";
    QTest::newRow("the end of what is put around it") << "</qt><img src=x>";
}

// As QToolTip does it.
void ShownTextTest::testToolTipIsReadAsItIs()
{
    QFETCH(QString, foreign);
    const QString toolTip = toolTipText(foreign);
    QTextDocument document;
    if (Qt::mightBeRichText(toolTip)) {
        document.setHtml(toolTip);
    } else {
        document.setPlainText(toolTip);
    }
    QCOMPARE(document.toPlainText(), foreign);
}

void ShownTextTest::testLabelIsPlain()
{
    Windows::CPlainLabel label(QString::fromUtf8("<img src=x>\n\u202e"));
    QCOMPARE(label.textFormat(), Qt::PlainText);
    QCOMPARE(label.text(), QString("<img src=x>\n\\u{202e}"));
    label.setText(QString(10000, 'x'));
    QCOMPARE(label.text().size(), Windows::longestText + 1);
}

void ShownTextTest::testMessageBoxIsPlain()
{
    const QScopedPointer<QMessageBox> box(Windows::newMessageBox(
        QMessageBox::Critical, "Title", "<img src=x>\t", QMessageBox::Close, nullptr));
    QCOMPARE(box->textFormat(), Qt::PlainText);
    QCOMPARE(box->text(), QString("<img src=x>\\t"));
}

// What shows a text by other means would guess whether it is HTML.
void ShownTextTest::testSourcesShowTextsByTheseMeansOnly_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QStringList>("exceptions");
    QTest::newRow("labels")
        << "\\bnew QLabel\\b|\\bpublic QLabel\\b|<QLabel>\\(|\\bQLabel [a-z]\\w*[;({]"
        << QStringList{"windows/CPlainLabel.h", "featuretree/CFeaturePanel.cpp"};
    QTest::newRow("message boxes")
        << "\\bnew QMessageBox\\b|QMessageBox::(about|critical|information|question|warning)\\("
           "|\\bQMessageBox [a-z]\\w*[;({]|setInformativeText|QErrorMessage|QInputDialog"
        << QStringList{"windows/MessageBox.cpp"};
    QTest::newRow("tool tips")
        << "(setToolTip|setWhatsThis|setStatusTip)\\("
           "(?!\\s*(\\d, )?(tr\\((\\s*\"[^\"]*\")+\\)\\)|Windows::toolTipText\\(|"
           "index\\.data\\(Qt::ToolTipRole\\)))"
        << QStringList();
    QTest::newRow("tool tips at once") << "QToolTip::showText" << QStringList();
    QTest::newRow("labels of dialogs that wait")
        << "new QProgressDialog\\((?!QString\\(\\))|setLabelText" << QStringList();
    QTest::newRow("HTML") << "setHtml|insertHtml|appendHtml|Qt::AutoText"
                          << QStringList{"help/CHelpBrowser.cpp"};
}

void ShownTextTest::testSourcesShowTextsByTheseMeansOnly()
{
    QFETCH(QString, pattern);
    QFETCH(QStringList, exceptions);
    const QRegularExpression forbidden(pattern);
    QVERIFY2(forbidden.isValid(), qPrintable(forbidden.errorString()));
    QStringList faults;
    int files = 0;
    QDirIterator sources(NERIX_SOURCE_DIR "/viewer", {"*.cpp", "*.h"}, QDir::Files,
                         QDirIterator::Subdirectories);
    while (sources.hasNext()) {
        QFile file(sources.next());
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString text = QString::fromUtf8(file.readAll());
        ++files;
        const bool isExcepted =
            std::any_of(exceptions.begin(), exceptions.end(),
                        [&](const QString &name) { return file.fileName().endsWith(name); });
        const QRegularExpressionMatch match = forbidden.match(text);
        if (match.hasMatch() && !isExcepted) {
            faults.append(file.fileName() + ": " + text.mid(match.capturedStart(), 80));
        }
    }
    QVERIFY(files > 200);
    QVERIFY2(faults.isEmpty(), qPrintable('\n' + faults.join('\n')));
}

QTEST_MAIN(ShownTextTest)

#include "ShownTextTest.moc"
