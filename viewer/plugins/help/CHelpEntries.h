// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QWidget;

namespace Plugin {
namespace AppCore {
class IMenuService;
}
namespace Help {

class CHelpDocuments;

/// The entries of the Help menu: one for each document that is there, and the About box. GUI
/// thread.
class CHelpEntries : public QObject
{
    Q_OBJECT

public:
    /// \a window is the parent of the About box; null in a run without windows, which has none.
    CHelpEntries(AppCore::IMenuService &menus, const CHelpDocuments &documents, QWidget *window);
    ~CHelpEntries() override;

private:
    void addAbout(AppCore::IMenuService &menus, QWidget *window);
};

} // namespace Help
} // namespace Plugin
