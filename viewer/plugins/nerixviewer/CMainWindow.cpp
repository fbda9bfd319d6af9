// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/nerixviewer/CMainWindow.h"

#include "plugins/nerixviewer/CSidePanels.h"
#include "windows/OnLanguageChange.h"

#include <QCloseEvent>
#include <QDockWidget>
#include <QMenuBar>
#include <QScreen>
#include <QSettings>
#include <QStatusBar>
#include <QStyle>
#include <QToolBar>

namespace Plugin {
namespace NerixViewer {

namespace {

const QLatin1String geometryKey("MainWindow/Geometry");
const QLatin1String stateKey("MainWindow/State");

// A layout of another version is not used, since its panels may be others.
constexpr int layoutVersion = 1;

constexpr QSize firstSize(1280, 800);

// The width, or for the bottom the height, of the panels until the user drags them.
int firstExtent(Qt::DockWidgetArea area)
{
    switch (area) {
    case Qt::LeftDockWidgetArea:
        return 280;
    case Qt::RightDockWidgetArea:
        return 420;
    default:
        return 120;
    }
}

Qt::DockWidgetArea areaOf(CMainWindow::Side side)
{
    switch (side) {
    case CMainWindow::Side::Left:
        return Qt::LeftDockWidgetArea;
    case CMainWindow::Side::Right:
        return Qt::RightDockWidgetArea;
    case CMainWindow::Side::Bottom:
        break;
    }
    return Qt::BottomDockWidgetArea;
}

} // namespace

CMainWindow::CMainWindow(QWidget *parent)
    : QMainWindow(parent)
    , m_toolBar(new QToolBar(this))
    , m_sidePanels(std::make_unique<CSidePanels>(*this, firstSize.width()))
{
    resize(firstSize);
    setObjectName(QStringLiteral("MainWindow"));
    setDockNestingEnabled(true);
    setCorner(Qt::BottomLeftCorner, Qt::LeftDockWidgetArea);
    setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
    m_toolBar->setObjectName(QStringLiteral("MainWindow.ToolBar"));
    m_toolBar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    addToolBar(m_toolBar);
    statusBar();
    Windows::onLanguageChange(this, [this] {
        setWindowTitle(tr("Nerix Viewer"));
        m_toolBar->setWindowTitle(tr("Tool Bar"));
    });
}

CMainWindow::~CMainWindow() = default;

void CMainWindow::setMenus(const QList<QMenu *> &menus)
{
    for (QMenu *menu : menus) {
        menuBar()->addMenu(menu);
    }
}

QDockWidget *CMainWindow::addPanel(const QString &name, QWidget *panel, Side side)
{
    auto *dock = new QDockWidget(panel->windowTitle(), this);
    dock->setObjectName(name);
    dock->setWidget(panel);
    connect(panel, &QWidget::windowTitleChanged, dock, &QWidget::setWindowTitle);
    connect(panel, &QObject::destroyed, dock, &QObject::deleteLater);
    addDockWidget(areaOf(side), dock);
    m_sidePanels->add(dock);
    return dock;
}

void CMainWindow::addToolBarAction(QAction *action)
{
    m_toolBar->addAction(action);
}

void CMainWindow::restoreLayout()
{
    setFirstSizes();
    m_builtState = saveState(layoutVersion);
    const QSettings settings;
    if (!restoreGeometry(settings.value(geometryKey).toByteArray())) {
        takeFirstPlace();
    }
    if (restoreState(settings.value(stateKey).toByteArray(), layoutVersion)) {
        m_sidePanels->adopt();
    }
}

void CMainWindow::setFirstSizes()
{
    const auto docks = findChildren<QDockWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (QDockWidget *dock : docks) {
        const Qt::DockWidgetArea area = dockWidgetArea(dock);
        if (area == Qt::BottomDockWidgetArea) {
            resizeDocks({dock}, {firstExtent(area)}, Qt::Vertical);
        } else {
            m_sidePanels->setFullWidth(dock, firstExtent(area));
        }
    }
}

// In the middle; all of a screen that is too small. The window manager would move it too, but when
// dialogs have placed themselves over the window already.
void CMainWindow::takeFirstPlace()
{
    const QRect room = screen()->availableGeometry();
    const QSize largest = room.size() - QSize(0, style()->pixelMetric(QStyle::PM_TitleBarHeight));
    if (size() != size().boundedTo(largest)) {
        resize(size().boundedTo(largest));
        setWindowState(windowState() | Qt::WindowMaximized);
    }
    const QPoint middle = room.center() - rect().center();
    move(qMax(room.left(), middle.x()), qMax(room.top(), middle.y()));
}

void CMainWindow::saveLayout() const
{
    QSettings settings;
    settings.setValue(geometryKey, saveGeometry());
    settings.setValue(stateKey, saveState(layoutVersion));
}

void CMainWindow::resetLayout()
{
    restoreState(m_builtState, layoutVersion);
    setFirstSizes();
}

void CMainWindow::resizeEvent(QResizeEvent *event)
{
    QMainWindow::resizeEvent(event);
    m_sidePanels->follow();
}

void CMainWindow::closeEvent(QCloseEvent *event)
{
    event->ignore();
    Q_EMIT closeRequested();
}

} // namespace NerixViewer
} // namespace Plugin
