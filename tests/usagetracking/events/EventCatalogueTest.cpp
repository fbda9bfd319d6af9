// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// What the page of the usage events says is what is sent.

#include "CataloguePage.h"
#include "TestMain.h"
#include "TrackingFixture.h"

#include <algorithm>
#include <memory>

#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

namespace {

const char *const opened = "# nerix feature stream 1: 3 features, 1 not readable\n"
                           "DeviceModelName\tXQZ-2000\nExposureTime\t10000\nGain\t1.5\n";
const char *const closing = "# nerix feature stream 1: 3 features, 1 not readable\n"
                            "DeviceModelName\tXQZ-2000\nExposureTime\t2500\nGain\t1.5\n";

const QList<QPair<const char *, int>> counters{
    {"@StreamGrabber0/Statistic_Total_Buffer_Count", 1204},
    {"@StreamGrabber0/Statistic_Failed_Buffer_Count", 4},
    {"@StreamGrabber0/Statistic_Total_Packet_Count", 216720},
    {"@StreamGrabber0/Statistic_Resend_Request_Count", 5},
    {"@StreamGrabber0/Statistic_Resend_Packet_Count", 12},
    {"@StreamGrabber0/Statistic_Failed_Packet_Count", 9},
    {"@StreamGrabber0/Statistic_Missed_Frame_Count", 1},
    {"@StreamGrabber0/Statistic_Resynchronization_Count", 0},
};

/// The session of the page.
class PageSession
{
public:
    PageSession()
        : camera(f.host.makeCamera("Ostrand-XQZ-2000-404142", "XQZ-2000"))
        , parameters(f.host.parametersOf(camera))
        , exposure(parameters->add<FakeInteger>("@CameraDevice/ExposureTime"))
    {
        camera->vendor = QStringLiteral("Ostrand");
        parameters->add<FakeEnumeration>("@CameraDevice/AcquisitionMode")->stateText =
            QStringLiteral("Continuous");
        for (const auto &counter : counters) {
            parameters->add<FakeInteger>(counter.first)->number = counter.second;
        }
    }

    /// Plays it. @return the events that were sent.
    QStringList play()
    {
        f.start();
        comeAndOpen();
        change();
        grab();
        closeAndGo();
        f.stop();
        return f.analytics.takeCalls().filter(QRegularExpression(QStringLiteral("^ruiTrack")));
    }

    /// Plays a stop of a camera of the model \a model in the mode \a mode. @return its record.
    QString stopRecord(const QString &model, const QString &mode)
    {
        camera->cameraModel = model;
        parameters->parameter("@CameraDevice/AcquisitionMode")
            .dynamicCast<FakeEnumeration>()
            ->stateText = mode;
        f.startQuietly();
        const QStringList calls =
            f.callsFor([&] { Q_EMIT f.host.cameraStatus->cameraGrabStopped(camera); });
        return calls.value(0).section(QStringLiteral(" | "), 3).chopped(4);
    }

private:
    void comeAndOpen()
    {
        f.emitFromHost([&] {
            Q_EMIT f.host.cameraStatus->deviceConnected(camera);
            Q_EMIT f.host.enumeration->enumerationChanged();
        });
        parameters->stream = opened;
        f.openCamera(camera);
    }

    void change()
    {
        f.emitFromHost([&] {
            Q_EMIT f.host.featureTree->currentChanged(exposure);
            exposure->setValueText("5000");
            exposure->setValueText("2500");
        });
    }

    void grab()
    {
        const auto failure =
            std::make_shared<Nerix::CGrabResultData>(42U, "Failed to write C:\\data\\img.bmp");
        f.emitFromHost([&] {
            Q_EMIT f.host.cameraStatus->cameraGrabStarted(camera);
            for (int i = 0; i < 4; ++i) {
                Q_EMIT f.host.cameraStatus->cameraImageGrabbed(camera, failure);
            }
            Q_EMIT f.host.cameraStatus->cameraStatisticUpdated(camera, 1200, 4, 29.97, 7864320,
                                                               CCompressionStatistic());
            Q_EMIT f.host.cameraStatus->cameraGrabStopped(camera);
        });
    }

    void closeAndGo()
    {
        parameters->stream = closing;
        f.emitFromHost([&] {
            Q_EMIT f.host.deviceSelector->selectionChanged(camera);
            Q_EMIT f.host.cameraStatus->deviceClosing(camera);
            Q_EMIT f.host.cameraStatus->deviceDisconnected(camera);
        });
    }

