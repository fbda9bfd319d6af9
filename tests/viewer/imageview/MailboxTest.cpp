// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/imageview/CMailbox.h"
#include "TestImage.h"

#include <atomic>
#include <thread>

#include <QTest>

using ImageView::CMailbox;

class MailboxTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testNewestImageWins();
    void testHoldsNoImageButTheNewest();
    void testTellsOnceUntilItIsEmptied();
    void testCamerasAreKeptApart();
    void testFailuresAreCountedByTheirText();
    void testFailureDoesNotPushAnImageOut();
    void testFailureText_data();
    void testFailureText();
    void testClosedMailboxTellsAndHoldsNothing();
    void testEachImageIsEitherTakenOrReplaced();
};

namespace {

const QString camera = QStringLiteral("A");

CMailbox::News takeFrom(CMailbox &mailbox)
{
    return mailbox.take(camera);
}

} // namespace

void MailboxTest::testNewestImageWins()
{
    CMailbox mailbox([](const QString &) {});
    const auto last = greyResult({3});
    mailbox.put(camera, greyResult({1}));
    mailbox.put(camera, greyResult({2}));
    mailbox.put(camera, last);
    QCOMPARE(takeFrom(mailbox).image, last);
    QVERIFY(!takeFrom(mailbox).image);
}

void MailboxTest::testHoldsNoImageButTheNewest()
{
    CMailbox mailbox([](const QString &) {});
    std::vector<std::weak_ptr<const Nerix::CGrabResultData>> images;
    for (int i = 0; i < 1000; ++i) {
        const auto image = greyResult({1});
        images.push_back(image);
        mailbox.put(camera, image);
    }
    for (int i = 0; i < 999; ++i) {
        QVERIFY(images.at(std::size_t(i)).expired());
    }
    QVERIFY(!images.back().expired());
    takeFrom(mailbox);
    QVERIFY(images.back().expired());
}

void MailboxTest::testTellsOnceUntilItIsEmptied()
{
    QStringList told;
    CMailbox mailbox([&told](const QString &identity) { told.append(identity); });
    mailbox.put(camera, greyResult({1}));
    mailbox.put(camera, greyResult({2}));
    mailbox.put(camera, failedResult(1, "lost"));
    QCOMPARE(told, QStringList{camera});
    takeFrom(mailbox);
    mailbox.put(camera, failedResult(1, "lost"));
    mailbox.put(camera, greyResult({2}));
    QCOMPARE(told, (QStringList{camera, camera}));
}

void MailboxTest::testCamerasAreKeptApart()
{
    QStringList told;
    CMailbox mailbox([&told](const QString &identity) { told.append(identity); });
    const auto first = greyResult({1});
    const auto second = greyResult({2});
    mailbox.put("A", first);
    mailbox.put("B", second);
    QCOMPARE(told, (QStringList{"A", "B"}));
    QCOMPARE(mailbox.take("A").image, first);
    QCOMPARE(mailbox.take("B").image, second);
    QVERIFY(!mailbox.take("C").image);
}

void MailboxTest::testFailuresAreCountedByTheirText()
{
    CMailbox mailbox([](const QString &) {});
    for (const char *text : {"lost", "late", "lost", "lost", "late"}) {
        mailbox.put(camera, failedResult(1, text));
    }
    const auto failures = takeFrom(mailbox).failures;
    QCOMPARE(failures.size(), 2);
    QCOMPARE(failures.at(0).text, QString("lost"));
    QCOMPARE(failures.at(0).count, 3);
    QCOMPARE(failures.at(1).text, QString("late")); // the last one is at the end
    QCOMPARE(failures.at(1).count, 2);
    QVERIFY(takeFrom(mailbox).failures.isEmpty());
}

void MailboxTest::testFailureDoesNotPushAnImageOut()
{
    CMailbox mailbox([](const QString &) {});
    const auto image = greyResult({1});
    mailbox.put(camera, image);
    mailbox.put(camera, failedResult(1, "lost"));
    const CMailbox::News news = takeFrom(mailbox);
    QCOMPARE(news.image, image);
    QCOMPARE(news.failures.size(), 1);
}

void MailboxTest::testFailureText_data()
{
    QTest::addColumn<QByteArray>("description");
    QTest::addColumn<QString>("text");

    QTest::newRow("the description") << QByteArray("Packets were lost.") << "Packets were lost.";
    QTest::newRow("on one line") << QByteArray("Packets\n  were lost.") << "Packets were lost.";
    QTest::newRow("without one, the code")
        << QByteArray() << "The image failed with the code 0x0000002a.";
    QTest::newRow("with an empty one, the code")
        << QByteArray(" ") << "The image failed with the code 0x0000002a.";
}

void MailboxTest::testFailureText()
{
    QFETCH(QByteArray, description);
    const auto result = failedResult(42, description.isNull() ? nullptr : description.constData());
    QTEST(ImageView::failureText(*result), "text");
}

void MailboxTest::testClosedMailboxTellsAndHoldsNothing()
{
    int told = 0;
    CMailbox mailbox([&told](const QString &) { ++told; });
    const auto before = greyResult({1});
    const auto after = greyResult({1});
    mailbox.put(camera, before);
    mailbox.close();
    mailbox.put(camera, after);
    QCOMPARE(told, 1);
    QCOMPARE(before.use_count(), 1L);
    QCOMPARE(after.use_count(), 1L);
    QVERIFY(!takeFrom(mailbox).image);
}

// A grab that is faster than its reader.
void MailboxTest::testEachImageIsEitherTakenOrReplaced()
{
    constexpr int imageCount = 20000;
    std::atomic<int> waiting{0};
    CMailbox mailbox([&waiting](const QString &) { ++waiting; });
    std::atomic<bool> isOver{false};
    std::thread grab([&] {
        for (int i = 1; i <= imageCount; ++i) {
            mailbox.put(camera, greyResult(std::vector<std::uint8_t>(std::size_t(i))));
        }
        isOver = true;
    });
    int taken = 0;
    int last = 0;
    bool isInOrder = true;
    const auto read = [&] {
        const CMailbox::News news = takeFrom(mailbox);
        if (news.image) {
            ++taken;
            isInOrder = isInOrder && news.image->image().width > last;
            last = news.image->image().width;
        }
    };
    while (!isOver) {
        read();
    }
    grab.join();
    read();
    QVERIFY(isInOrder);
    QCOMPARE(last, imageCount);
    QCOMPARE(waiting.load(), taken); // told once for each time that there was something to take
}

QTEST_GUILESS_MAIN(MailboxTest)
#include "MailboxTest.moc"
