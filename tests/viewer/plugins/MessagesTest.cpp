// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/nerixviewer/CMessageModel.h"
#include "plugins/nerixviewer/CMessagePanel.h"
#include "plugins/nerixviewer/CMessageService.h"
#include "support/Texts.h"

#include <thread>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QLoggingCategory>
#include <QScrollBar>
#include <QTest>
#include <QTreeView>

using Plugin::NerixViewer::CMessageModel;
using Plugin::NerixViewer::CMessagePanel;
using Plugin::NerixViewer::CMessageService;
using Plugin::NerixViewer::IMessageService;

Q_DECLARE_METATYPE(IMessageService::Severity)

class MessagesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testEachMessageHasARow();
    void testRepeatedMessageIsCounted();
    void testSameWordsOfAnotherSeverityAreAnotherMessage();
    void testTheOldestGoAboveAThousand();
    void testServiceTakesMessagesOfAnyThreadToTheGuiThread();
    void testLogIsHeard_data();
    void testLogIsHeard();
    void testLogIsStillWritten();
    void testSelectedMessagesAreCopiedInTheirOrder();
    void testPanelStaysAtTheNewest();
    void testPanelStaysWhereTheUserReads();
    void testLongMessageIsSeenWhole();
};

namespace {

constexpr auto information = IMessageService::Severity::Information;
constexpr auto warning = IMessageService::Severity::Warning;
constexpr auto error = IMessageService::Severity::Error;

QString text(const CMessageModel &model, int row, int column = CMessageModel::TextColumn)
{
    return model.index(row, column).data().toString();
}

} // namespace

void MessagesTest::testEachMessageHasARow()
{
    CMessageModel model;
    model.add(information, "first");
    model.add(error, "second");
    QCOMPARE(model.rowCount(), 2);
    QCOMPARE(text(model, 0), QString("first"));
    QCOMPARE(text(model, 1), QString("second"));
    QCOMPARE(text(model, 1, CMessageModel::CountColumn), QString());
}

void MessagesTest::testRepeatedMessageIsCounted()
{
    CMessageModel model;
    for (int i = 0; i < 3; ++i) {
        model.add(error, "lost packets");
    }
    QCOMPARE(model.rowCount(), 1);
    QCOMPARE(text(model, 0, CMessageModel::CountColumn), QString::fromUtf8("3×"));
}

void MessagesTest::testSameWordsOfAnotherSeverityAreAnotherMessage()
{
    CMessageModel model;
    model.add(warning, "words");
    model.add(error, "words");
    QCOMPARE(model.rowCount(), 2);
}

void MessagesTest::testTheOldestGoAboveAThousand()
{
    CMessageModel model;
    for (int i = 0; i < 1001; ++i) {
        model.add(information, QString::number(i));
    }
    QCOMPARE(model.rowCount(), 1000);
    QCOMPARE(text(model, 0), QString("1"));
    QCOMPARE(text(model, 999), QString("1000"));
}

void MessagesTest::testServiceTakesMessagesOfAnyThreadToTheGuiThread()
{
    CMessageService service;
    std::thread([&service] { service.add(error, "from a thread"); }).join();
    QCOMPARE(service.model().rowCount(), 0);
    QTRY_COMPARE(service.model().rowCount(), 1);
    QCOMPARE(text(service.model(), 0), QString("from a thread"));
}

void MessagesTest::testLogIsHeard_data()
{
    QTest::addColumn<QByteArray>("category");
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("rows");
    QTest::newRow("a warning of ours") << QByteArray("nerix.camerapool") << int(QtWarningMsg) << 1;
    QTest::newRow("an error of ours") << QByteArray("nerix.camerapool") << int(QtCriticalMsg) << 1;
    QTest::newRow("news of ours") << QByteArray("nerix.camerapool") << int(QtInfoMsg) << 0;
    QTest::newRow("a detail of ours") << QByteArray("nerix.camerapool") << int(QtDebugMsg) << 0;
    QTest::newRow("a warning of Qt's") << QByteArray("qt.qpa") << int(QtWarningMsg) << 0;
    QTest::newRow("a warning of nobody's") << QByteArray("default") << int(QtWarningMsg) << 0;
}

