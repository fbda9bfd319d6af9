// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <ParameterCollection/Visibility.h>

#include <QSortFilterProxyModel>
#include <QStringList>

namespace FeatureTree {

/// The part of a `CFeatureModel` that the user wants to see: features up to a level in whose name
/// or display name each of the words stands, and the categories that hold such. GUI thread.
class CFeatureFilter : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit CFeatureFilter(QObject *parent = nullptr);
    ~CFeatureFilter() override;

    /// Upper and lower case are the same; an empty text lets everything pass.
    void setWords(const QString &text);

    void setLevel(ParameterCollection::Visibility level);

protected:
    bool filterAcceptsRow(int row, const QModelIndex &parent) const override;

private:
    QStringList m_words;
    ParameterCollection::Visibility m_level = ParameterCollection::VisibilityBeginner;
};

} // namespace FeatureTree
