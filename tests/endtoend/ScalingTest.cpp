// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "CViewerProcess.h"

#include <QImage>
#include <QTest>

// Windows grow with the fineness of the screen, in steps as fine as the user chose.
class ScalingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testWindowHasMorePixelsOnAFineScreen_data();
    void testWindowHasMorePixelsOnAFineScreen();
};

void ScalingTest::testWindowHasMorePixelsOnAFineScreen_data()
{
    QTest::addColumn<QString>("dotsPerInch");
    QTest::addColumn<QSize>("pixels");
    QTest::newRow("100 %") << "96" << QSize(320, 240);
    QTest::newRow("125 %") << "120" << QSize(400, 300);
    QTest::newRow("150 %") << "144" << QSize(480, 360);
    QTest::newRow("200 %") << "192" << QSize(640, 480);
}

void ScalingTest::testWindowHasMorePixelsOnAFineScreen()
{
    QFETCH(QString, dotsPerInch);
    CViewerProcess viewer;
    viewer.storeConsent(true, false);
    viewer.setOptions({"--show-windows"});
    viewer.setEnvironment("QT_QPA_PLATFORM", "offscreen");
    viewer.setEnvironment("QT_FONT_DPI", dotsPerInch);
    const QString picture = viewer.path("window.png");
    QCOMPARE(viewer.run(QStringLiteral("menu.trigger('Help.Action.Contents');\n"
                                       "windows.resize('Contents - Help', 320, 240);\n"
                                       "windows.save('Contents - Help', '%1');")
                            .arg(picture)),
             0);
    QTEST(QImage(picture).size(), "pixels");
}

QTEST_GUILESS_MAIN(ScalingTest)

#include "ScalingTest.moc"
