// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "CToolScript.h"
#include "plugins/usagedatalog/CEventStore.h"
#include "Session.h"

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using Plugin::UsageDataLog::CEventModel;
using Plugin::UsageDataLog::CEventStore;
using rui::test::Session;
using State = CEventStore::State;

namespace {

constexpr int waitLimit = 30000;

QByteArray textAt(CEventStore &store, int row)
{
    return store.model().index(row, 0).data(CEventModel::WholeTextRole).toByteArray();
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray line(int number, const char *state = "pending")
{
    return QStringLiteral("{\"seq\":%1,\"state\":\"%2\",\"time\":\"2026-11-20T18:30:00.123Z\","
                          "\"category\":\"C\",\"name\":\"N\",\"text\":\"%1\"}\n")
        .arg(number)
        .arg(QLatin1String(state))
        .toUtf8();
}

} // namespace

class EventStoreTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void testEventsAreThereAsTheyWereTracked();
    void testNewEventComesByItself();
    void testStoreThatBeginsLaterIsSeen();
    void testNothingWasEverStored();
    void testNothingIsReadUnlessSomebodyWatches();
    void testWatchingAgainShowsEachEventOnce();
    void testDeletedEventsGo();
    void testEventsThatTheUserWithdrewGo();
    void testDeliveredEventsAreMarked();
    void testProgramThatIsMissingIsAnError();
    void testProgramThatFailsIsAnError();
    void testFailureToDeleteIsTold();

    void testExportIsWhatTheProgramPrints_data();
    void testExportIsWhatTheProgramPrints();
    void testExportReplacesTheFile();
    void testExportThatFailsLeavesTheFile();
    void testExportWhereNothingCanBeWritten();

private:
    QString directory() const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

void EventStoreTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
}

QString EventStoreTest::directory() const
{
    return m_folder->filePath(QStringLiteral("store"));
}

void EventStoreTest::testEventsAreThereAsTheyWereTracked()
{
    Session session;
    QCOMPARE(session.open(directory().toStdString()), 0);
    QCOMPARE(session.track("{\"A\":\"\xc3\xa4 \\\\ \xe6\x97\xa5\"}", "Opened", "Camera"), 0);
    QCOMPARE(session.track("no JSON: {", "GrabStop", "Grab"), 0);
    CEventStore store(RUI_EVENTS, directory());
    store.watch();
    QTRY_COMPARE_WITH_TIMEOUT(store.model().rowCount(), 2, waitLimit);
    QCOMPARE(textAt(store, 0), QByteArray("{\"A\":\"\xc3\xa4 \\\\ \xe6\x97\xa5\"}"));
    QCOMPARE(textAt(store, 1), QByteArray("no JSON: {"));
    QCOMPARE(store.model().index(0, CEventModel::CategoryColumn).data().toString(),
             QStringLiteral("Camera"));
    QCOMPARE(store.state(), State::Ready);
    QCOMPARE(store.model().waitingCount(), 2);
}

void EventStoreTest::testNewEventComesByItself()
{
    Session session;
    QCOMPARE(session.open(directory().toStdString()), 0);
    CEventStore store(RUI_EVENTS, directory());
    store.watch();
    for (int count = 1; count <= 3; ++count) {
        QCOMPARE(session.track(std::to_string(count)), 0);
        QTRY_COMPARE_WITH_TIMEOUT(store.model().rowCount(), count, waitLimit);
        QCOMPARE(textAt(store, count - 1), QByteArray::number(count));
    }
}

void EventStoreTest::testStoreThatBeginsLaterIsSeen()
{
    CEventStore store(RUI_EVENTS, directory());
    store.watch();
    QTRY_COMPARE_WITH_TIMEOUT(store.state(), State::NothingStored, waitLimit);
    Session session;
    QCOMPARE(session.open(directory().toStdString()), 0);
    QCOMPARE(session.track("first"), 0);
    QTRY_COMPARE_WITH_TIMEOUT(store.model().rowCount(), 1, waitLimit);
    QTRY_COMPARE_WITH_TIMEOUT(store.state(), State::Ready, waitLimit);
}

void EventStoreTest::testNothingWasEverStored()
{
    CEventStore store(RUI_EVENTS, directory());
    QCOMPARE(store.state(), State::Unknown);
    store.watch();
    QTRY_COMPARE_WITH_TIMEOUT(store.state(), State::NothingStored, waitLimit);
    QCOMPARE(store.error(), QString());
    QVERIFY(!QFile::exists(directory()));
}

