// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/nerixviewer/CWrappedTextDelegate.h"

#include <QHeaderView>
#include <QTreeView>

namespace Plugin {
namespace NerixViewer {

CWrappedTextDelegate::CWrappedTextDelegate(QTreeView &view)
    : QStyledItemDelegate(&view)
    , m_view(view)
{
    view.setUniformRowHeights(false);
    view.setWordWrap(true);
    view.setItemDelegate(this);
    connect(view.header(), &QHeaderView::sectionResized, &view, &QTreeView::doItemsLayout,
            Qt::QueuedConnection);
}

CWrappedTextDelegate::~CWrappedTextDelegate() = default;

QSize CWrappedTextDelegate::sizeHint(const QStyleOptionViewItem &option,
                                     const QModelIndex &index) const
{
    constexpr int anyHeight = 1;
    // A column that takes its width from its contents is not to be asked for it.
    const QHeaderView *header = m_view.header();
    if (header->sectionResizeMode(index.column()) == QHeaderView::ResizeToContents) {
        QStyleOptionViewItem unwrapped = option;
        unwrapped.features &= ~QStyleOptionViewItem::WrapText;
        return QStyledItemDelegate::sizeHint(unwrapped, index);
    }
    QStyleOptionViewItem wrapped = option;
    wrapped.rect = QRect(0, 0, header->sectionSize(index.column()), anyHeight);
    return QStyledItemDelegate::sizeHint(wrapped, index);
}

} // namespace NerixViewer
} // namespace Plugin
