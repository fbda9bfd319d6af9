// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/featuretree/CFeatureFilter.h"

#include "plugins/featuretree/CFeatureModel.h"

#include <algorithm>

namespace FeatureTree {

CFeatureFilter::CFeatureFilter(QObject *parent)
    : QSortFilterProxyModel(parent)
{
    setRecursiveFilteringEnabled(true);
}

CFeatureFilter::~CFeatureFilter() = default;

void CFeatureFilter::setWords(const QString &text)
{
    const QStringList words = text.simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts);
    if (words != m_words) {
        m_words = words;
        invalidateFilter();
    }
}

void CFeatureFilter::setLevel(ParameterCollection::Visibility level)
{
    if (level != m_level) {
        m_level = level;
        invalidateFilter();
    }
}

// A category is not accepted for itself, but stays if something in it is.
bool CFeatureFilter::filterAcceptsRow(int row, const QModelIndex &parent) const
{
    const QModelIndex index = sourceModel()->index(row, CFeatureModel::NameColumn, parent);
    const QVariant type = index.data(CFeatureModel::TypeRole);
    if (!type.isValid() || type.toInt() == ParameterCollection::InterfaceCategory
        || index.data(CFeatureModel::VisibilityRole).toInt() > m_level) {
        return false;
    }
    const QString name = index.data(CFeatureModel::NameRole).toString();
    const QString displayName = index.data(Qt::DisplayRole).toString();
    return std::all_of(m_words.cbegin(), m_words.cend(), [&](const QString &word) {
        return name.contains(word, Qt::CaseInsensitive)
               || displayName.contains(word, Qt::CaseInsensitive);
    });
}

} // namespace FeatureTree
