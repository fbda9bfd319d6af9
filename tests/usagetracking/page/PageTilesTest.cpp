// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// The two answer tiles: looks by state, words, pictures, mutual exclusion.

#include "ConsentPage.h"
#include "TestMain.h"

#include <QColor>
#include <QFont>
#include <QQmlProperty>

namespace {

const char yes[] = "yesCheckbox";
const char no[] = "noCheckbox";

QQuickItem *part(const ConsentPage &page, const char *tile, const char *name)
{
    return page.item(tile)->findChild<QQuickItem *>(QString::fromLatin1(name));
}

QColor colourOf(const QQuickItem *item, const char *property)
{
    const auto colour = QQmlProperty::read(item, QString::fromLatin1(property)).value<QColor>();
    // As it is drawn: two colours may differ in more than their bytes.
    return QColor::fromRgba(colour.rgba());
}

QString imageOf(const ConsentPage &page, const char *tile)
{
    return part(page, tile, "buttonSymbol")->property("source").toUrl().toString();
}

const QString images = QStringLiteral("qrc:/usagetracking/qml/images/");

} // namespace

class PageTilesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        storeNoAnswer();
    }

    void looks_data()
    {
        QTest::addColumn<bool>("enabled");
        QTest::addColumn<bool>("hovered");
        QTest::addColumn<bool>("checked");
        QTest::addColumn<QString>("state");
        QTest::addColumn<QColor>("border");
        QTest::addColumn<int>("borderWidth");
        QTest::addColumn<QColor>("background");
        QTest::addColumn<int>("textAlpha");
        QTest::addColumn<qreal>("opacity");

        const QColor white(255, 255, 255);
        const QColor grey(0xf0, 0xf0, 0xf0);
        const QColor blue(0x00, 0x7a, 0xd9);
        // Half as bright again as #007ad9: its value 217 becomes 325, of which what exceeds 255
        // goes off the saturation.
        const QColor lightBlue(0x46, 0xae, 0xff);
        QTest::newRow("normal") << true << false << false << "normal" << grey << 3 << white << 153
                                << 1.0;
        QTest::newRow("hovered") << true << true << false << "hovered" << lightBlue << 2 << white
                                 << 255 << 1.0;
        QTest::newRow("checked") << true << false << true << "checked" << blue << 3 << white << 255
                                 << 1.0;
        QTest::newRow("checked wins over hovered")
            << true << true << true << "checked" << blue << 3 << white << 255 << 1.0;
        QTest::newRow("disabled") << false << false << false << "disabled" << grey << 3 << grey
                                  << 102 << 0.8;
        QTest::newRow("disabled wins over checked")
            << false << false << true << "disabled" << grey << 3 << grey << 102 << 0.8;
        QTest::newRow("disabled wins over hovered")
            << false << true << false << "disabled" << grey << 3 << grey << 102 << 0.8;
    }

    void looks()
    {
        QFETCH(bool, enabled);
        QFETCH(bool, hovered);
        QFETCH(bool, checked);
        ConsentPage page;
        QQuickItem *tile = page.item(yes);
        tile->setEnabled(enabled);
        tile->setProperty("checked", checked);
        page.hoverNothing();
        if (hovered) {
            page.hover(yes);
        }
        QTEST(tile->state(), "state");
        const QQuickItem *background = part(page, yes, "buttonBackground");
        QTEST(colourOf(background, "border.color"), "border");
        QTEST(QQmlProperty::read(background, QStringLiteral("border.width")).toInt(),
              "borderWidth");
        QTEST(colourOf(background, "color"), "background");
        QTEST(background->opacity(), "opacity");
        const QQuickItem *inner = part(page, yes, "buttonInnerBackground");
        QCOMPARE(colourOf(inner, "color"), QColor(0xf0, 0xf0, 0xf0));
        QTEST(inner->opacity(), "opacity");
        QFETCH(int, textAlpha);
        QCOMPARE(colourOf(part(page, yes, "textItem"), "color"), QColor(0, 0, 0, textAlpha));
    }

    void hoverComesAndGoesWithThePointer()
    {
        ConsentPage page;
        for (int i = 0; i < 2; ++i) {
            page.hover(no);
            QCOMPARE(page.item(no)->state(), QStringLiteral("hovered"));
            QCOMPARE(page.item(yes)->state(), QStringLiteral("normal"));
            page.hoverNothing();
            QCOMPARE(page.item(no)->state(), QStringLiteral("normal"));
        }
    }

    void partsAreInTheirPlaces()
    {
        const ConsentPage page;
        const QQuickItem *background = part(page, yes, "buttonBackground");
        QCOMPARE(QSizeF(background->width(), background->height()), QSizeF(175, 175));
        QCOMPARE(background->z(), 1.0);
        QCOMPARE(background->property("radius").toReal(), 4.0);
        const QQuickItem *inner = part(page, yes, "buttonInnerBackground");
        QCOMPARE(QRectF(inner->position(), inner->size()), QRectF(8, 8, 159, 159));
        QCOMPARE(inner->z(), 1.0);
        QCOMPARE(inner->property("radius").toReal(), 4.0);
        const QQuickItem *symbol = part(page, yes, "buttonSymbol");
        QCOMPARE(QRectF(symbol->position(), symbol->size()), QRectF(62.5, 62.5, 50, 50));
        QCOMPARE(symbol->z(), 2.0);
        const QQuickItem *text = part(page, yes, "textItem");
        QCOMPARE(QRectF(text->position(), text->size()), QRectF(0, 0, 175, 175));
        QCOMPARE(text->property("topPadding").toReal(), 135.0);
        QCOMPARE(text->property("horizontalAlignment").toInt(), int(Qt::AlignHCenter));
        QCOMPARE(text->property("elide").toInt(), int(Qt::ElideRight));
        QCOMPARE(text->z(), 2.0);
    }

    void wordsAreDrawn_data()
    {
        QTest::addColumn<QByteArray>("tile");
        QTest::addColumn<QString>("word");
        QTest::newRow("yes") << QByteArray(yes) << "Yes";
        QTest::newRow("no") << QByteArray(no) << "No";
    }

    void wordsAreDrawn()
    {
        QFETCH(QByteArray, tile);
        const ConsentPage page;
        const QQuickItem *drawn = part(page, tile.constData(), "textItem");
        QVERIFY(drawn->isVisible());
        QTEST(drawn->property("text").toString(), "word");
        QCOMPARE(drawn->property("font").value<QFont>().pixelSize(), 12);
    }

    void wordFollowsTheTextAndTheFontOfItsTile()
    {
        const ConsentPage page;
        QFont font(QStringLiteral("Letters of the tile"));
        font.setPixelSize(20);
        page.item(no)->setProperty("text", QStringLiteral("Perhaps"));
        page.item(no)->setProperty("font", font);
        const QQuickItem *drawn = part(page, no, "textItem");
        QCOMPARE(drawn->property("text").toString(), QStringLiteral("Perhaps"));
        const auto drawnFont = drawn->property("font").value<QFont>();
        QCOMPARE(drawnFont.family(), QStringLiteral("Letters of the tile"));
        QCOMPARE(drawnFont.pixelSize(), 20);
    }

    void shadowLiesBehindTheWholeTile()
    {
        const ConsentPage page;
        const QQuickItem *shadow = part(page, yes, "buttonShadow");
        QCOMPARE(QRectF(shadow->position(), shadow->size()), QRectF(0, 0, 175, 175));
        QVERIFY(shadow->z() < part(page, yes, "buttonBackground")->z());
        QCOMPARE(shadow->property("horizontalOffset").toReal(), 1.0);
        QCOMPARE(shadow->property("verticalOffset").toReal(), 1.0);
        QCOMPARE(shadow->property("radius").toReal(), 5.0);
        QCOMPARE(colourOf(shadow, "color"), QColor(0xb8, 0xb8, 0xb8));
    }

    void picturesFollowTheAnswer()
    {
        ConsentPage page;
        QCOMPARE(imageOf(page, yes), images + "thumbs-up-grey.png");
        QCOMPARE(imageOf(page, no), images + "thumbs-down-grey.png");
        page.click(yes);
        QCOMPARE(imageOf(page, yes), images + "thumbs-up-green.png");
        QCOMPARE(imageOf(page, no), images + "thumbs-down-grey.png");
        page.click(no);
        QCOMPARE(imageOf(page, yes), images + "thumbs-up-grey.png");
        QCOMPARE(imageOf(page, no), images + "thumbs-down-red.png");
        page.item(no)->setEnabled(false);
        QCOMPARE(imageOf(page, no), images + "thumbs-down-grey.png");
    }

    void picturesAreThere()
    {
        const ConsentPage page;
        constexpr int ready = 1;
        for (const char *tile : {yes, no}) {
            QCOMPARE(part(page, tile, "buttonSymbol")->property("status").toInt(), ready);
            QCOMPARE(part(page, tile, "buttonSymbol")->property("sourceSize").toSize(),
                     QSize(50, 50));
        }
    }

    void atMostOneTileIsChecked()
    {
        ConsentPage page;
        for (const char *tile : {yes, no, no, yes, yes, no}) {
            page.click(tile);
            QCOMPARE(page.of(yes, "checked").toBool(), tile == yes);
            QCOMPARE(page.of(no, "checked").toBool(), tile == no);
        }
    }

    void tileOfItsOwnHasDefaults()
    {
        ConsentPage page;
        QQmlComponent component(&page.pages.engine(),
                                QUrl("qrc:///usagetracking/qml/DataPrivacyCheckbox.qml"));
        const QScopedPointer<QObject> tile(component.create());
        QVERIFY2(tile, qPrintable(component.errorString()));
        QCOMPARE(tile->property("implicitWidth").toReal(), 100.0);
        QCOMPARE(tile->property("implicitHeight").toReal(), 64.0);
        QCOMPARE(tile->property("checked").toBool(), false);
        QCOMPARE(tile->property("textColor").toString(), QStringLiteral("#000000"));
        QCOMPARE(tile->property("highlightColor").toString(), QStringLiteral("#007ad9"));
        QCOMPARE(tile->property("backgroundColor").toString(), QStringLiteral("#f0f0f0"));
        QCOMPARE(tile->property("enabledImageSource").toUrl(), QUrl());
        QCOMPARE(tile->property("disableImageSource").toUrl(), QUrl());
        QCOMPARE(tile->property("imageSourceSize").toSizeF(), QSizeF(80, 80));
    }
};

NERIX_TEST_MAIN(PageTilesTest)
#include "PageTilesTest.moc"
