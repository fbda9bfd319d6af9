// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/nerixviewer/CMessagePanel.h"

#include "plugins/nerixviewer/CMessageModel.h"
#include "plugins/nerixviewer/CWrappedTextDelegate.h"
#include "windows/OnLanguageChange.h"

#include <algorithm>

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QScrollBar>
#include <QTreeView>
#include <QVBoxLayout>

namespace Plugin {
namespace NerixViewer {

CMessagePanel::CMessagePanel(CMessageModel &model, QWidget *parent)
    : QWidget(parent)
    , m_model(model)
    , m_view(new QTreeView(this))
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_view);
    m_view->setModel(&m_model);
    m_view->setRootIsDecorated(false);
    m_view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_view->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_view->header()->setSectionResizeMode(CMessageModel::TextColumn, QHeaderView::Stretch);
    new CWrappedTextDelegate(*m_view);
    addActions();
    followNewest();
    Windows::onLanguageChange(this, [this] {
        setWindowTitle(tr("Messages"));
        m_view->setAccessibleName(tr("Messages"));
        m_model.retranslate();
    });
}

CMessagePanel::~CMessagePanel() = default;

void CMessagePanel::addActions()
{
    auto *copyAction = new QAction(this);
    copyAction->setShortcut(QKeySequence::Copy);
    copyAction->setShortcutContext(Qt::WidgetShortcut);
    connect(copyAction, &QAction::triggered, this, &CMessagePanel::copy);
    auto *clearAction = new QAction(this);
    connect(clearAction, &QAction::triggered, &m_model, &CMessageModel::clear);
    m_view->addActions({copyAction, clearAction});
    m_view->setContextMenuPolicy(Qt::ActionsContextMenu);
    Windows::onLanguageChange(this, [copyAction, clearAction] {
        copyAction->setText(tr("&Copy"));
        clearAction->setText(tr("C&lear"));
    });
}

void CMessagePanel::copy() const
{
    QList<int> rows;
    const auto selected = m_view->selectionModel()->selectedRows();
    for (const QModelIndex &index : selected) {
        rows.append(index.row());
    }
    std::sort(rows.begin(), rows.end());
    QGuiApplication::clipboard()->setText(m_model.asText(rows));
}

void CMessagePanel::followNewest()
{
    connect(&m_model, &QAbstractItemModel::rowsAboutToBeInserted, this, [this] {
        const QScrollBar *bar = m_view->verticalScrollBar();
        m_isAtNewest = bar->value() == bar->maximum();
    });
    connect(&m_model, &QAbstractItemModel::rowsInserted, this, [this] {
        if (m_isAtNewest) {
            m_view->scrollToBottom();
        }
    });
}

} // namespace NerixViewer
} // namespace Plugin
