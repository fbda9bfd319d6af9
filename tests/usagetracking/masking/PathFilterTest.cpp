// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "internal/PathFilter.h"

#include <QObject>
#include <QString>
#include <QTest>

using Plugin::UsageTracking::Internal::maskPaths;

namespace {

constexpr int million = 1000000;

void addRow(const char *rule, const QString &text, const QString &masked)
{
    QTest::newRow(rule) << text << masked;
}

void addKept(const char *rule, const QString &text)
{
    addRow(rule, text, text);
}

void addMaskedWhole(const char *rule, const QString &text)
{
    addRow(rule, text, QStringLiteral("***"));
}

} // namespace

class PathFilterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testDescriptions_data();
    void testDescriptions();
    void testUnits_data();
    void testUnits();
    void testDirectoriesAndLast_data();
    void testDirectoriesAndLast();
    void testCharacters_data();
    void testCharacters();
    void testMillionUnits_data();
    void testMillionUnits();
    void testInputIsUnchanged();

private:
    static void addColumns();
    static void compareMasked();
};

void PathFilterTest::testDescriptions_data()
{
    addColumns();

    addRow("a drive path is masked, what stands in front is kept",
           QStringLiteral("Failed to open C:\\data\\img.bmp"),
           QStringLiteral("Failed to open ***"));
    addMaskedWhole("a file address is masked", QStringLiteral("file://server/share/a.txt"));
    addMaskedWhole("a share address is masked", QStringLiteral("smb://server/share/a.txt"));
    addMaskedWhole("capital address words too", QStringLiteral("FILE://server/share/a.txt"));
    addMaskedWhole("a share path is masked", QStringLiteral("\\\\server\\share\\a.txt"));
    addMaskedWhole("a trailing slash belongs to the path", QStringLiteral("/tmp/x/"));
    addRow("a path behind a colon is masked through its trailing slash",
           QStringLiteral("Cannot write: /tmp/x/"), QStringLiteral("Cannot write: ***"));
    addMaskedWhole("a text without slashes that starts with a word is masked whole",
                   QStringLiteral("The grab timed out."));
    addMaskedWhole("a colon does not keep a text without slashes",
                   QStringLiteral("Error 0x1234: buffer incomplete"));
    addKept("dots are no path", QStringLiteral("..."));
    addKept("the empty text stays empty", QString());
}

void PathFilterTest::testDescriptions()
{
    compareMasked();
}

void PathFilterTest::testUnits_data()
{
    addColumns();

    addMaskedWhole("a word character begins a path", QStringLiteral("a."));
    addMaskedWhole("a slash begins a path", QStringLiteral("/."));
    addMaskedWhole("a backslash begins a path", QStringLiteral("\\."));
    addKept("a colon begins none", QStringLiteral(":."));
    addKept("a lone word character has no last part", QStringLiteral("a"));
    addKept("a lone slash has no last part", QStringLiteral("/"));
    addKept("a word character and a slash have no last part", QStringLiteral("a/"));
    addRow("the leftmost position counts", QStringLiteral("..a.b"), QStringLiteral("..***"));
    addRow("a colon in front of a slash splits the text", QStringLiteral("a:b/c"),
           QStringLiteral("a:***"));
    addMaskedWhole("colon and slash may follow a unit", QStringLiteral("a:/b"));
    addMaskedWhole("dot and colon may follow a unit", QStringLiteral("a.:/b"));
    addMaskedWhole("slash and colon may follow a unit", QStringLiteral("a/:b/c"));
    addMaskedWhole("two colons may follow a unit", QStringLiteral("a::b/c"));
    addRow("a word character and a colon may not follow", QStringLiteral(".a.b:c/d"),
           QStringLiteral(".a.b:***"));
    addRow("three followers are too many", QStringLiteral("a.::b/c"), QStringLiteral("a.::***"));
    addRow("followers come once a unit", QStringLiteral("a.:.:b/c"), QStringLiteral("a.:.:***"));
    addMaskedWhole("several units with followers", QStringLiteral("a.:b.:c::d/e"));
    addMaskedWhole("a unit without followers in front of one with", QStringLiteral("ab.:c/d"));
    addRow("a dot between units ends them", QStringLiteral("a.b.:c/d"), QStringLiteral("a.***"));
}

void PathFilterTest::testUnits()
{
    compareMasked();
}

