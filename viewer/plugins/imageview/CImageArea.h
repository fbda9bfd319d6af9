// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <Core/CameraPoolComponents/IDeviceBaseInfo.h>

#include <QList>
#include <QSharedPointer>
#include <QWidget>

class QGridLayout;
class QStackedLayout;

namespace CameraSelector {
class IDeviceSelectionService;
}

namespace ImageView {

class CImagePane;
class CLiveCamera;
class CLiveImages;

/// The middle of the main window: a pane for each open camera, in a grid; without an open camera,
/// words of welcome. A pane that the user chooses selects its camera. GUI thread.
class CImageArea : public QWidget
{
    Q_OBJECT

public:
    /// \a images must outlive this; \a selection is not null.
    CImageArea(CLiveImages &images,
               QSharedPointer<CameraSelector::IDeviceSelectionService> selection,
               QWidget *parent = nullptr);
    ~CImageArea() override;

    QList<CImagePane *> panes() const;

    /// What the entries of the View menu are about: the pane of the selected camera, or the only
    /// pane that there is. Null if there is neither.
    CImagePane *currentPane() const;

Q_SIGNALS:
    /// `currentPane` is another one, or has another image or scale.
    void currentChanged();

private:
    QWidget *newWelcome();
    void addPane(CLiveCamera *camera);
    void removePane(const CLiveCamera *camera);
    void arrange();
    void showSelection();

    const QSharedPointer<CameraSelector::IDeviceSelectionService> m_selection;
    const CLiveImages &m_images;
    QStackedLayout *m_layout;
    QWidget *m_panesPage;
    QGridLayout *m_grid = nullptr; // made anew for each number of panes
    QList<CImagePane *> m_panes;
};

} // namespace ImageView