    TrackingFixture f;
    const QSharedPointer<FakeCamera> camera;
    const QSharedPointer<FakeParameterCollection> parameters;
    const QSharedPointer<FakeInteger> exposure;
};

QStringList sorted(QStringList list)
{
    list.sort();
    return list;
}

/// "CATEGORY | NAME" of a call.
QString titleOf(const QString &call)
{
    return call.section(QStringLiteral(" | "), 1, 2);
}

QStringList keysOf(const QString &json, const QString &prefix = QString())
{
    QStringList keys;
    for (const QString &key : QJsonDocument::fromJson(json.toUtf8()).object().keys()) {
        keys.append(prefix + key);
    }
    return keys;
}

} // namespace

class EventCatalogueTest : public QObject
{
    Q_OBJECT

private:
    const CataloguePage m_page;

private Q_SLOTS:
    void theExamplesAreWhatASessionSends()
    {
        QCOMPARE(sorted(m_page.calls()), sorted(PageSession().play()));
    }

    void theListOfTheSessionHasTheOrderInWhichTheyAreSent()
    {
        QStringList titles;
        for (const QString &call : PageSession().play()) {
            titles.append(titleOf(call));
        }
        QCOMPARE(m_page.session, titles);
    }

    void everyEventHasASectionWithAnExample()
    {
        QStringList headings;
        for (const CataloguePage::Section &section : m_page.sections) {
            if (!section.calls.isEmpty()) {
                headings.append(section.heading);
            }
        }
        QCOMPARE(sorted(headings),
                 QStringList({"Closed", "Connected", "Failed", "FeatureChosen",
                              "InitialCameraCount", "Model", "Opened", "ParameterValueChanged",
                              "Removed", "SessionEnded", "SessionStarted", "Started", "Stopped"}));
    }

    void theTablesNameTheKeysOfTheExamples()
    {
        for (const CataloguePage::Section &section : m_page.sections) {
            for (const QString &record : section.records) {
                if (section.heading != QLatin1String("Stopped")) {
                    QCOMPARE(sorted(section.keys), keysOf(record));
                }
            }
        }
    }

    void theTablesNameTheKeysOfTheStopAndOfItsInnerObjects()
    {
        const QRegularExpression expression(m_page.regularExpression);
        for (const CataloguePage::Section &section : m_page.sections) {
            if (section.heading == QLatin1String("Stopped")) {
                const auto match = expression.match(section.records.value(0));
                QVERIFY(match.hasMatch());
                QString front = section.records.at(0).left(match.capturedStart());
                front[front.size() - 1] = '}';
                QCOMPARE(sorted(section.keys),
                         keysOf(front) + QStringList({"StatusBarStats", "StreamStats"}));
                QCOMPARE(section.innerKeys, keysOf(match.captured(1), "StatusBarStats.")
                                                + keysOf(match.captured(2), "StreamStats."));
            }
        }
    }

    void theStopIsNoJson()
    {
        const QString record = PageSession().stopRecord("ab1234", "Continuous");
        QVERIFY(record.startsWith('{') && record.endsWith('}'));
        QVERIFY(QJsonDocument::fromJson(record.toUtf8()).isNull());
    }

    void theRegularExpressionFindsTheInnerObjectsWhateverStandsInFront_data()
    {
        QTest::addColumn<QString>("model");
        QTest::addColumn<QString>("mode");
        QTest::newRow("usual") << "ab1234"
                               << "Continuous";
        QTest::newRow("quotes and backslashes") << "a\"b\\"
                                                << "c\"\\\"";
        QTest::newRow("braces and line ends") << "a{b}"
                                              << "{\n}";
        QTest::newRow("a record in the record")
            << "\"StatusBarStats\":\"{\"BPS\":9}\",\"StreamStats\":\"{\"X\":9}\"}"
            << "\",\"StatusBarStats\":\"{}";
    }

    void theRegularExpressionFindsTheInnerObjectsWhateverStandsInFront()
    {
        QFETCH(QString, model);
        QFETCH(QString, mode);
        const auto match = QRegularExpression(m_page.regularExpression)
                               .match(PageSession().stopRecord(model, mode));
        QCOMPARE(match.captured(1),
                 QString("{\"BPS\":0,\"FPS\":0,\"ImagesFailedCount\":0,\"ImagesGrabbedCount\":0}"));
        QCOMPARE(match.captured(2),
                 QString("{\"FailedBufferCount\":4,\"FailedPacketCount\":9,\"MissedFrameCount\":1,"
                         "\"ResendPacketCount\":12,\"ResendRequestCount\":5,"
                         "\"ResynchronizationCount\":0,\"TotalBufferCount\":1204,"
                         "\"TotalPacketCount\":216720}"));
    }
};

NERIX_TEST_MAIN(EventCatalogueTest)
#include "EventCatalogueTest.moc"
