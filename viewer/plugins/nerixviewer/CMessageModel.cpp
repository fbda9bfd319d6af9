// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/nerixviewer/CMessageModel.h"

#include "windows/ShownText.h"

#include <QApplication>
#include <QLocale>
#include <QStyle>

namespace Plugin {
namespace NerixViewer {

namespace {

QStyle::StandardPixmap symbolOf(IMessageService::Severity severity)
{
    switch (severity) {
    case IMessageService::Severity::Information:
        return QStyle::SP_MessageBoxInformation;
    case IMessageService::Severity::Warning:
        return QStyle::SP_MessageBoxWarning;
    case IMessageService::Severity::Error:
        break;
    }
    return QStyle::SP_MessageBoxCritical;
}

} // namespace

CMessageModel::CMessageModel(QObject *parent)
    : QAbstractTableModel(parent)
{}

void CMessageModel::add(Severity severity, const QString &message)
{
    const QString text = Windows::shownText(message);
    const QDateTime now = QDateTime::currentDateTime();
    if (!m_messages.empty() && m_messages.back().text == text
        && m_messages.back().severity == severity) {
        m_messages.back().time = now;
        ++m_messages.back().count;
        const int row = rowCount() - 1;
        Q_EMIT dataChanged(index(row, 0), index(row, ColumnCount - 1));
        return;
    }
    dropOldest();
    beginInsertRows({}, rowCount(), rowCount());
    m_messages.push_back({now, severity, text});
    endInsertRows();
}

void CMessageModel::dropOldest()
{
    if (rowCount() == limit) {
        beginRemoveRows({}, 0, 0);
        m_messages.pop_front();
        endRemoveRows();
    }
}

void CMessageModel::clear()
{
    beginResetModel();
    m_messages.clear();
    endResetModel();
}

QString CMessageModel::asText(const QList<int> &rows) const
{
    QString text;
    for (const int row : rows) {
        QStringList cells;
        for (int column = 0; column < ColumnCount; ++column) {
            cells.append(textOf(m_messages.at(static_cast<std::size_t>(row)), column));
        }
        text += cells.join(QLatin1Char('\t')) + QLatin1Char('\n');
    }
    return text;
}

int CMessageModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_messages.size());
}

int CMessageModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant CMessageModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const CMessage &message = m_messages.at(static_cast<std::size_t>(index.row()));
    switch (role) {
    case Qt::DisplayRole:
        return textOf(message, index.column());
    case Qt::ToolTipRole:
        return Windows::toolTipText(message.text);
    case Qt::DecorationRole:
        if (index.column() == TextColumn) {
            return QApplication::style()->standardIcon(symbolOf(message.severity));
        }
        return {};
    default:
        return {};
    }
}

QString CMessageModel::textOf(const CMessage &message, int column) const
{
    switch (column) {
    case TimeColumn:
        return message.time.toString(QStringLiteral("HH:mm:ss"));
    case CountColumn:
        return message.count > 1 ? QStringLiteral("%1×").arg(QLocale().toString(message.count))
                                 : QString();
    default:
        return message.text;
    }
}

QVariant CMessageModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    switch (section) {
    case TimeColumn:
        return tr("Time");
    case CountColumn:
        return tr("Times");
    default:
        return tr("Message");
    }
}

void CMessageModel::retranslate()
{
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
}

} // namespace NerixViewer
} // namespace Plugin
