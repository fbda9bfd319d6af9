// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/usagedatalog/CEventModel.h"

#include "windows/OnLanguageChange.h"
#include "windows/ShownText.h"

#include <algorithm>

#include <QSet>

namespace Plugin {
namespace UsageDataLog {

namespace {

// A record may have a hundred thousand characters; a cell shows these.
constexpr int shownOfRecord = 300;

QString stateText(const CStoredEvent &event)
{
    if (event.isHandedOver) {
        return CEventModel::tr("Handed Over");
    }
    return event.isDelivered ? CEventModel::tr("Delivered") : CEventModel::tr("Waiting");
}

QString begin(const QByteArray &text)
{
    // A character has up to four bytes; one that is cut is left out.
    const QString shown = QString::fromUtf8(text.left(4 * shownOfRecord)).left(shownOfRecord);
    return Windows::shownLine(shown.simplified(), shownOfRecord);
}

} // namespace

CEventModel::CEventModel(QObject *parent)
    : QAbstractTableModel(parent)
{
    Windows::onLanguageChange(this, [this] { retranslate(); });
}

CEventModel::~CEventModel() = default;

void CEventModel::append(const CStoredEvents &events)
{
    const qint64 last = m_events.isEmpty() ? -1 : m_events.constLast().number;
    const auto first = std::find_if(events.begin(), events.end(),
                                    [last](const auto &event) { return event.number > last; });
    const CStoredEvents fresh = events.mid(int(std::distance(events.begin(), first)));
    if (!fresh.isEmpty()) {
        beginInsertRows({}, m_events.size(), m_events.size() + fresh.size() - 1);
        m_events += fresh;
        endInsertRows();
    }
}

void CEventModel::setEvents(const CStoredEvents &events)
{
    removeMissing(events);
    for (int row = 0; row < m_events.size(); ++row) {
        if (stateText(m_events.at(row)) != stateText(events.at(row))) {
            m_events[row] = events.at(row);
            Q_EMIT dataChanged(index(row, StateColumn), index(row, StateColumn));
        }
    }
    append(events.mid(m_events.size()));
}

int CEventModel::deliveredCount() const
{
    return int(std::count_if(m_events.begin(), m_events.end(),
                             [](const CStoredEvent &event) { return event.isDelivered; }));
}

int CEventModel::handedOverCount() const
{
    return int(std::count_if(m_events.begin(), m_events.end(),
                             [](const CStoredEvent &event) { return event.isHandedOver; }));
}

int CEventModel::waitingCount() const
{
    return m_events.size() - deliveredCount() - handedOverCount();
}

int CEventModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_events.size();
}

int CEventModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant CEventModel::data(const QModelIndex &index, int role) const
{
    const CStoredEvent &event = m_events.at(index.row());
    if (role == WholeTextRole) {
        return event.text;
    }
    if (role == Qt::ToolTipRole && index.column() == TimeColumn) {
        return event.time.toString(Qt::ISODateWithMs);
    }
    if (role != Qt::DisplayRole) {
        return {};
    }
    switch (index.column()) {
    case TimeColumn:
        return event.time.toLocalTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
    case CategoryColumn:
        return Windows::shownLine(event.category);
    case NameColumn:
        return Windows::shownLine(event.name);
    case RecordColumn:
        return begin(event.text);
    case StateColumn:
        return stateText(event);
    default:
        return {};
    }
}

QVariant CEventModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return QAbstractTableModel::headerData(section, orientation, role);
    }
    switch (section) {
    case TimeColumn:
        return tr("Time");
    case CategoryColumn:
        return tr("Category");
    case NameColumn:
        return tr("Name");
    case RecordColumn:
        return tr("Record");
    case StateColumn:
        return tr("State");
    default:
        return {};
    }
}

// Afterwards the rows are the first ones of \a events.
void CEventModel::removeMissing(const CStoredEvents &events)
{
    QSet<qint64> numbers;
    for (const CStoredEvent &event : events) {
        numbers.insert(event.number);
    }
    for (int last = m_events.size() - 1; last >= 0; --last) {
        int first = last;
        while (first >= 0 && !numbers.contains(m_events.at(first).number)) {
            --first;
        }
        if (first != last) {
            beginRemoveRows({}, first + 1, last);
            m_events.remove(first + 1, last - first);
            endRemoveRows();
        }
        last = first;
    }
    const auto same = [](const CStoredEvent &one, const CStoredEvent &other) {
        return one.number == other.number && one.time == other.time;
    };
    const bool isBeginning = m_events.size() <= events.size()
                             && std::equal(m_events.begin(), m_events.end(), events.begin(), same);
    if (!isBeginning) {
        beginResetModel();
        m_events.clear();
        endResetModel();
    }
}

void CEventModel::retranslate()
{
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
    if (!m_events.isEmpty()) {
        Q_EMIT dataChanged(index(0, StateColumn), index(m_events.size() - 1, StateColumn));
    }
}

} // namespace UsageDataLog
} // namespace Plugin
