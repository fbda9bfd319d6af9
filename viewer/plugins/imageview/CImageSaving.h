// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "plugins/imageview/ShownImage.h"

#include <QObject>
#include <QPointer>
#include <QThreadPool>

class QFileDialog;

namespace ImageView {

/// Asks for a file and writes an image to it in a worker. The folder of the last file that was
/// written is offered first the next time. GUI thread.
class CImageSaving : public QObject
{
    Q_OBJECT

public:
    CImageSaving();

    /// Waits for the files that are being written.
    ~CImageSaving() override;

    /// Opens the dialog over \a window and returns. What the user agrees to save is \a image,
    /// however long the dialog is open. A dialog that is open already stays and is brought to the
    /// front.
    void ask(const ShownImage &image, const QString &cameraName, QWidget *window);

    /// Writes at once, in a worker.
    void save(const Nerix::CGrabResultPtr &result, const QString &path);

Q_SIGNALS:
    void saved(const QString &path);

    /// \a message is one line for the user.
    void failed(const QString &message);

private:
    void onSaved(const QString &path);

    QPointer<QFileDialog> m_dialog;
    QThreadPool m_worker; // last: its work ends before the rest does
};

} // namespace ImageView
