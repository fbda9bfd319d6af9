// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QStyledItemDelegate>

class QTreeView;

namespace Plugin {
namespace NerixViewer {

/// Makes the rows of a tree view as high as their texts need that are wrapped in their columns,
/// which the view does not do by itself. GUI thread.
class CWrappedTextDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// Makes \a view, which owns this, wrap the texts in its cells.
    explicit CWrappedTextDelegate(QTreeView &view);
    ~CWrappedTextDelegate() override;

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

private:
    const QTreeView &m_view;
};

} // namespace NerixViewer
} // namespace Plugin
