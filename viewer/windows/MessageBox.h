// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QMessageBox>

namespace Windows {

/// A message box that shows \a text as `shownText` does, where a QMessageBox of its own would take
/// it for HTML if it looks like it. Deletes itself when it is closed; the caller calls `open`. GUI
/// thread.
QMessageBox *newMessageBox(QMessageBox::Icon icon, const QString &title, const QString &text,
                           QMessageBox::StandardButtons buttons, QWidget *parent);

} // namespace Windows
