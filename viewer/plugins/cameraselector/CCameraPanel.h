// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "plugins/camerapool/ICameraControlService.h"

#include <QSharedPointer>
#include <QWidget>

class QTreeView;

namespace Windows {
class CPlainLabel;
}

namespace CameraSelector {

class CCameraCommands;
class CCameraListModel;
class IDeviceSelectionService;

/// The panel with the list of cameras: a double click or Enter opens, and closes a camera that does
/// not grab, the row that is
/// current is the selected device. What could not be opened is said below the list, until something
/// works. GUI thread.
class CCameraPanel : public QWidget
{
    Q_OBJECT

public:
    /// All must outlive the panel, whose context menu has the actions of \a commands.
    CCameraPanel(CCameraListModel &model, CCameraCommands &commands,
                 QSharedPointer<IDeviceSelectionService> selection, QWidget *parent = nullptr);
    ~CCameraPanel() override;

    /// Says \a text below the list; an empty one takes the words away.
    void setProblem(const QString &text);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void buildView(CCameraCommands &commands);
    void followSelection();
    void select(const QModelIndex &index);
    void showSelected();
    void updateHint();

    CCameraListModel &m_model;
    CCameraCommands &m_commands;
    QSharedPointer<IDeviceSelectionService> m_selection;
    QTreeView *m_view;
    Windows::CPlainLabel *m_hint;    // over the list while it is empty
    Windows::CPlainLabel *m_problem; // below it
};

} // namespace CameraSelector