void EventStoreTest::testNothingIsReadUnlessSomebodyWatches()
{
    CToolScript tool;
    tool.print("stats", "{\"pending\":1,\"delivered\":0}");
    tool.print("follow", line(1));
    CEventStore store(tool.program(), directory());
    QCOMPARE(store.model().rowCount(), 0);
    store.watch();
    QTRY_COMPARE_WITH_TIMEOUT(store.model().rowCount(), 1, waitLimit);
}

void EventStoreTest::testWatchingAgainShowsEachEventOnce()
{
    Session session;
    QCOMPARE(session.open(directory().toStdString()), 0);
    QCOMPARE(session.track("1"), 0);
    CEventStore store(RUI_EVENTS, directory());
    store.watch();
    QTRY_COMPARE_WITH_TIMEOUT(store.model().rowCount(), 1, waitLimit);
    store.stopWatching();
    QCOMPARE(session.track("2"), 0);
    store.watch();
    QTRY_COMPARE_WITH_TIMEOUT(store.model().rowCount(), 2, waitLimit);
    QCOMPARE(textAt(store, 0), QByteArray("1"));
    QCOMPARE(textAt(store, 1), QByteArray("2"));
}

void EventStoreTest::testDeletedEventsGo()
{
    Session session;
    QCOMPARE(session.open(directory().toStdString()), 0);
    QCOMPARE(session.track("1"), 0);
    CEventStore store(RUI_EVENTS, directory());
    store.watch();
    QTRY_COMPARE_WITH_TIMEOUT(store.model().rowCount(), 1, waitLimit);
    store.deleteAll();
    QTRY_COMPARE_WITH_TIMEOUT(store.model().rowCount(), 0, waitLimit);
    QCOMPARE(session.track("2"), 0);
    QTRY_COMPARE_WITH_TIMEOUT(store.model().rowCount(), 1, waitLimit);
    QCOMPARE(textAt(store, 0), QByteArray("2"));
}

// By another program, so that only the numbers tell it.
void EventStoreTest::testEventsThatTheUserWithdrewGo()
{
    Session session;
    QCOMPARE(session.open(directory().toStdString()), 0);
    QCOMPARE(session.track("withdrawn"), 0);
    CEventStore store(RUI_EVENTS, directory());
    store.watch();
    QTRY_COMPARE_WITH_TIMEOUT(store.model().rowCount(), 1, waitLimit);
    QCOMPARE(session.stop(), 0);
    Session other;
    QCOMPARE(other.config(directory().toStdString()), 0);
    QCOMPARE(other.product(), 0);
    QCOMPARE(other.optOut(), 0);
    QTRY_VERIFY_WITH_TIMEOUT(store.model().rowCount() == 1 && textAt(store, 0) != "withdrawn",
                             waitLimit);
}

void EventStoreTest::testDeliveredEventsAreMarked()
{
    CToolScript tool;
    tool.print("follow", line(1) + line(2));
    tool.print("stats", "{\"pending\":2,\"delivered\":0}");
    CEventStore store(tool.program(), directory());
    store.watch();
    QTRY_COMPARE_WITH_TIMEOUT(store.model().waitingCount(), 2, waitLimit);
    tool.print("list", line(1, "delivered") + line(2));
    tool.print("stats", "{\"pending\":1,\"delivered\":1}");
    QTRY_COMPARE_WITH_TIMEOUT(store.model().deliveredCount(), 1, waitLimit);
    QCOMPARE(store.model().waitingCount(), 1);
    QCOMPARE(store.model().index(0, CEventModel::StateColumn).data().toString(),
             QStringLiteral("Delivered"));
}

void EventStoreTest::testProgramThatIsMissingIsAnError()
{
    CEventStore store(m_folder->filePath("nothing"), directory());
    store.watch();
    QTRY_COMPARE_WITH_TIMEOUT(store.state(), State::Failed, waitLimit);
    QCOMPARE(store.error(), QStringLiteral("%1 cannot be started: install the viewer again")
                                .arg(m_folder->filePath("nothing")));
}

