// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// Where everything is on the page at its default size, 1000 x 685, and how it is written. Heights
// of texts depend on the fonts of the machine; all else is given in pixels.

#include "ConsentPage.h"
#include "TestMain.h"

#include <memory>

#include <QColor>
#include <QDir>
#include <QFile>
#include <QFont>
#include <QQmlComponent>
#include <QQmlEngine>

namespace {

const char intro[] = "selectTrackingLabelTop";
const char bottom[] = "selectTrackingLabelBottom";

QRectF geometryOf(const ConsentPage &page, const char *name)
{
    const QQuickItem *item = page.item(name);
    return {item->x(), item->y(), item->width(), item->height()};
}

} // namespace

class PageLayoutTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        storeAnswer(true);
    }

    void fixedPlaces_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QRectF>("geometry");
        QTest::newRow("page") << QByteArray("dataPrivacyPage") << QRectF(0, 0, 1000, 685);
        QTest::newRow("left panel") << QByteArray("leftPanel") << QRectF(0, 0, 750, 685);
        QTest::newRow("right panel") << QByteArray("rightPanel") << QRectF(750, 0, 250, 685);
        QTest::newRow("buttons") << QByteArray("buttonsRectangle") << QRectF(25, 515, 200, 160);
        QTest::newRow("Apply") << QByteArray("applyButton") << QRectF(0, 0, 200, 50);
        QTest::newRow("Close") << QByteArray("closeButton") << QRectF(0, 60, 200, 50);
        QTest::newRow("show on launch")
            << QByteArray("showOnStartCheckBox") << QRectF(-6, 120, 200, 40);
    }

    void fixedPlaces()
    {
        QFETCH(QByteArray, name);
        const ConsentPage page;
        QTEST(geometryOf(page, name.constData()), "geometry");
    }

    void leftPanelFlowsDownFromTheIntro()
    {
        const ConsentPage page;
        const QRectF text = geometryOf(page, intro);
        QCOMPARE(text.topLeft(), QPointF(75, 35));
        QCOMPARE(text.width(), 630.0);
        QCOMPARE(geometryOf(page, "yesCheckbox"), QRectF(200, 35 + text.height() + 10, 175, 175));
        QCOMPARE(geometryOf(page, "noCheckbox"), QRectF(405, 35 + text.height() + 10, 175, 175));
        const QRectF below = geometryOf(page, bottom);
        QCOMPARE(below.topLeft(), QPointF(75, 35 + text.height() + 10 + 175 + 30));
        QCOMPARE(below.width(), 630.0);
    }

    void rightPanelFlowsDownFromTheHint()
    {
        const ConsentPage page;
        const QRectF one = geometryOf(page, "trackingLabelOne");
        QCOMPARE(one.topLeft(), QPointF(25, 35));
        QCOMPARE(one.width(), 200.0);
        const QRectF two = geometryOf(page, "trackingLabelTwo");
        QCOMPARE(two.topLeft(), QPointF(25, 35 + one.height() + 14));
        QCOMPARE(two.width(), 200.0);
    }

    void panelsFollowTheSizeOfThePage()
    {
        const ConsentPage page;
        page.item("dataPrivacyPage")->setSize({1300, 900});
        QCOMPARE(geometryOf(page, "leftPanel"), QRectF(0, 0, 1050, 900));
        // A row places its items before the next frame.
        QTRY_COMPARE(geometryOf(page, "rightPanel"), QRectF(1050, 0, 250, 900));
        QCOMPARE(geometryOf(page, "yesCheckbox").x(), 350.0);
        QCOMPARE(geometryOf(page, "buttonsRectangle").y(), 730.0);
    }

    void colours_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QColor>("colour");
        QTest::newRow("left panel") << QByteArray("leftPanel") << QColor(255, 255, 255);
        QTest::newRow("right panel") << QByteArray("rightPanel") << QColor(240, 240, 240);
        QTest::newRow("buttons") << QByteArray("buttonsRectangle") << QColor(240, 240, 240);
    }

    void colours()
    {
        QFETCH(QByteArray, name);
        const ConsentPage page;
        QTEST(page.of(name.constData(), "color").value<QColor>(), "colour");
    }

    void letters_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<int>("pixels");
        QTest::newRow("intro") << QByteArray(intro) << 12;
        QTest::newRow("below the tiles") << QByteArray(bottom) << 12;
        QTest::newRow("yes") << QByteArray("yesCheckbox") << 12;
        QTest::newRow("no") << QByteArray("noCheckbox") << 12;
        QTest::newRow("withdraw hint") << QByteArray("trackingLabelOne") << 14;
        QTest::newRow("more information") << QByteArray("trackingLabelTwo") << 14;
        QTest::newRow("Apply") << QByteArray("applyButton") << 16;
        QTest::newRow("Close") << QByteArray("closeButton") << 16;
        QTest::newRow("show on launch") << QByteArray("showOnStartCheckBox") << 12;
    }

    void letters()
    {
        QFETCH(QByteArray, name);
        const ConsentPage page;
        QTEST(page.of(name.constData(), "font").value<QFont>().pixelSize(), "pixels");
    }

    void tileIsWrittenInTheFontThatAllPagesShare()
    {
        // A viewer with letters of its own.
        const QTemporaryDir modules;
        QVERIFY(QDir(modules.path()).mkdir(QStringLiteral("NerixWelcome")));
        const auto write = [&](const char *name, const QByteArray &text) {
            QFile file(
                modules.filePath(QStringLiteral("NerixWelcome/%1").arg(QLatin1String(name))));
            return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
        };
        QVERIFY(write("qmldir", "module NerixWelcome\nsingleton Constants 1.0 Constants.qml\n"));
        QVERIFY(write("Constants.qml",
                      "pragma Singleton\nimport QtQuick 2.12\nQtObject {\n    property font font: "
                      "Qt.font({ family: \"Letters of the viewer\" })\n}\n"));
        QQmlEngine engine;
        engine.addImportPath(modules.path());
        QQmlComponent component(&engine, QUrl("qrc:///usagetracking/qml/DataPrivacyCheckbox.qml"));
        const std::unique_ptr<QObject> tile(component.create());
        QVERIFY2(tile, qPrintable(component.errorString()));
        QCOMPARE(tile->property("font").value<QFont>().family(),
                 QStringLiteral("Letters of the viewer"));
    }

    void longTextsAreWrappedBetweenWords()
    {
        const ConsentPage page;
        constexpr int wordWrap = 1;
        for (const char *name : {intro, bottom, "trackingLabelOne", "trackingLabelTwo"}) {
            QCOMPARE(page.of(name, "wrapMode").toInt(), wordWrap);
        }
        for (const char *name : {intro, bottom}) {
            QCOMPARE(page.of(name, "lineHeight").toReal(), 1.4);
        }
    }

    void launchBoxHasALargeIndicatorAndItsWholeText()
    {
        const ConsentPage page;
        const auto *indicator = page.of("showOnStartCheckBox", "indicator").value<QQuickItem *>();
        QCOMPARE(QSizeF(indicator->width(), indicator->height()), QSizeF(22, 22));
        constexpr int elideNone = 3;
        QCOMPARE(page.of("showOnStartCheckBox", "textElide").toInt(), elideNone);
    }

    void nothingIsCutAndNothingOverlaps_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<bool>("yes");
        for (const char *language : {"en", "ja", "ko", "zh"}) {
            QTest::addRow("%s, yes", language) << QString::fromLatin1(language) << true;
            QTest::addRow("%s, no", language) << QString::fromLatin1(language) << false;
        }
    }

    void nothingIsCutAndNothingOverlaps()
    {
        QFETCH(QString, language);
        QFETCH(bool, yes);
        storeAnswer(yes);
        const ConsentPage page;
        QVERIFY(page.fixture.plugin->setLanguage(language));
        QVERIFY(geometryOf(page, bottom).bottom() <= 685);
        QVERIFY(geometryOf(page, "trackingLabelTwo").bottom()
                < geometryOf(page, "buttonsRectangle").top());
        for (const char *name : {intro, bottom, "trackingLabelOne", "trackingLabelTwo"}) {
            QVERIFY(page.of(name, "contentWidth").toReal() <= page.of(name, "width").toReal());
        }
        for (const char *name : {"applyButton", "closeButton"}) {
            const auto *content = page.of(name, "contentItem").value<QQuickItem *>();
            QVERIFY(content->implicitWidth() <= content->width());
        }
        // Its text may reach into the margin, but not out of the window.
        const auto *launch = page.of("showOnStartCheckBox", "contentItem").value<QQuickItem *>();
        QVERIFY(launch->mapToScene({launch->implicitWidth(), 0}).x() <= 1000);
    }
};

NERIX_TEST_MAIN(PageLayoutTest)
#include "PageLayoutTest.moc"
