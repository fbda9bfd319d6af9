// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

namespace Plugin {
namespace Help {

/// "About Nerix Viewer": version, copyright, licence and the libraries that are in use. GUI thread.
class CAboutDialog : public QDialog
{
    Q_OBJECT

public:
    explicit CAboutDialog(QWidget *parent = nullptr);
    ~CAboutDialog() override;

    /// The versions of the viewer, its libraries and the system, a line each, for a message to the
    /// support. In English.
    static QString versions();
};

} // namespace Help
} // namespace Plugin