void EventStoreTest::testProgramThatFailsIsAnError()
{
    CToolScript tool;
    tool.fail("stats", "warning\nrui-events: the database is of a newer version\n");
    CEventStore store(tool.program(), directory());
    store.watch();
    QTRY_COMPARE_WITH_TIMEOUT(store.state(), State::Failed, waitLimit);
    QCOMPARE(store.error(), QStringLiteral("rui-events: the database is of a newer version"));
}

void EventStoreTest::testFailureToDeleteIsTold()
{
    CToolScript tool;
    tool.fail("purge", "rui-events: the database is locked\n");
    CEventStore store(tool.program(), directory());
    QSignalSpy failed(&store, &CEventStore::failed);
    store.deleteAll();
    QVERIFY(failed.wait(waitLimit));
    QCOMPARE(failed.at(0).at(0).toString(), QStringLiteral("rui-events: the database is locked"));
}

void EventStoreTest::testExportIsWhatTheProgramPrints_data()
{
    QTest::addColumn<bool>("isCsv");
    QTest::addColumn<QByteArray>("begin");
    QTest::newRow("CSV") << true << QByteArray("seq,state,time,uid,category,name,session,text\r\n");
    QTest::newRow("JSON lines") << false << QByteArray("{\"seq\":");
}

void EventStoreTest::testExportIsWhatTheProgramPrints()
{
    QFETCH(bool, isCsv);
    QFETCH(QByteArray, begin);
    Session session;
    QCOMPARE(session.open(directory().toStdString()), 0);
    QCOMPARE(session.track("first"), 0);
    QCOMPARE(session.track("second"), 0);
    CEventStore store(RUI_EVENTS, directory());
    QSignalSpy exported(&store, &CEventStore::exported);
    const QString file = m_folder->filePath("events");
    store.exportTo(file, isCsv ? CEventStore::Format::Csv : CEventStore::Format::JsonLines);
    QVERIFY(exported.wait(waitLimit));
    QCOMPARE(exported.at(0).at(0).toString(), file);
    const QByteArray written = contentOf(file);
    QVERIFY2(written.startsWith(begin), written.constData());
    QCOMPARE(written.count('\n'), isCsv ? 3 : 2);
    QVERIFY(written.contains("first") && written.contains("second"));
    QVERIFY(!QFile::exists(file + ".part"));
}

void EventStoreTest::testExportReplacesTheFile()
{
    CToolScript tool;
    tool.print("list", line(1));
    CEventStore store(tool.program(), directory());
    const QString file = m_folder->filePath("events");
    QFile former(file);
    QVERIFY(former.open(QIODevice::WriteOnly) && former.write("former") == 6);
    former.close();
    QSignalSpy exported(&store, &CEventStore::exported);
    store.exportTo(file, CEventStore::Format::JsonLines);
    QVERIFY(exported.wait(waitLimit));
    QCOMPARE(contentOf(file), line(1));
}

void EventStoreTest::testExportThatFailsLeavesTheFile()
{
    CToolScript tool;
    tool.print("list", line(1));
    tool.fail("list", "rui-events: the disk is broken\n");
    CEventStore store(tool.program(), directory());
    const QString file = m_folder->filePath("events");
    QFile former(file);
    QVERIFY(former.open(QIODevice::WriteOnly) && former.write("former") == 6);
    former.close();
    QSignalSpy failed(&store, &CEventStore::failed);
    store.exportTo(file, CEventStore::Format::JsonLines);
    QVERIFY(failed.wait(waitLimit));
    QCOMPARE(failed.at(0).at(0).toString(), QStringLiteral("rui-events: the disk is broken"));
    QCOMPARE(contentOf(file), QByteArray("former"));
    QVERIFY(!QFile::exists(file + ".part"));
}

void EventStoreTest::testExportWhereNothingCanBeWritten()
{
    CToolScript tool;
    CEventStore store(tool.program(), directory());
    const QSignalSpy failed(&store, &CEventStore::failed);
    store.exportTo(m_folder->filePath("no/folder/events"), CEventStore::Format::Csv);
    QCOMPARE(failed.count(), 1);
    QCOMPARE(failed.at(0).at(0).toString(),
             QStringLiteral("%1 cannot be written: No such file or directory")
                 .arg(m_folder->filePath("no/folder/events")));
}

QTEST_MAIN(EventStoreTest)

#include "EventStoreTest.moc"