void PathFilterTest::testDirectoriesAndLast_data()
{
    addColumns();

    addMaskedWhole("directories may hold blanks and dots", QStringLiteral("a b/.c./d e"));
    addMaskedWhole("directories may be empty", QStringLiteral("a///b"));
    addMaskedWhole("both slashes may be mixed", QStringLiteral("a\\b/c\\d"));
    addMaskedWhole("the last part may hold colons", QStringLiteral("a/b:c:d"));
    addRow("a directory may not hold a colon", QStringLiteral("a b:c d/e"),
           QStringLiteral("a b:***"));
    addMaskedWhole("the last part may be a colon", QStringLiteral("a:"));
    addMaskedWhole("the last part may be a line end", QStringLiteral("a\n"));
    addMaskedWhole("the last part may end in a backslash", QStringLiteral("a.b\\"));
    addKept("two slashes at the end are too many", QStringLiteral("/tmp/x//"));
    addKept("a slash and a backslash at the end too", QStringLiteral("/tmp/x\\/"));
    addRow("the last part takes at least one character", QStringLiteral(".:ab"),
           QStringLiteral(".:***"));
    addKept("a last word character leaves no last part", QStringLiteral(".:a"));
    addKept("a word character and slash in front of nothing", QStringLiteral(".:a/"));
}

void PathFilterTest::testDirectoriesAndLast()
{
    compareMasked();
}

void PathFilterTest::testCharacters_data()
{
    addColumns();

    addMaskedWhole("an underscore is a word character", QStringLiteral("_."));
    addMaskedWhole("a digit is one", QStringLiteral("7."));
    addMaskedWhole("a letter outside ASCII is one", QStringLiteral("\u00e9."));
    addMaskedWhole("an ideograph is one", QStringLiteral("\u4e2d."));
    addMaskedWhole("a digit outside ASCII is one", QStringLiteral("\u0663."));
    addMaskedWhole("a fraction is one", QStringLiteral("\u00bd."));
    addMaskedWhole("a Roman number sign is one", QStringLiteral("\u2167."));
    addMaskedWhole("a combining mark is one", QStringLiteral("\u0301."));
    addMaskedWhole("a spacing mark is one", QStringLiteral("\u0903."));
    addMaskedWhole("an enclosing mark is one", QStringLiteral("\u20dd."));
    addKept("another connector than the underscore is none", QStringLiteral("\u203f."));
    addKept("a hyphen is none", QStringLiteral("-."));
    addKept("a blank is none", QStringLiteral(" ."));
    addKept("a line end is none", QStringLiteral("\n."));
    addKept("a zero is none", QString(2, QChar(0)));
    addKept("a sign of two units is none", QStringLiteral("\U0001f600."));
    addKept("a letter of two units is none", QStringLiteral("\U00010400."));
    addKept("half a pair is none", QString(2, QChar(0xd83d)));
    addMaskedWhole("a line end may follow a unit", QStringLiteral("a\n:b/c"));
    addMaskedWhole("half a pair may follow a unit",
                   QStringLiteral("a") + QChar(0xd83d) + QStringLiteral(":b/c"));
    addRow("both halves of a pair are two characters", QStringLiteral("a\U0001f600:b/c"),
           QStringLiteral("a\U0001f600:***"));
    addMaskedWhole("a directory may hold line ends", QStringLiteral("a.\nb/c"));
    addRow("only the end of the text ends a path, not that of a line",
           QStringLiteral("/tmp/x\n//.:"), QStringLiteral("***"));
    addKept("a wide slash is none", QStringLiteral("\uff0f."));
}

void PathFilterTest::testCharacters()
{
    compareMasked();
}

void PathFilterTest::testMillionUnits_data()
{
    addColumns();

    addKept("slashes alone are no path", QString(million, QLatin1Char('/')));
    addKept("dots alone are no path", QString(million, QLatin1Char('.')));
    addMaskedWhole("slashes in front of a name", QString(million, QLatin1Char('/')) + QChar(0x61));
    addMaskedWhole("units with two followers each",
                   QStringLiteral("a::").repeated(million / 3) + QStringLiteral("b/c"));
    addRow("dots in front of a path", QString(million, QLatin1Char('.')) + QStringLiteral("/x"),
           QString(million, QLatin1Char('.')) + QStringLiteral("***"));
}

void PathFilterTest::testMillionUnits()
{
    compareMasked();
}

void PathFilterTest::testInputIsUnchanged()
{
    const QString text = QStringLiteral("Failed to open C:\\data\\img.bmp");

    maskPaths(text);

    QCOMPARE(text, QStringLiteral("Failed to open C:\\data\\img.bmp"));
}

void PathFilterTest::addColumns()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("masked");
}

void PathFilterTest::compareMasked()
{
    QFETCH(QString, text);
    QFETCH(QString, masked);

    QCOMPARE(maskPaths(text), masked);
}

QTEST_GUILESS_MAIN(PathFilterTest)

#include "PathFilterTest.moc"