void MessagesTest::testLogIsHeard()
{
    QFETCH(QByteArray, category);
    QFETCH(int, type);
    QFETCH(int, rows);
    CMessageService service;
    QLoggingCategory log(category.constData(), QtDebugMsg);
    QTest::ignoreMessage(QtMsgType(type), "words");
    switch (type) {
    case QtDebugMsg:
        qCDebug(log).noquote() << "words";
        break;
    case QtInfoMsg:
        qCInfo(log).noquote() << "words";
        break;
    case QtWarningMsg:
        qCWarning(log).noquote() << "words";
        break;
    default:
        qCCritical(log).noquote() << "words";
    }
    QCoreApplication::processEvents();
    QCOMPARE(service.model().rowCount(), rows);
}

// What the test did not expect to be written would fail it, and what it expected in vain too.
void MessagesTest::testLogIsStillWritten()
{
    QTest::ignoreMessage(QtWarningMsg, "written");
    const QLoggingCategory log("nerix.test");
    {
        CMessageService service;
        qCWarning(log).noquote() << "written";
    }
    QTest::ignoreMessage(QtWarningMsg, "written after it is gone");
    qCWarning(log).noquote() << "written after it is gone";
}

void MessagesTest::testSelectedMessagesAreCopiedInTheirOrder()
{
    CMessageModel model;
    model.add(error, "a");
    model.add(error, "b");
    model.add(error, "b");
    const QString copied = model.asText({0, 1});
    const QStringList lines = copied.split('\n');
    QCOMPARE(lines.size(), 3);
    QCOMPARE(lines.at(0).section('\t', 1), QString("\ta"));
    QCOMPARE(lines.at(1).section('\t', 1), QString::fromUtf8("2×\tb"));
    QCOMPARE(lines.at(2), QString());
}

namespace {

void fill(CMessageModel &model, int count)
{
    for (int i = 0; i < count; ++i) {
        model.add(information, QString("line %1").arg(model.rowCount()));
    }
}

} // namespace

void MessagesTest::testPanelStaysAtTheNewest()
{
    CMessageModel model;
    CMessagePanel panel(model);
    panel.resize(400, 100);
    panel.show();
    fill(model, 100);
    const auto *bar = panel.findChild<QTreeView *>()->verticalScrollBar();
    QTRY_VERIFY(bar->maximum() > 0);
    QTRY_COMPARE(bar->value(), bar->maximum());
}

void MessagesTest::testPanelStaysWhereTheUserReads()
{
    CMessageModel model;
    CMessagePanel panel(model);
    panel.resize(400, 100);
    panel.show();
    fill(model, 100);
    auto *bar = panel.findChild<QTreeView *>()->verticalScrollBar();
    QTRY_VERIFY(bar->maximum() > 0);
    QTRY_COMPARE(bar->value(), bar->maximum());
    bar->setValue(0);
    fill(model, 1);
    QCoreApplication::processEvents();
    QCOMPARE(bar->value(), 0);
}

void MessagesTest::testLongMessageIsSeenWhole()
{
    CMessageModel model;
    model.add(information, "short");
    const QString words = QString("word ").repeated(20).trimmed();
    model.add(warning, words);
    CMessagePanel panel(model);
    panel.resize(700, 400);
    panel.show();
    const auto *view = panel.findChild<QTreeView *>();
    const auto place = [&](int row) {
        return view->visualRect(model.index(row, CMessageModel::TextColumn));
    };
    // How high the words are in the column.
    const auto needed = [&] {
        const QFontMetrics font = view->fontMetrics();
        const QRect lines =
            font.boundingRect(0, 0, place(1).width(), 10000, Qt::TextWordWrap, words);
        return lines.height() / font.lineSpacing() * font.height();
    };
    QTRY_VERIFY(place(1).height() > place(0).height());
    QVERIFY(place(1).height() >= needed());
    const int before = place(1).height();
    panel.resize(500, 400);
    QTRY_VERIFY(place(1).height() > before);
    panel.resize(4000, 400);
    QTRY_COMPARE(place(1).height(), place(0).height());
}

QTEST_MAIN(MessagesTest)

#include "MessagesTest.moc"
