// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/nerixwelcome/CNerixWelcomeController.h"
#include "plugins/nerixwelcome/CWelcomePages.h"
#include "support/CPageTab.h"
#include "support/CSettingsSandbox.h"

#include <Plugin/NerixWelcome/INerixWelcomeTab.h>

#include <QQmlComponent>
#include <QQmlContext>
#include <QQuickItem>
#include <QRegularExpression>
#include <QTest>
#include <QTranslator>

using Plugin::NerixWelcome::CNerixWelcomeController;
using Plugin::NerixWelcome::CWelcomePages;

namespace {

// Every text is "translated".
class CTranslator : public QTranslator
{
public:
    QString translate(const char *, const char *, const char *, int) const override
    {
        return QStringLiteral("translated");
    }
    bool isEmpty() const override
    {
        return false;
    }
};

} // namespace

class WelcomePagesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testPageFindsWhatItsTabPublishes();
    void testPageFindsTheWelcomeScreen();
    void testEachLoadIsANewPage();
    void testPageIsTranslatedAnewWhenTheLanguageChanges();
    void testPageThatCannotBeShownSaysWhy_data();
    void testPageThatCannotBeShownSaysWhy();

    void testModuleHasASizeAndAFont();
    void testControlOfTheModule_data();
    void testControlOfTheModule();
    void testIndicatorOfTheCheckBoxHasTheSizeThatThePageWants();

private:
    CSettingsSandbox m_sandbox;
    CNerixWelcomeController m_controller;
};

void WelcomePagesTest::testPageFindsWhatItsTabPublishes()
{
    CWelcomePages pages(m_controller);
    CPageTab tab("import QtQuick 2.12\nItem { objectName: _greeting }");
    const CWelcomePages::Page page = pages.load(tab);
    QVERIFY2(page.item, qPrintable(page.error));
    QVERIFY(page.error.isEmpty());
    QCOMPARE(page.item->objectName(), QStringLiteral("Hello"));
}

void WelcomePagesTest::testPageFindsTheWelcomeScreen()
{
    CWelcomePages pages(m_controller);
    CPageTab tab("import QtQuick 2.12\nItem { visible: !_navigationController.showAtStartup\n"
                 "function leave() { _navigationController.onCloseNerixWelcomeClicked() } }");
    const CWelcomePages::Page page = pages.load(tab);
    QVERIFY2(page.item, qPrintable(page.error));
    QVERIFY(!page.item->isVisible());
    m_controller.setShowAtStartup(false);
    QVERIFY(page.item->isVisible());
    m_controller.show();
    QMetaObject::invokeMethod(page.item.get(), "leave");
    QVERIFY(!m_controller.isVisible());
}

void WelcomePagesTest::testEachLoadIsANewPage()
{
    CWelcomePages pages(m_controller);
    CPageTab tab("import QtQuick 2.12\nItem {}");
    CWelcomePages::Page page = pages.load(tab);
    const QPointer<QQuickItem> first(page.item.get());
    page = pages.load(tab);
    QVERIFY(!first);
    QVERIFY(page.item);
}

void WelcomePagesTest::testPageIsTranslatedAnewWhenTheLanguageChanges()
{
    CWelcomePages pages(m_controller);
    CPageTab tab("import QtQuick 2.12\nItem { objectName: qsTr(\"Text\") }");
    const CWelcomePages::Page page = pages.load(tab);
    QCOMPARE(page.item->objectName(), QStringLiteral("Text"));
    CTranslator translator;
    QCoreApplication::installTranslator(&translator);
    QCOMPARE(page.item->objectName(), QStringLiteral("translated"));
    QCoreApplication::removeTranslator(&translator);
    QCOMPARE(page.item->objectName(), QStringLiteral("Text"));
}

