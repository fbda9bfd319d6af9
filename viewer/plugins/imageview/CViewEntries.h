// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>

class QAction;

namespace Plugin {
namespace AppCore {
class IMenuService;
}
} // namespace Plugin

namespace ImageView {

class CImageArea;
class CImageView;

/// The entries of the View menu that are about the image, and "Save Image..." of the File menu.
/// They work on the current pane and are disabled while it has no image. GUI thread.
class CViewEntries : public QObject
{
    Q_OBJECT

public:
    /// \a menus must outlive this. Without \a area the entries are there and stay disabled.
    CViewEntries(Plugin::AppCore::IMenuService &menus, CImageArea *area);
    ~CViewEntries() override;

Q_SIGNALS:
    /// The user wants to save the image of the current pane.
    void saveRequested();

private:
    void addViewEntries(Plugin::AppCore::IMenuService &menus);
    void update();
    CImageView *currentView() const;

    QPointer<CImageArea> m_area;
    QAction *m_fit = nullptr;
    QAction *m_actualSize = nullptr;
    QAction *m_zoomIn = nullptr;
    QAction *m_zoomOut = nullptr;
    QAction *m_save = nullptr;
};

} // namespace ImageView
