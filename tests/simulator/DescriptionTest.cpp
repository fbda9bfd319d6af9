// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "Description.h"

#include <QMap>
#include <QSet>
#include <QTest>
#include <QXmlStreamReader>

namespace {

// What an independent reader makes of a description.
struct Reading
{
    QStringList names;
    QSet<QString> categories;
    QStringList children;           // of all categories
    QStringList references;         // every other element that names a node
    QMap<quint32, quint32> regions; // addresses and lengths of plain registers
    QString error;
};

struct Register
{
    quint32 address = 0;
    quint32 length = 0;
    bool isIndexed = false;
};

bool isRegister(const QStringRef &element)
{
    return element.endsWith(QLatin1String("Reg")) || element == QLatin1String("Register");
}

Reading readingOf(const QByteArray &description)
{
    Reading reading;
    Register current;
    QXmlStreamReader xml(description);
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isEndElement() && isRegister(xml.name()) && !current.isIndexed) {
            quint32 &length = reading.regions[current.address];
            length = qMax(length, current.length);
        }
        if (!xml.isStartElement()) {
            continue;
        }
        const QString element = xml.name().toString();
        if (isRegister(xml.name())) {
            current = Register();
        }
        if (xml.attributes().hasAttribute(QStringLiteral("Name"))
            && element != QLatin1String("EnumEntry") && element != QLatin1String("pVariable")) {
            const QString name = xml.attributes().value(QStringLiteral("Name")).toString();
            reading.names.append(name);
            if (element == QLatin1String("Category")) {
                reading.categories.insert(name);
            }
        } else if (element == QLatin1String("Address")) {
            current.address = xml.readElementText().toUInt(nullptr, 0);
        } else if (element == QLatin1String("Length")) {
            current.length = xml.readElementText().toUInt(nullptr, 0);
        } else if (element == QLatin1String("pFeature")) {
            reading.children.append(xml.readElementText());
        } else if (element.startsWith(QLatin1Char('p'))) {
            current.isIndexed = current.isIndexed || element == QLatin1String("pIndex");
            reading.references.append(xml.readElementText());
        }
    }
    reading.error = xml.hasError() ? xml.errorString() : QString();
    return reading;
}

} // namespace

// The description by itself, without a camera, in several sizes.
class DescriptionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();
    void init();
    void testIsWellFormed();
    void testNumberOfValueFeaturesIsExact();
    void testEveryNodeHasANameOfItsOwn();
    void testEveryReferenceHasItsNode();
    void testEveryCategoryButTheRootIsInOneOther();
    void testRegistersDoNotOverlapAndStayInTheirSpace();
    void testGeneratedFeaturesCarryThePrefix();
    void testLengthIsAMultipleOfABlock();

private:
    QByteArray m_description;
    Reading m_reading;
};

void DescriptionTest::initTestCase_data()
{
    QTest::addColumn<int>("count");
    QTest::newRow("none generated") << 43;
    QTest::newRow("one generated") << 44;
    QTest::newRow("a full category generated") << 63;
    QTest::newRow("a large camera") << 840;
    QTest::newRow("the largest camera") << 1323;
}

void DescriptionTest::init()
{
    QFETCH_GLOBAL(int, count);
    m_description = QByteArray::fromStdString(Simulator::description(count));
    m_reading = readingOf(m_description);
}

void DescriptionTest::testIsWellFormed()
{
    QCOMPARE(m_reading.error, QString());
}

void DescriptionTest::testNumberOfValueFeaturesIsExact()
{
    QFETCH_GLOBAL(int, count);
    int leaves = 0;
    for (const QString &child : qAsConst(m_reading.children)) {
        leaves += m_reading.categories.contains(child) ? 0 : 1;
    }
    QCOMPARE(leaves, count);
}

void DescriptionTest::testEveryNodeHasANameOfItsOwn()
{
    QSet<QString> found;
    for (const QString &name : qAsConst(m_reading.names)) {
        QVERIFY2(!found.contains(name), qPrintable(name));
        found.insert(name);
    }
}

void DescriptionTest::testEveryReferenceHasItsNode()
{
    const QSet<QString> known(m_reading.names.begin(), m_reading.names.end());
    for (const QString &name : m_reading.children + m_reading.references) {
        QVERIFY2(known.contains(name), qPrintable(name));
    }
}

void DescriptionTest::testEveryCategoryButTheRootIsInOneOther()
{
    for (const QString &category : qAsConst(m_reading.categories)) {
        const int expected = category == QLatin1String("Root") ? 0 : 1;
        QVERIFY2(m_reading.children.count(category) == expected, qPrintable(category));
    }
}

void DescriptionTest::testRegistersDoNotOverlapAndStayInTheirSpace()
{
    quint32 end = 0;
    for (auto region = m_reading.regions.cbegin(); region != m_reading.regions.cend(); ++region) {
        QVERIFY2(region.key() >= end, qPrintable(QString::number(region.key(), 16)));
        end = region.key() + region.value();
    }
    QVERIFY(end <= 0x10000);
}

void DescriptionTest::testGeneratedFeaturesCarryThePrefix()
{
    QFETCH_GLOBAL(int, count);
    const QStringList generated = m_reading.names.filter(QStringLiteral("QmzBank"));
    QCOMPARE(generated.isEmpty(), count == 43);
    QCOMPARE(m_reading.names.contains(QStringLiteral("QmzBank001Offset1")), count > 43);
    QCOMPARE(m_reading.names.contains(QStringLiteral("QmzBank001Label4")), count >= 63);
    QCOMPARE(m_reading.names.contains(QStringLiteral("QmzBank040Scale4")), count >= 840);
}

void DescriptionTest::testLengthIsAMultipleOfABlock()
{
    QCOMPARE(m_description.size() % 512, 0);
}

QTEST_APPLESS_MAIN(DescriptionTest)

#include "DescriptionTest.moc"
