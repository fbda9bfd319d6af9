// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "plugins/camerapool/CGrabFigures.h"
#include "plugins/camerapool/GrabErrors.h"

#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

using namespace CameraPool;
using namespace std::chrono_literals;

// The figures of the status bar and the errors of failed images.
class GrabFiguresTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void figuresAreDueAfterASecond();
    void ratesAreThoseOfTheLastInterval();
    void totalRatesAreThoseOfTheWholeGrab();
    void failuresAreCountedAndHaveNoRate();
    void aGrabWithoutTimeHasNoRate();
    void everyBufferStatusHasItsErrorCodeAndText_data();
    void everyBufferStatusHasItsErrorCodeAndText();
    void errorCodesAreDifferent();
    void pageOfTheEventsNamesEveryErrorAndNoOther();
};

namespace {

const CGrabFigures::Time begin{1000s};

} // namespace

void GrabFiguresTest::figuresAreDueAfterASecond()
{
    CGrabFigures figures(begin);
    QVERIFY(!figures.isDue(begin));
    QVERIFY(!figures.isDue(begin + 999ms));
    QVERIFY(figures.isDue(begin + 1000ms));
    figures.take(begin + 1100ms);
    QVERIFY(!figures.isDue(begin + 2000ms));
    QVERIFY(figures.isDue(begin + 2100ms));
}

void GrabFiguresTest::ratesAreThoseOfTheLastInterval()
{
    CGrabFigures figures(begin);
    figures.addImage(1000);
    figures.take(begin + 1s);
    figures.addImage(300);
    figures.addImage(300);
    figures.addImage(300);
    const auto taken = figures.take(begin + 3s);
    QCOMPARE(taken.imagesGrabbed, 4);
    QCOMPARE(taken.fps, 1.5);
    QCOMPARE(taken.bps, quint64(450));
    QCOMPARE(figures.take(begin + 4s).fps, 0.0);
}

void GrabFiguresTest::totalRatesAreThoseOfTheWholeGrab()
{
    CGrabFigures figures(begin);
    figures.addImage(1000);
    figures.addImage(1000);
    figures.take(begin + 1s);
    figures.addImage(1000);
    const auto total = figures.total(begin + 4s);
    QCOMPARE(total.imagesGrabbed, 3);
    QCOMPARE(total.fps, 0.75);
    QCOMPARE(total.bps, quint64(750));
}

void GrabFiguresTest::failuresAreCountedAndHaveNoRate()
{
    CGrabFigures figures(begin);
    figures.addFailure();
    figures.addFailure();
    const auto taken = figures.take(begin + 1s);
    QCOMPARE(taken.imagesGrabbed, 0);
    QCOMPARE(taken.imagesFailed, 2);
    QCOMPARE(taken.fps, 0.0);
    QCOMPARE(figures.total(begin + 2s).imagesFailed, 2);
}

void GrabFiguresTest::aGrabWithoutTimeHasNoRate()
{
    CGrabFigures figures(begin);
    figures.addImage(1000);
    QCOMPARE(figures.total(begin).fps, 0.0);
    QCOMPARE(figures.total(begin).bps, quint64(0));
}

void GrabFiguresTest::everyBufferStatusHasItsErrorCodeAndText_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<quint32>("code");
    QTest::addColumn<QByteArray>("text");
    const auto row = [](const char *rule, int status, quint32 code, const char *text) {
        QTest::newRow(rule) << status << code << QByteArray(text);
    };
    row("whole", 0, 0, "");
    row("unknown", -1, 0x0A000001, "The image failed for an unknown reason.");
    row("cleared", 1, 0x0A000002, "The image buffer was cleared before use.");
    row("timeout", 2, 0x0A000003, "The image is incomplete: its packets did not arrive in time.");
    row("missing packets", 3, 0x0A000004, "The image is incomplete: packets were lost on the way.");
    row("wrong packet", 4, 0x0A000005, "The image is damaged: packets with wrong numbers arrived.");
    row("size mismatch", 5, 0x0A000006, "The image is larger than the camera announced.");
    row("filling", 6, 0x0A000007, "The image was handed over before it was whole.");
    row("aborted", 7, 0x0A000008, "The image was given up because the grab ended.");
    row("a status of the future", 99, 0x0A000001, "The image failed for an unknown reason.");
}

void GrabFiguresTest::everyBufferStatusHasItsErrorCodeAndText()
{
    QFETCH(int, status);
    const CGrabError &error = grabError(ArvBufferStatus(status));
    QTEST(quint32(error.code), "code");
    QTEST(QByteArray(error.text), "text");
}

void GrabFiguresTest::errorCodesAreDifferent()
{
    QSet<quint32> codes{noImageError().code};
    for (int status = -1; status <= 7; ++status) {
        codes.insert(grabError(ArvBufferStatus(status)).code);
    }
    QCOMPARE(codes.size(), 10);
    QCOMPARE(noImageError().code, 0x0A000009u);
    QCOMPARE(QByteArray(noImageError().text), QByteArray("No image arrived in time."));
}

void GrabFiguresTest::pageOfTheEventsNamesEveryErrorAndNoOther()
{
    QStringList rows;
    const auto addRow = [&rows](const CGrabError &error) {
        rows += QStringLiteral("| `0x%1` | %2 |")
                    .arg(error.code, 8, 16, QLatin1Char('0'))
                    .arg(QString::fromUtf8(error.text));
    };
    for (int status = ARV_BUFFER_STATUS_UNKNOWN; status <= ARV_BUFFER_STATUS_ABORTED; ++status) {
        if (status != ARV_BUFFER_STATUS_SUCCESS) {
            addRow(grabError(ArvBufferStatus(status)));
        }
    }
    addRow(noImageError());
    rows.sort();

    QFile page(NERIX_SOURCE_DIR "/docs/events.md");
    QVERIFY(page.open(QIODevice::ReadOnly));
    QStringList described = QString::fromUtf8(page.readAll())
                                .split('\n')
                                .filter(QRegularExpression("^\\| `0x[0-9a-f]{8}` \\|"));
    described.sort();
    QCOMPARE(described, rows);
}

QTEST_GUILESS_MAIN(GrabFiguresTest)
#include "GrabFiguresTest.moc"
