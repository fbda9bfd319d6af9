// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/usagedatalog/CEventFilter.h"

#include "plugins/usagedatalog/CEventModel.h"

namespace Plugin {
namespace UsageDataLog {

CEventFilter::CEventFilter(QObject *parent)
    : QSortFilterProxyModel(parent)
{}

CEventFilter::~CEventFilter() = default;

void CEventFilter::setText(const QString &text)
{
    if (text != m_text) {
        m_text = text;
        invalidateFilter();
    }
}

bool CEventFilter::filterAcceptsRow(int row, const QModelIndex &parent) const
{
    if (m_text.isEmpty()) {
        return true;
    }
    for (int column = 0; column < sourceModel()->columnCount(parent); ++column) {
        const QModelIndex cell = sourceModel()->index(row, column, parent);
        if (cell.data().toString().contains(m_text, Qt::CaseInsensitive)) {
            return true;
        }
    }
    const QModelIndex first = sourceModel()->index(row, 0, parent);
    return QString::fromUtf8(first.data(CEventModel::WholeTextRole).toByteArray())
        .contains(m_text, Qt::CaseInsensitive);
}

} // namespace UsageDataLog
} // namespace Plugin
