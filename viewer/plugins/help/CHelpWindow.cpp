// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/help/CHelpWindow.h"

#include "plugins/help/CHelpBrowser.h"
#include "windows/OnLanguageChange.h"
#include "windows/ShownText.h"

#include <DocumentationHelper.h>

#include <utility>

#include <QAction>
#include <QKeyEvent>
#include <QLineEdit>
#include <QStatusBar>
#include <QStyle>
#include <QToolBar>
#include <QWindow>

namespace Plugin {
namespace Help {

namespace {

constexpr QSize firstSize(820, 700);
constexpr int searchWidth = 260;

} // namespace

CHelpWindow::CHelpWindow(const CHelpDocuments &documents, QWidget *parent)
    : QMainWindow(parent, Qt::Window)
    , m_toolBar(addToolBar(QString()))
    , m_browser(new CHelpBrowser(documents, this))
    , m_search(new QLineEdit(this))
{
    setObjectName(QStringLiteral("helpWindow"));
    setCentralWidget(m_browser);
    m_toolBar->setMovable(false);
    m_toolBar->setContextMenuPolicy(Qt::PreventContextMenu);
    statusBar()->setSizeGripEnabled(true);
    fillToolBar(documents);
    addSearch();
    connect(m_browser, &QTextBrowser::historyChanged, this, &CHelpWindow::setTitle);
    connect(m_browser, &CHelpBrowser::addressClicked, this, &CHelpWindow::openAddress);
    connect(m_browser, QOverload<const QUrl &>::of(&QTextBrowser::highlighted), this,
            [this](const QUrl &link) {
                statusBar()->showMessage(Windows::shownLine(link.toString()));
            });
    Windows::onLanguageChange(this, [this] { setTitle(); });
    resize(firstSize);
}

CHelpWindow::~CHelpWindow() = default;

void CHelpWindow::showDocument(const QString &path, QWindow *over)
{
    create();
    if (windowHandle()->transientParent() != over) {
        // Whether a window is blocked is settled when it is shown.
        hide();
        windowHandle()->setTransientParent(over);
    }
    m_browser->showDocument(path);
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
    m_browser->setFocus();
}

void CHelpWindow::readAnew()
{
    m_browser->readAnew();
    setTitle();
}

CHelpBrowser *CHelpWindow::browser() const
{
    return m_browser;
}

void CHelpWindow::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape) {
        close();
    } else {
        QMainWindow::keyPressEvent(event);
    }
}

QAction *CHelpWindow::addEntry(const char *icon, std::function<QString()> text,
                               const QList<QKeySequence> &shortcuts, std::function<void()> act)
{
    auto *action = new QAction(QIcon::fromTheme(QString::fromLatin1(icon)), QString(), this);
    action->setShortcuts(shortcuts);
    action->setObjectName(QString::fromLatin1(icon));
    Windows::onLanguageChange(action, [action, text = std::move(text)] {
        const QString key = action->shortcut().toString(QKeySequence::NativeText);
        action->setText(text());
        action->setToolTip(Windows::toolTipText(QStringLiteral("%1 (%2)").arg(text(), key)));
    });
    connect(action, &QAction::triggered, this, std::move(act));
    m_toolBar->addAction(action);
    return action;
}

void CHelpWindow::fillToolBar(const CHelpDocuments &documents)
{
    QAction *back = addEntry(
        "go-previous", [] { return tr("Back"); },
        {QKeySequence(Qt::ALT + Qt::Key_Left), QKeySequence(Qt::Key_Back)},
        [this] { m_browser->backward(); });
    back->setIcon(style()->standardIcon(QStyle::SP_ArrowBack));
    back->setEnabled(false);
    connect(m_browser, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
    QAction *forward = addEntry(
        "go-next", [] { return tr("Forward"); },
        {QKeySequence(Qt::ALT + Qt::Key_Right), QKeySequence(Qt::Key_Forward)},
        [this] { m_browser->forward(); });
    forward->setIcon(style()->standardIcon(QStyle::SP_ArrowForward));
    forward->setEnabled(false);
    connect(m_browser, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
    addEntry(
        "go-home", [] { return tr("Contents"); }, {QKeySequence(Qt::ALT + Qt::Key_Home)},
        [this, documents] { m_browser->showDocument(documents.path(CHelpHelper::HelpContents)); })
        ->setEnabled(documents.has(CHelpHelper::HelpContents));
    m_toolBar->addSeparator();
    addEntry(
        "zoom-out", [] { return tr("Smaller"); }, {QKeySequence(Qt::CTRL + Qt::Key_Minus)},
        [this] { zoomBy(-1); });
    addEntry(
        "zoom-in", [] { return tr("Larger"); },
        {QKeySequence(Qt::CTRL + Qt::Key_Plus), QKeySequence(Qt::CTRL + Qt::Key_Equal)},
        [this] { zoomBy(1); });
    addEntry(
        "zoom-original", [] { return tr("Usual Size"); }, {QKeySequence(Qt::CTRL + Qt::Key_0)},
        [this] { zoomBy(-m_browser->zoom()); });
    m_toolBar->addSeparator();
}

void CHelpWindow::addSearch()
{
    m_search->setObjectName(QStringLiteral("search"));
    m_search->setMaximumWidth(searchWidth);
    m_search->setClearButtonEnabled(true);
    Windows::onLanguageChange(m_search, [this] {
        m_search->setPlaceholderText(tr("Find in this document"));
        m_search->setAccessibleName(tr("Find in this document"));
    });
    m_toolBar->addWidget(m_search);
    connect(m_search, &QLineEdit::returnPressed, this, [this] { search(false); });
    addEntry(
        "go-up-search", [] { return tr("Find Previous"); }, {QKeySequence(Qt::SHIFT + Qt::Key_F3)},
        [this] { search(true); });
    addEntry(
        "go-down-search", [] { return tr("Find Next"); }, {QKeySequence(Qt::Key_F3)},
        [this] { search(false); });
    auto *find = new QAction(this);
    find->setShortcut(QKeySequence::Find);
    connect(find, &QAction::triggered, this, [this] {
        m_search->setFocus(Qt::ShortcutFocusReason);
        m_search->selectAll();
    });
    addAction(find);
}

void CHelpWindow::setTitle()
{
    m_toolBar->setWindowTitle(tr("Tool Bar"));
    const bool isEmpty = m_browser->source().isEmpty();
    setWindowTitle(isEmpty ? tr("Help") : tr("%1 - Help").arg(m_browser->title()));
}

void CHelpWindow::openAddress(const QUrl &address)
{
    if (!DocumentationHelper::OpenUrl(address.toString(), false)) {
        statusBar()->showMessage(
            Windows::shownLine(tr("%1 cannot be opened").arg(address.toString())));
    }
}

void CHelpWindow::search(bool backward)
{
    const QString text = m_search->text();
    if (text.isEmpty()) {
        m_search->setFocus(Qt::ShortcutFocusReason);
        return;
    }
    const bool found = m_browser->search(text, backward ? QTextDocument::FindBackward
                                                        : QTextDocument::FindFlags());
    statusBar()->showMessage(found ? QString() : tr("\"%1\" is not in this document").arg(text));
}

void CHelpWindow::zoomBy(int steps)
{
    m_browser->setZoom(m_browser->zoom() + steps);
}

} // namespace Help
} // namespace Plugin
