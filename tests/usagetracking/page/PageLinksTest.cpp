// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// The links of the page, clicked where they are drawn.

#include "ConsentPage.h"
#include "TestMain.h"

#include <CHelpHelper.h>
#include <DocumentationHelper.h>

namespace {

const char bottom[] = "selectTrackingLabelBottom";
const char more[] = "trackingLabelTwo";

const QString statement = QStringLiteral("DataPrivacy.txt");
const QString faq = QStringLiteral("https://www.ostrand.example/faq");
const QString support = QStringLiteral("https://www.ostrand.example/support/contact");

} // namespace

class PageLinksTest : public QObject
{
    Q_OBJECT

private:
    QStringList m_opened;

private Q_SLOTS:
    void init()
    {
        m_opened.clear();
        CHelpHelper::setHandler([this](CHelpHelper::HelpType type) {
            m_opened.append(QStringLiteral("help %1").arg(int(type)));
            return true;
        });
        DocumentationHelper::setHandler([this](const QUrl &url, bool inViewer) {
            m_opened.append(inViewer ? "in the viewer" : url.toString());
            return true;
        });
    }

    void cleanup()
    {
        CHelpHelper::setHandler({});
        DocumentationHelper::setHandler({});
    }

    void linkOpens_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<bool>("yes");
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("target");
        QTest::addColumn<QString>("opened");
        for (const char *language : {"en", "ja", "ko", "zh"}) {
            const QString code = QString::fromLatin1(language);
            QTest::addRow("%s: statement", language)
                << code << true << QByteArray(more) << statement << "help 5";
            QTest::addRow("%s: FAQ", language) << code << true << QByteArray(more) << faq << faq;
            QTest::addRow("%s: support", language)
                << code << true << QByteArray(more) << support << support;
            QTest::addRow("%s: let us know, thank-you", language)
                << code << true << QByteArray(bottom) << support << support;
            QTest::addRow("%s: let us know, sorry", language)
                << code << false << QByteArray(bottom) << support << support;
        }
    }

    void linkOpens()
    {
        QFETCH(QString, language);
        QFETCH(bool, yes);
        QFETCH(QByteArray, text);
        QFETCH(QString, target);
        storeAnswer(yes);
        ConsentPage page;
        QVERIFY(page.fixture.plugin->setLanguage(language));
        const QPoint position = page.linkPosition(text.constData(), target);
        QVERIFY(!position.isNull());
        QTest::mouseClick(&page.window, Qt::LeftButton, {}, position);
        QFETCH(QString, opened);
        QCOMPARE(m_opened, QStringList(opened));
    }

    void clickBesideALinkOpensNothing()
    {
        storeAnswer(true);
        ConsentPage page;
        page.click(bottom);
        QTest::mouseClick(&page.window, Qt::LeftButton, {},
                          page.item(more)->mapToScene({2, 2}).toPoint());
        QCOMPARE(m_opened, QStringList());
    }

    void cursorIsAHandOverALink_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("below the tiles") << QByteArray(bottom);
        QTest::newRow("more information") << QByteArray(more);
    }

    void cursorIsAHandOverALink()
    {
        QFETCH(QByteArray, text);
        storeAnswer(true);
        ConsentPage page;
        const QPoint link = page.linkPosition(text.constData(), support);
        const QPoint beside = page.item(text.constData())->mapToScene({2, 2}).toPoint();
        for (int i = 0; i < 2; ++i) {
            QTest::mouseMove(&page.window, link);
            QCOMPARE(page.of(text.constData(), "hoveredLink").toString(), support);
            QTRY_COMPARE(page.window.cursor().shape(), Qt::PointingHandCursor);
            QTest::mouseMove(&page.window, beside);
            QCOMPARE(page.of(text.constData(), "hoveredLink").toString(), QString());
            QTRY_COMPARE(page.window.cursor().shape(), Qt::ArrowCursor);
        }
    }
};

NERIX_TEST_MAIN(PageLinksTest)
#include "PageLinksTest.moc"
