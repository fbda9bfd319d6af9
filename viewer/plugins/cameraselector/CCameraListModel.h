// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "plugins/camerapool/ICameraControlService.h"

#include <QAbstractTableModel>
#include <QHash>
#include <QList>
#include <QSharedPointer>

namespace CameraSelector {

/// The cameras that were seen in this run, with what each is doing. One that is gone stays, so that
/// the user sees what happened to it, as long as there are not too many. Cameras with the same name
/// are told apart by their serial numbers. GUI thread.
class CCameraListModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    using CameraInfoPtr = Core::CameraPoolComponents::CameraInfoPtr;
    using CameraState = CameraPool::ICameraControlService::CameraState;

    /// How many cameras that are gone stay in the list; the first ones leave it first.
    static constexpr int MostGone = 1000;

    enum Column { CameraColumn, StateColumn, ColumnCount };

    /// \a control, never null.
    explicit CCameraListModel(QSharedPointer<CameraPool::ICameraControlService> control,
                              QObject *parent = nullptr);
    ~CCameraListModel() override;

    /// Asks the camera pool for all cameras and their states.
    void refresh();

    /// Asks for the captions and texts anew.
    void retranslate();

    /// Null for an index without a camera.
    CameraInfoPtr cameraAt(const QModelIndex &index) const;

    /// The first cell of \a camera; invalid if it is null or not in the list.
    QModelIndex indexOf(const CameraInfoPtr &camera) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

private:
    struct CRow
    {
        CameraInfoPtr camera;
        CameraState state;
        QString name = {}; // as it is shown
    };

    void addNew();
    void updateNames();
    void updateStates();
    void removeSurplus();
    void findRows();
    int rowOf(const QString &identity) const;

    QSharedPointer<CameraPool::ICameraControlService> m_control;
    QList<CRow> m_rows;
    QHash<QString, int> m_places; // in m_rows, by identity
};

} // namespace CameraSelector
