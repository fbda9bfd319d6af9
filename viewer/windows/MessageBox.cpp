// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "windows/MessageBox.h"

#include "windows/ShownText.h"

namespace Windows {

QMessageBox *newMessageBox(QMessageBox::Icon icon, const QString &title, const QString &text,
                           QMessageBox::StandardButtons buttons, QWidget *parent)
{
    auto *box = new QMessageBox(icon, title, QString(), buttons, parent);
    box->setTextFormat(Qt::PlainText);
    box->setText(shownText(text));
    box->setAttribute(Qt::WA_DeleteOnClose);
    return box;
}

} // namespace Windows
