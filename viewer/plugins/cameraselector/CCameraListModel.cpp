// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/cameraselector/CCameraListModel.h"

#include "plugins/camerapool/DistinctName.h"
#include "plugins/cameraselector/CameraStateLook.h"
#include "windows/ShownText.h"

#include <algorithm>
#include <utility>

#include <QGuiApplication>
#include <QPalette>

namespace CameraSelector {

namespace {

QString toolTipOf(const Core::CameraPoolComponents::ICameraInfo &camera)
{
    return Windows::toolTipText(QStringLiteral("%1 %2\n%3")
                                    .arg(Windows::shownLine(camera.vendorName()),
                                         Windows::shownLine(camera.modelName()),
                                         Windows::shownLine(camera.identity())));
}

} // namespace

CCameraListModel::CCameraListModel(QSharedPointer<CameraPool::ICameraControlService> control,
                                   QObject *parent)
    : QAbstractTableModel(parent)
    , m_control(std::move(control))
{
    refresh();
}

CCameraListModel::~CCameraListModel() = default;

void CCameraListModel::refresh()
{
    addNew();
    updateStates();
    removeSurplus();
    updateNames();
}

void CCameraListModel::addNew()
{
    QList<CRow> added;
    const auto cameras = m_control->cameras();
    for (const CameraInfoPtr &camera : cameras) {
        const int row = rowOf(camera->identity());
        if (row >= 0) {
            m_rows[row].camera = camera; // its name may be another one now
        } else {
            added.append({camera, m_control->state(camera), camera->displayName()});
        }
    }
    if (!added.isEmpty()) {
        beginInsertRows({}, m_rows.size(), m_rows.size() + added.size() - 1);
        m_rows.append(added);
        findRows();
        endInsertRows();
    }
}

void CCameraListModel::updateNames()
{
    QList<CameraInfoPtr> all;
    for (const CRow &row : qAsConst(m_rows)) {
        all.append(row.camera);
    }
    const QStringList names = CameraPool::distinctNames(all);
    for (int row = 0; row < m_rows.size(); ++row) {
        if (names.at(row) != m_rows.at(row).name) {
            m_rows[row].name = names.at(row);
            Q_EMIT dataChanged(index(row, CameraColumn), index(row, CameraColumn));
        }
    }
}

// A device can say that it is another camera each time that it is asked.
void CCameraListModel::removeSurplus()
{
    const auto isGone = [](const CRow &row) {
        return row.state == CameraPool::ICameraControlService::Gone;
    };
    auto surplus = std::count_if(m_rows.begin(), m_rows.end(), isGone) - MostGone;
    for (int row = 0; surplus > 0 && row < m_rows.size();) {
        if (isGone(m_rows.at(row))) {
            beginRemoveRows({}, row, row);
            m_rows.removeAt(row);
            findRows();
            endRemoveRows();
            --surplus;
        } else {
            ++row;
        }
    }
}

void CCameraListModel::findRows()
{
    m_places.clear();
    for (int row = 0; row < m_rows.size(); ++row) {
        m_places.insert(m_rows.at(row).camera->identity(), row);
    }
}

void CCameraListModel::updateStates()
{
    for (int row = 0; row < m_rows.size(); ++row) {
        const CameraState state = m_control->state(m_rows.at(row).camera);
        if (state != m_rows.at(row).state) {
            m_rows[row].state = state;
            Q_EMIT dataChanged(index(row, 0), index(row, ColumnCount - 1));
        }
    }
}

int CCameraListModel::rowOf(const QString &identity) const
{
    return m_places.value(identity, -1);
}

void CCameraListModel::retranslate()
{
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
    if (!m_rows.isEmpty()) {
        Q_EMIT dataChanged(index(0, 0), index(m_rows.size() - 1, ColumnCount - 1));
    }
}

CCameraListModel::CameraInfoPtr CCameraListModel::cameraAt(const QModelIndex &index) const
{
    return index.isValid() ? m_rows.at(index.row()).camera : CameraInfoPtr();
}

QModelIndex CCameraListModel::indexOf(const CameraInfoPtr &camera) const
{
    const int row = camera ? rowOf(camera->identity()) : -1;
    return row < 0 ? QModelIndex() : index(row, 0);
}

int CCameraListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_rows.size();
}

int CCameraListModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant CCameraListModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const CRow &row = m_rows.at(index.row());
    const bool isName = index.column() == CameraColumn;
    switch (role) {
    case Qt::DisplayRole:
        return isName ? Windows::shownLine(row.name) : stateText(row.state);
    case Qt::DecorationRole:
        return isName ? stateIcon(row.state) : QVariant();
    case Qt::ToolTipRole:
        return toolTipOf(*row.camera);
    case Qt::ForegroundRole:
        return row.state == CameraPool::ICameraControlService::Gone
                   ? QVariant(QGuiApplication::palette().color(QPalette::Disabled, QPalette::Text))
                   : QVariant();
    case Qt::AccessibleTextRole:
        return isName ? QStringLiteral("%1, %2").arg(Windows::shownLine(row.name),
                                                     stateText(row.state))
                      : stateText(row.state);
    default:
        return {};
    }
}

QVariant CCameraListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    return section == CameraColumn ? tr("Camera") : tr("State");
}

} // namespace CameraSelector
