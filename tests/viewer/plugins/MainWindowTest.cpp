// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/nerixviewer/CMainWindow.h"
#include "support/CSettingsSandbox.h"
#include "support/Texts.h"

#include <QAction>
#include <QDockWidget>
#include <QMenu>
#include <QMenuBar>
#include <QSignalSpy>
#include <QTest>
#include <QToolBar>

using Plugin::NerixViewer::CMainWindow;

class MainWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void testMenusStandInTheMenuBarInTheirOrder();
    void testPanelHasTheCaptionOfItsWidgetAndFollowsIt();
    void testPanelStandsAtItsSide_data();
    void testPanelStandsAtItsSide();
    void testFrameOfAPanelGoesWithItsWidget();
    void testToolBarShowsTextBesideTheSymbol();
    void testCloseBoxAsksAndTheWindowStays();
    void testLayoutIsRemembered();
    void testLayoutCanBeResetToHowItWasBuilt();
    void testDamagedLayoutIsNotUsed();
    void testSidePanelsAreNarrowerInANarrowWindow_data();
    void testSidePanelsAreNarrowerInANarrowWindow();
    void testSidePanelsGetTheirWidthBack();
    void testWidthThatTheUserGivesIsKept();
    void testResetInANarrowWindowSparesTheMiddle();
    void testRestartInANarrowWindowKeepsTheWidths();

private:
    QDockWidget *addPanel(CMainWindow &window, const char *name,
                          CMainWindow::Side side = CMainWindow::Side::Left);

    QPair<QDockWidget *, QDockWidget *> showWithSidePanels(CMainWindow &window);
    static void drag(CMainWindow &window, QDockWidget *panel, int width);

    QScopedPointer<CSettingsSandbox> m_sandbox;
    QScopedPointer<CMainWindow> m_window;
};

void MainWindowTest::init()
{
    m_sandbox.reset(new CSettingsSandbox);
    m_window.reset(new CMainWindow);
}

void MainWindowTest::cleanup()
{
    m_window.reset();
    m_sandbox.reset();
}

QDockWidget *MainWindowTest::addPanel(CMainWindow &window, const char *name, CMainWindow::Side side)
{
    auto *panel = new QWidget;
    panel->setWindowTitle(name);
    return window.addPanel(name, panel, side);
}

QPair<QDockWidget *, QDockWidget *> MainWindowTest::showWithSidePanels(CMainWindow &window)
{
    const QPair<QDockWidget *, QDockWidget *> panels(
        addPanel(window, "Left"), addPanel(window, "Right", CMainWindow::Side::Right));
    window.setCentralWidget(new QWidget);
    window.restoreLayout();
    window.show();
    QCoreApplication::sendPostedEvents();
    return panels;
}

// As if by its edge.
void MainWindowTest::drag(CMainWindow &window, QDockWidget *panel, int width)
{
    window.resizeDocks({panel}, {width}, Qt::Horizontal);
    QCoreApplication::sendPostedEvents();
}

void MainWindowTest::testMenusStandInTheMenuBarInTheirOrder()
{
    QMenu file("File");
    QMenu help("Help");
    m_window->setMenus({&file, &help});
    const auto actions = m_window->menuBar()->actions();
    QCOMPARE(actions.size(), 2);
    QCOMPARE(actions.at(0)->menu(), &file);
    QCOMPARE(actions.at(1)->menu(), &help);
}

void MainWindowTest::testPanelHasTheCaptionOfItsWidgetAndFollowsIt()
{
    const QDockWidget *dock = addPanel(*m_window, "Cameras");
    QCOMPARE(dock->windowTitle(), QString("Cameras"));
    QCOMPARE(dock->toggleViewAction()->text(), QString("Cameras"));
    dock->widget()->setWindowTitle("Kameras");
    QCOMPARE(dock->windowTitle(), QString("Kameras"));
    QCOMPARE(dock->toggleViewAction()->text(), QString("Kameras"));
}

void MainWindowTest::testPanelStandsAtItsSide_data()
{
    QTest::addColumn<int>("side");
    QTest::addColumn<int>("area");
    QTest::newRow("left") << int(CMainWindow::Side::Left) << int(Qt::LeftDockWidgetArea);
    QTest::newRow("right") << int(CMainWindow::Side::Right) << int(Qt::RightDockWidgetArea);
    QTest::newRow("bottom") << int(CMainWindow::Side::Bottom) << int(Qt::BottomDockWidgetArea);
}

void MainWindowTest::testPanelStandsAtItsSide()
{
    QFETCH(int, side);
    QFETCH(int, area);
    QDockWidget *dock = addPanel(*m_window, "Panel", CMainWindow::Side(side));
    QCOMPARE(int(m_window->dockWidgetArea(dock)), area);
}

void MainWindowTest::testFrameOfAPanelGoesWithItsWidget()
{
    const QPointer<QDockWidget> dock(addPanel(*m_window, "Panel"));
    delete dock->widget();
    QTRY_VERIFY(!dock);
}