void WelcomePagesTest::testPageThatCannotBeShownSaysWhy_data()
{
    QTest::addColumn<QString>("qml");
    QTest::addColumn<bool>("setsUp");
    QTest::addColumn<bool>("lost");
    QTest::addColumn<QString>("reason");

    const QString good = QStringLiteral("import QtQuick 2.12\nItem {}");
    QTest::newRow("not set up") << good << false << false << "its plug-in did not set it up";
    QTest::newRow("no file") << good << true << true << "No such file or directory";
    QTest::newRow("wrong syntax") << "import QtQuick 2.12\nItem {" << true << false
                                  << "Page.qml:2.* Expected token";
    QTest::newRow("unknown module")
        << "import Nowhere 1.0\nItem {}" << true << false << "module \"Nowhere\" is not installed";
    QTest::newRow("nothing to see")
        << "import QtQml 2.12\nQtObject {}" << true << false << "Page.qml is not an Item";
}

void WelcomePagesTest::testPageThatCannotBeShownSaysWhy()
{
    QFETCH(QString, qml);
    QFETCH(bool, setsUp);
    QFETCH(bool, lost);
    QFETCH(QString, reason);
    CWelcomePages pages(m_controller);
    CPageTab tab(qml, "News", setsUp);
    if (lost) {
        tab.loseThePage();
    }
    const QRegularExpression expected("^The page \"News\" cannot be shown: .*" + reason);
    QTest::ignoreMessage(QtWarningMsg, expected);
    const CWelcomePages::Page page = pages.load(tab);
    QVERIFY(!page.item);
    QVERIFY2(expected.match(page.error).hasMatch(), qPrintable(page.error));
}

void WelcomePagesTest::testModuleHasASizeAndAFont()
{
    CWelcomePages pages(m_controller);
    CPageTab tab("import QtQuick 2.12\nimport NerixWelcome 1.0\n"
                 "Text { width: Constants.width; height: Constants.height; font: Constants.font }");
    const CWelcomePages::Page page = pages.load(tab);
    QVERIFY2(page.item, qPrintable(page.error));
    QCOMPARE(QSizeF(page.item->width(), page.item->height()), QSizeF(1000, 750));
    QCOMPARE(page.item->property("font").value<QFont>(), QGuiApplication::font());
}

void WelcomePagesTest::testControlOfTheModule_data()
{
    QTest::addColumn<QString>("type");
    QTest::newRow("button") << "NerixFlatButton";
    QTest::newRow("check box") << "NerixCheckBox";
}

void WelcomePagesTest::testControlOfTheModule()
{
    QFETCH(QString, type);
    CWelcomePages pages(m_controller);
    CPageTab tab(QStringLiteral("import QtQuick 2.12\nimport NerixWelcome 1.0\n"
                                "%1 { text: \"Some text\" }")
                     .arg(type));
    const CWelcomePages::Page page = pages.load(tab);
    QVERIFY2(page.item, qPrintable(page.error));
    const auto *content = page.item->property("contentItem").value<QQuickItem *>();
    QCOMPARE(content->property("text").toString(), QStringLiteral("Some text"));
    constexpr int elideRight = 1;
    QCOMPARE(content->property("elide").toInt(), elideRight);
    QVERIFY(page.item->implicitWidth() >= content->implicitWidth());
    QVERIFY(page.item->implicitHeight() >= content->implicitHeight());
}

void WelcomePagesTest::testIndicatorOfTheCheckBoxHasTheSizeThatThePageWants()
{
    CWelcomePages pages(m_controller);
    CPageTab tab("import QtQuick 2.12\nimport NerixWelcome 1.0\n"
                 "NerixCheckBox { indicator.width: 30; indicator.height: 31; "
                 "textElide: Text.ElideNone }");
    const CWelcomePages::Page page = pages.load(tab);
    QVERIFY2(page.item, qPrintable(page.error));
    const auto *indicator = page.item->property("indicator").value<QQuickItem *>();
    QCOMPARE(QSizeF(indicator->width(), indicator->height()), QSizeF(30, 31));
    const auto *content = page.item->property("contentItem").value<QQuickItem *>();
    QCOMPARE(content->property("leftPadding").toReal(), 36.0);
    constexpr int elideNone = 3;
    QCOMPARE(content->property("elide").toInt(), elideNone);
}

QTEST_MAIN(WelcomePagesTest)

#include "WelcomePagesTest.moc"
