// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "internal/PathFilter.h"
#include "PathFilterOracle.h"
#include "RandomTexts.h"

#include <QDebug>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTest>

using Plugin::UsageTracking::Internal::maskPaths;

/// Compares the path filter with Qt's regular expression engine.
class PathFilterDifferentialTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void testAllShortTexts_data();
    void testAllShortTexts();
    void testEveryUnit_data();
    void testEveryUnit();
    void testRandomTexts();
    void testLongTexts_data();
    void testLongTexts();

private:
    void compareWithOracle(const QString &text);
    void compareAllOf(const QStringList &pieces, int count, const QString &begun = QString());
    bool isEachResultFrequent() const;

    const PathFilterOracle m_oracle;
    int m_keptCount = 0;
    int m_maskedWholeCount = 0;
    int m_maskedTailCount = 0;
    int m_differenceCount = 0;
    QString m_firstDifference;
};

void PathFilterDifferentialTest::init()
{
    m_keptCount = m_maskedWholeCount = m_maskedTailCount = m_differenceCount = 0;
    m_firstDifference.clear();
}

void PathFilterDifferentialTest::cleanup()
{
    qInfo("%d texts kept, %d masked whole, %d masked in part; %d differences", m_keptCount,
          m_maskedWholeCount, m_maskedTailCount, m_differenceCount);
    QVERIFY2(m_differenceCount == 0, qPrintable(m_firstDifference));
}

void PathFilterDifferentialTest::testAllShortTexts_data()
{
    QTest::addColumn<QStringList>("pieces");
    QTest::addColumn<int>("longest");

    const QStringList classes{QStringLiteral("a"),  QStringLiteral("/"),   QStringLiteral(":"),
                              QStringLiteral("."),  QStringLiteral("\\"),  QStringLiteral("\u0301"),
                              QStringLiteral("\n"), QString(QChar(0xd83d))};
    QTest::newRow("up to seven units of every character class") << classes << 7;
    QTest::newRow("up to nine units that differ in the pattern")
        << QStringList(classes.mid(0, 4)) << 9;
    QTest::newRow("up to six pieces around the address words")
        << QStringList{QStringLiteral("file"), QStringLiteral("smb"), QStringLiteral("FILE"),
                       QStringLiteral("SMB"),  QStringLiteral("."),   QStringLiteral(":"),
                       QStringLiteral("//")}
        << 6;
}

void PathFilterDifferentialTest::testAllShortTexts()
{
    QFETCH(QStringList, pieces);
    QFETCH(int, longest);

    for (int count = 0; count <= longest; ++count) {
        compareAllOf(pieces, count);
    }

    QVERIFY(isEachResultFrequent());
}

void PathFilterDifferentialTest::testEveryUnit_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("behind");

    const auto addPlace = [](const char *place, const QString &before, const QString &behind) {
        QTest::newRow(place) << before << behind;
    };
    addPlace("as a unit", QString(), QStringLiteral("."));
    addPlace("as a unit behind what is no unit", QStringLiteral(".:"), QStringLiteral("./b"));
    addPlace("as a unit with followers", QString(), QStringLiteral(".:b/c"));
    addPlace("as first follower", QStringLiteral("a"), QStringLiteral(":b/c"));
    addPlace("as second follower", QStringLiteral("a:"), QStringLiteral("b/c"));
    addPlace("in a directory", QStringLiteral("a"), QStringLiteral("b/c"));
    addPlace("as the last part", QStringLiteral("./a/"), QString());
    addPlace("behind a last part and its slash", QStringLiteral("./a/b/"), QString());
}

void PathFilterDifferentialTest::testEveryUnit()
{
    QFETCH(QString, before);
    QFETCH(QString, behind);

    for (int unit = 0; unit <= 0xffff; ++unit) {
        compareWithOracle(before + QChar(unit) + behind);
    }
}

void PathFilterDifferentialTest::testRandomTexts()
{
    constexpr int textCount = 1200000;
    RandomTexts texts;

    for (int i = 0; i < textCount; ++i) {
        compareWithOracle(texts.next());
    }

    QVERIFY(isEachResultFrequent());
}

void PathFilterDifferentialTest::testLongTexts_data()
{
    QTest::addColumn<QString>("text");

    const auto repeated = [](const char *piece, int count) {
        return QString::fromLatin1(piece).repeated(count);
    };
    QTest::newRow("600 slashes") << repeated("/", 600);
    QTest::newRow("600 backslashes and a name") << repeated("\\", 600) + QStringLiteral("a");
    QTest::newRow("words, then two slashes at the end") << repeated("ab.", 200) + repeated("/", 2);
    QTest::newRow("a million dots") << repeated(".", 1000000);
    QTest::newRow("a million colons, then a path") << repeated(":", 1000000) + repeated("/a", 2);
    QTest::newRow("a path of 250,000 directories") << repeated("/ab", 250000);
    QTest::newRow("250,000 units with their followers")
        << repeated("a::", 250000) + repeated("/", 1);
    QTest::newRow("a million letters") << repeated("a", 1000000);
    QTest::newRow("200,000 sentences") << repeated("No.\n ", 200000);
}

void PathFilterDifferentialTest::testLongTexts()
{
    QFETCH(QString, text);

    compareWithOracle(text);
}

void PathFilterDifferentialTest::compareWithOracle(const QString &text)
{
    const QString expected = m_oracle.maskPaths(text);
    const bool isKept = expected == text;
    const bool isWhole = !isKept && expected.size() == 3;
    ++(isKept ? m_keptCount : isWhole ? m_maskedWholeCount : m_maskedTailCount);

    const QString actual = maskPaths(text);
    if (actual != expected && m_differenceCount++ == 0) {
        QDebug(&m_firstDifference) << "first difference:" << text.left(300) << "gives"
                                   << actual.left(300) << "instead of" << expected.left(300);
    }
}

void PathFilterDifferentialTest::compareAllOf(const QStringList &pieces, int count,
                                              const QString &begun)
{
    if (count == 0) {
        compareWithOracle(begun);
        return;
    }
    for (const QString &piece : pieces) {
        compareAllOf(pieces, count - 1, begun + piece);
    }
}

bool PathFilterDifferentialTest::isEachResultFrequent() const
{
    const int twentieth = (m_keptCount + m_maskedWholeCount + m_maskedTailCount) / 20;
    return m_keptCount > twentieth && m_maskedWholeCount > twentieth
           && m_maskedTailCount > twentieth;
}

QTEST_GUILESS_MAIN(PathFilterDifferentialTest)

#include "PathFilterDifferentialTest.moc"