void MainWindowTest::testToolBarShowsTextBesideTheSymbol()
{
    QAction action("Open");
    m_window->addToolBarAction(&action);
    const auto *toolBar = m_window->findChild<QToolBar *>();
    QCOMPARE(toolBar->actions(), QList<QAction *>{&action});
    QCOMPARE(toolBar->toolButtonStyle(), Qt::ToolButtonTextBesideIcon);
}

void MainWindowTest::testCloseBoxAsksAndTheWindowStays()
{
    const QSignalSpy asked(m_window.data(), &CMainWindow::closeRequested);
    m_window->show();
    QVERIFY(!m_window->close());
    QVERIFY(m_window->isVisible());
    QCOMPARE(asked.count(), 1);
}

void MainWindowTest::testLayoutIsRemembered()
{
    QDockWidget *dock = addPanel(*m_window, "Panel");
    m_window->restoreLayout();
    m_window->addDockWidget(Qt::RightDockWidgetArea, dock);
    m_window->resize(900, 600);
    m_window->saveLayout();

    CMainWindow next;
    QDockWidget *nextDock = addPanel(next, "Panel");
    next.restoreLayout();
    QCOMPARE(next.dockWidgetArea(nextDock), Qt::RightDockWidgetArea);
    QCOMPARE(next.size(), QSize(900, 600));
}

void MainWindowTest::testLayoutCanBeResetToHowItWasBuilt()
{
    QDockWidget *dock = addPanel(*m_window, "Panel");
    m_window->restoreLayout();
    m_window->addDockWidget(Qt::BottomDockWidgetArea, dock);
    dock->hide();
    m_window->resetLayout();
    QCOMPARE(m_window->dockWidgetArea(dock), Qt::LeftDockWidgetArea);
    QVERIFY(!dock->isHidden());
}

void MainWindowTest::testDamagedLayoutIsNotUsed()
{
    QSettings().setValue("MainWindow/State", QByteArray("rubbish"));
    QSettings().setValue("MainWindow/Geometry", QByteArray("rubbish"));
    QDockWidget *dock = addPanel(*m_window, "Panel");
    m_window->restoreLayout();
    QCOMPARE(m_window->dockWidgetArea(dock), Qt::LeftDockWidgetArea);
    QCOMPARE(m_window->size(), QSize(1280, 800));
}

void MainWindowTest::testSidePanelsAreNarrowerInANarrowWindow_data()
{
    QTest::addColumn<int>("window");
    QTest::addColumn<int>("left");
    QTest::addColumn<int>("right");

    QTest::newRow("a full window") << 1280 << 280 << 420;
    QTest::newRow("four fifths of it") << 1024 << 224 << 336;
    QTest::newRow("half of it, at once") << 640 << 140 << 210;
    QTest::newRow("a wider one gives all to the middle") << 1920 << 280 << 420;
}

void MainWindowTest::testSidePanelsAreNarrowerInANarrowWindow()
{
    QFETCH(int, window);
    const auto panels = showWithSidePanels(*m_window);
    m_window->resize(window, 700);
    QCoreApplication::sendPostedEvents();
    QTEST(panels.first->width(), "left");
    QTEST(panels.second->width(), "right");
}

void MainWindowTest::testSidePanelsGetTheirWidthBack()
{
    const auto panels = showWithSidePanels(*m_window);
    for (int width = 1280; width > 500; width -= 7) {
        m_window->resize(width, 700);
    }
    m_window->resize(1280, 700);
    QCOMPARE(panels.first->width(), 280);
    QCOMPARE(panels.second->width(), 420);
}

void MainWindowTest::testWidthThatTheUserGivesIsKept()
{
    const auto panels = showWithSidePanels(*m_window);
    m_window->resize(1024, 700);
    drag(*m_window, panels.first, 160);
    QCOMPARE(panels.first->width(), 160);
    m_window->resize(1024, 600);
    QCOMPARE(panels.first->width(), 160);
    m_window->resize(1280, 700);
    QCOMPARE(panels.first->width(), 200);
    QCOMPARE(panels.second->width(), 420);
}

void MainWindowTest::testResetInANarrowWindowSparesTheMiddle()
{
    const auto panels = showWithSidePanels(*m_window);
    m_window->resize(1024, 700);
    drag(*m_window, panels.first, 160);
    m_window->resetLayout();
    QCoreApplication::sendPostedEvents();
    QCOMPARE(panels.first->width(), 224);
    QCOMPARE(panels.second->width(), 336);
}

void MainWindowTest::testRestartInANarrowWindowKeepsTheWidths()
{
    const auto panels = showWithSidePanels(*m_window);
    m_window->resize(1024, 700);
    drag(*m_window, panels.first, 160);
    m_window->saveLayout();

    CMainWindow next;
    const auto nextPanels = showWithSidePanels(next);
    QCOMPARE(next.width(), 1024);
    QCOMPARE(nextPanels.first->width(), 160);
    QCOMPARE(nextPanels.second->width(), 336);
    next.resize(1280, 700);
    QCOMPARE(nextPanels.first->width(), 200);
    QCOMPARE(nextPanels.second->width(), 420);
}

QTEST_MAIN(MainWindowTest)

#include "MainWindowTest.moc"
