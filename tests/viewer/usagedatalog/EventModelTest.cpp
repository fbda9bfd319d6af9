// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/usagedatalog/CEventFilter.h"
#include "plugins/usagedatalog/CEventModel.h"

#include <QSignalSpy>
#include <QTest>

using Plugin::UsageDataLog::CEventFilter;
using Plugin::UsageDataLog::CEventModel;
using Plugin::UsageDataLog::CStoredEvent;
using Plugin::UsageDataLog::CStoredEvents;

namespace {

const QByteArray line = "{\"seq\":7,\"state\":\"pending\",\"time\":\"2026-11-20T18:30:00.123Z\","
                        "\"uid\":\"01J\",\"category\":\"Camera\",\"name\":\"Opened\","
                        "\"session\":\"s\",\"text\":\"{\\\"A\\\":\\\"\\u00e4\\\"}\"}\n";

CStoredEvent stored(qint64 number, const QByteArray &text = "text", bool isDelivered = false)
{
    CStoredEvent made;
    made.number = number;
    made.time = QDateTime({2026, 11, 20}, {18, 30}, Qt::UTC).addSecs(number);
    made.category = QStringLiteral("Camera");
    made.name = QStringLiteral("Opened");
    made.text = text;
    made.isDelivered = isDelivered;
    return made;
}

CStoredEvents events(std::initializer_list<int> numbers)
{
    CStoredEvents list;
    for (const int number : numbers) {
        list.append(stored(number, QByteArray::number(number)));
    }
    return list;
}

QByteArrayList textsOf(const QAbstractItemModel &model)
{
    QByteArrayList texts;
    for (int row = 0; row < model.rowCount(); ++row) {
        texts.append(model.index(row, 0).data(CEventModel::WholeTextRole).toByteArray());
    }
    return texts;
}

} // namespace

class EventModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testLineBecomesAnEvent()
    {
        const CStoredEvent read = CStoredEvent::fromJson(line);
        QCOMPARE(read.number, 7);
        QCOMPARE(read.time.toMSecsSinceEpoch(), 1795199400123);
        QCOMPARE(read.category, QStringLiteral("Camera"));
        QCOMPARE(read.name, QStringLiteral("Opened"));
        QCOMPARE(read.text, QByteArray("{\"A\":\"\xc3\xa4\"}"));
        QVERIFY(!read.isDelivered);
    }

    void testDeliveredLine()
    {
        QVERIFY(
            CStoredEvent::fromJson(QByteArray(line).replace("pending", "delivered")).isDelivered);
    }

    void testOtherLineIsNoEvent_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("words") << QByteArray("rui-events: help\n");
        QTest::newRow("cut") << line.left(40);
    }

    void testOtherLineIsNoEvent()
    {
        QFETCH(QByteArray, text);
        QCOMPARE(CStoredEvent::fromJson(text).number, 0);
    }

    void testColumns()
    {
        CEventModel model;
        model.append(CStoredEvents{stored(1, "{\"A\":1}\n{\"B\":2}")});
        model.append(CStoredEvents{stored(2, "{}", true)});
        QCOMPARE(model.index(0, CEventModel::CategoryColumn).data().toString(),
                 QStringLiteral("Camera"));
        QCOMPARE(model.index(0, CEventModel::NameColumn).data().toString(),
                 QStringLiteral("Opened"));
        QCOMPARE(model.index(0, CEventModel::RecordColumn).data().toString(),
                 QStringLiteral("{\"A\":1} {\"B\":2}"));
        QCOMPARE(model.index(0, CEventModel::StateColumn).data().toString(),
                 QStringLiteral("Waiting"));
        QCOMPARE(model.index(1, CEventModel::StateColumn).data().toString(),
                 QStringLiteral("Delivered"));
        QCOMPARE(model.index(0, CEventModel::TimeColumn).data(Qt::ToolTipRole).toString(),
                 QStringLiteral("2026-11-20T18:30:01.000Z"));
        QCOMPARE(model.waitingCount(), 1);
        QCOMPARE(model.deliveredCount(), 1);
    }

    void testCellShowsTheBeginningOfALongRecord()
    {
        CEventModel model;
        model.append(CStoredEvents{stored(1, QByteArray("\xc3\xa4").repeated(100000))});
        QCOMPARE(model.index(0, CEventModel::RecordColumn).data().toString().size(), 300);
        QCOMPARE(model.index(0, 0).data(CEventModel::WholeTextRole).toByteArray().size(), 200000);
    }

    void testEventThatIsThereIsNotAddedAgain()
    {
        CEventModel model;
        for (const int number : {1, 2, 2, 1, 3}) {
            model.append(CStoredEvents{stored(number, QByteArray::number(number))});
        }
        QCOMPARE(textsOf(model), QByteArrayList({"1", "2", "3"}));
    }

    void testNewListReplacesTheOldOne_data()
    {
        QTest::addColumn<CStoredEvents>("list");
        QTest::addColumn<QByteArrayList>("texts");
        QTest::addColumn<int>("resets");
        QTest::newRow("the same") << events({1, 2, 3}) << QByteArrayList{"1", "2", "3"} << 0;
        QTest::newRow("the oldest are gone") << events({3}) << QByteArrayList{"3"} << 0;
        QTest::newRow("one in the middle is gone")
            << events({1, 3}) << QByteArrayList{"1", "3"} << 0;
        QTest::newRow("more came")
            << events({2, 3, 4, 5}) << QByteArrayList{"2", "3", "4", "5"} << 0;
        QTest::newRow("all are gone") << events({}) << QByteArrayList{} << 0;
        QTest::newRow("others") << events({8, 9}) << QByteArrayList{"8", "9"} << 0;
        QTest::newRow("one before them") << events({0, 1, 2}) << QByteArrayList{"0", "1", "2"} << 1;
    }

    void testNewListReplacesTheOldOne()
    {
        QFETCH(CStoredEvents, list);
        QFETCH(int, resets);
        CEventModel model;
        model.setEvents(events({1, 2, 3}));
        const QSignalSpy reset(&model, &QAbstractItemModel::modelReset);
        model.setEvents(list);
        QTEST(textsOf(model), "texts");
        QCOMPARE(reset.count(), resets);
    }

    void testRowThatStaysKeepsItsIndex()
    {
        CEventModel model;
        model.setEvents(events({1, 2, 3}));
        const QPersistentModelIndex three(model.index(2, 0));
        model.setEvents(events({2, 3, 4}));
        QCOMPARE(three.row(), 1);
        QCOMPARE(three.data(CEventModel::WholeTextRole).toByteArray(), QByteArray("3"));
    }

    void testStateChangesInPlace()
    {
        CEventModel model;
        model.setEvents({stored(1), stored(2)});
        const QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
        model.setEvents({stored(1, "text", true), stored(2)});
        QCOMPARE(changed.count(), 1);
        QCOMPARE(model.deliveredCount(), 1);
    }

    void testSearch_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("rows");
        QTest::newRow("nothing looked for") << "" << 3;
        QTest::newRow("category") << "camera" << 3;
        QTest::newRow("in the record") << "exposure" << 1;
        QTest::newRow("beyond what a cell shows") << "FAR AWAY" << 1;
        QTest::newRow("state") << "delivered" << 1;
        QTest::newRow("not there") << "tripod" << 0;
    }

    void testSearch()
    {
        QFETCH(QString, text);
        CEventModel model;
        model.append(CStoredEvents{stored(1, "{\"Name\":\"ExposureTime\"}")});
        model.append(CStoredEvents{stored(2, QByteArray(5000, '.') + "far away")});
        model.append(CStoredEvents{stored(3, "{}", true)});
        CEventFilter filter;
        filter.setSourceModel(&model);
        filter.setText(text);
        QTEST(filter.rowCount(), "rows");
    }
};

QTEST_MAIN(EventModelTest)

#include "EventModelTest.moc"
