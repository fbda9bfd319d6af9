// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// The main window with a camera that grabs, as it is drawn, against pictures that a person has
// looked at. What moves (the image of the camera, its figures) is left out. After an intended
// change run the test with NERIX_KEEP_PICTURES=1, which writes the pictures anew, and look at each.

#include "CSimulatorProcess.h"
#include "CViewerProcess.h"
#include "PictureDifference.h"

#include <QDir>
#include <QImage>
#include <QPainter>
#include <QTest>

class MainWindowPicturesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testWindowLooksAsBefore_data();
    void testWindowLooksAsBefore();
    void testLookTellsThePicturesApart();
};

namespace {

const char folder[] = NERIX_SOURCE_DIR "/tests/endtoend/pictures";

constexpr QSize size(1280, 800); // of the window, in device-independent pixels

// The image of the camera with its scale below, and the figures of the status bar.
constexpr QRect moving[] = {{286, 80, 570, 580}, {880, 776, 400, 24}};

QImage withoutWhatMoves(const QImage &picture)
{
    QImage kept = picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                      .convertToFormat(QImage::Format_RGB32);
    QPainter painter(&kept);
    for (const QRect &area : moving) {
        painter.fillRect(area, Qt::black);
    }
    return kept;
}

QString fileOf(const QString &name)
{
    return QString("%1/%2.png").arg(folder, name);
}

const char script[] = R"JS(
language.set("LANGUAGE");
menu.trigger("NerixViewer.Action.Appearance.APPEARANCE");
var camera = cameras.waitFor(1, 60000)[0];
cameras.select(camera);
cameras.open(camera);
features.select(camera, "ExposureTime");
grab.start(camera);
grab.waitFor(camera, 5, 60000);
var title = windows.titles()[0];
windows.resize(title, 1280, 800);
sleep(1500);
windows.save(title, "PICTURE");
grab.stop(camera);
)JS";

} // namespace

void MainWindowPicturesTest::testWindowLooksAsBefore_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("appearance");
    QTest::addColumn<QString>("scale");
    QTest::newRow("en-light") << "en"
                              << "Light"
                              << "1";
    QTest::newRow("en-dark") << "en"
                             << "Dark"
                             << "1";
    QTest::newRow("en-light-200") << "en"
                                  << "Light"
                                  << "2";
    QTest::newRow("ja-light") << "ja"
                              << "Light"
                              << "1";
    QTest::newRow("ko-light") << "ko"
                              << "Light"
                              << "1";
    QTest::newRow("zh-light") << "zh"
                              << "Light"
                              << "1";
}

void MainWindowPicturesTest::testWindowLooksAsBefore()
{
    QFETCH(QString, language);
    QFETCH(QString, appearance);
    QFETCH(QString, scale);
    CSimulatorProcess camera;
    QVERIFY2(camera.start(), qPrintable(camera.errorText()));
    CViewerProcess viewer;
    viewer.storeConsent(true, false);
    viewer.setOptions({"--show-windows"});
    viewer.setEnvironment("QT_SCALE_FACTOR", scale);
    QDir(viewer.path("")).mkpath("config/Ostrand");
    QFile settings(viewer.path("config/Ostrand/nerix-viewer.ini"));
    QVERIFY(settings.open(QIODevice::Append));
    settings.write("[NerixWelcome]\nShowAtStartup=false\n");
    settings.close();
    const QString picture = viewer.path("main.png");
    QVERIFY2(viewer.run(QString(script)
                            .replace("LANGUAGE", language)
                            .replace("APPEARANCE", appearance)
                            .replace("PICTURE", picture))
                 == 0,
             qPrintable(viewer.logged().join('\n')));

    const QString name = QTest::currentDataTag();
    const QImage kept = withoutWhatMoves(QImage(picture));
    if (qEnvironmentVariableIsSet("NERIX_KEEP_PICTURES")) {
        const auto few = Qt::AvoidDither | Qt::ThresholdDither; // colours, for a small file
        QVERIFY(kept.convertToFormat(QImage::Format_Indexed8, few).save(fileOf(name)));
    }
    const double found = pictureDifference(kept, QImage(fileOf(name)));
    if (found > pictureTolerance) {
        const QString file = QDir::temp().filePath(name + ".png");
        kept.save(file);
        QFAIL(qPrintable(QString("%1 % of the picture differ, see %2").arg(found * 100).arg(file)));
    }
}

// The tolerance is not so wide that another language or appearance would pass.
void MainWindowPicturesTest::testLookTellsThePicturesApart()
{
    const QStringList files = QDir(folder).entryList({"*.png"});
    QCOMPARE(files.size(), 6);
    for (const QString &one : files) {
        for (const QString &other : files) {
            const bool same = one == other || (one + other).contains("200");
            QVERIFY2(same
                         || pictureDifference(QImage(QDir(folder).filePath(one)),
                                              QImage(QDir(folder).filePath(other)))
                                > pictureTolerance,
                     qPrintable(one + ' ' + other));
        }
    }
}

QTEST_MAIN(MainWindowPicturesTest)

#include "MainWindowPicturesTest.moc"
