// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QSortFilterProxyModel>

namespace Plugin {
namespace UsageDataLog {

/// The events of which any column or the whole record contains a text, in any case. GUI thread.
class CEventFilter : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit CEventFilter(QObject *parent = nullptr);
    ~CEventFilter() override;

    void setText(const QString &text);

protected:
    bool filterAcceptsRow(int row, const QModelIndex &parent) const override;

private:
    QString m_text;
};

} // namespace UsageDataLog
} // namespace Plugin
