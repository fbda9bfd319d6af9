// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "plugins/nerixviewer/IMessageService.h"

#include <deque>

#include <QAbstractTableModel>
#include <QDateTime>
#include <QString>

namespace Plugin {
namespace NerixViewer {

/// The last messages, the newest at the end. GUI thread.
class CMessageModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    using Severity = IMessageService::Severity;

    enum Column { TimeColumn, CountColumn, TextColumn, ColumnCount };

    /// How many messages are kept: what somebody may want to read again after a long session.
    static constexpr int limit = 1000;

    explicit CMessageModel(QObject *parent = nullptr);

    /// Adds a message; one that repeats the last one gets that one's place and is counted.
    void add(Severity severity, const QString &text);

    void clear();

    /// The messages \a rows as they can be pasted elsewhere: a line each, time, count, and text
    /// separated by tabs.
    QString asText(const QList<int> &rows) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

    /// Asks for the captions anew.
    void retranslate();

private:
    struct CMessage
    {
        QDateTime time; // of the last repetition
        Severity severity;
        QString text;
        int count = 1;
    };

    void dropOldest();
    QString textOf(const CMessage &message, int column) const;

    std::deque<CMessage> m_messages;
};

} // namespace NerixViewer
} // namespace Plugin
