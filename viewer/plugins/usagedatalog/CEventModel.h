// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "plugins/usagedatalog/CStoredEvent.h"

#include <QAbstractTableModel>

namespace Plugin {
namespace UsageDataLog {

/// The stored events as a table, oldest first. GUI thread.
class CEventModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { TimeColumn, CategoryColumn, NameColumn, RecordColumn, StateColumn, ColumnCount };

    /// The whole record of a row, where a column shows only its beginning.
    static constexpr int WholeTextRole = Qt::UserRole;

    explicit CEventModel(QObject *parent = nullptr);
    ~CEventModel() override;

    /// Adds those of \a events, oldest first, that are not there: whose numbers are above the last
    /// one's.
    void append(const CStoredEvents &events);

    /// Makes \a events the ones that are shown. Rows that stay keep their place and selection.
    void setEvents(const CStoredEvents &events);

    int deliveredCount() const;
    int handedOverCount() const;
    int waitingCount() const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

private:
    void removeMissing(const CStoredEvents &events);
    void retranslate();

    CStoredEvents m_events;
};

} // namespace UsageDataLog
} // namespace Plugin
