// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QObject>

class QAction;

namespace Plugin {
namespace AppCore {
class IMenuService;
}
} // namespace Plugin

namespace Grabbing {

class CGrabController;

/// The entries "Grab Single Image", "Grab Continuously" and "Stop Grabbing" of the Camera menu,
/// which are enabled as the controller allows. GUI thread.
class CGrabEntries : public QObject
{
    Q_OBJECT

public:
    /// Both must outlive this, which takes the entries away at its end.
    CGrabEntries(Plugin::AppCore::IMenuService &menus, CGrabController &controller);
    ~CGrabEntries() override;

    QList<QAction *> actions() const;

private:
    void update();

    CGrabController &m_controller;
    QAction *m_single;
    QAction *m_continuous;
    QAction *m_stop;
};

} // namespace Grabbing
