// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/imageview/CImageSaving.h"

#include "plugins/imageview/ImageFile.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

namespace ImageView {

namespace {

const QLatin1String folderKey("ImageView/SaveFolder");

QString folder()
{
    const QString usual = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    const QString last = QSettings().value(folderKey).toString();
    return !last.isEmpty() && QFileInfo(last).isDir() ? last : usual;
}

} // namespace

CImageSaving::CImageSaving()
{
    m_worker.setMaxThreadCount(1);
}

CImageSaving::~CImageSaving()
{
    delete m_dialog;
    m_worker.waitForDone();
}

void CImageSaving::ask(const ShownImage &image, const QString &cameraName, QWidget *window)
{
    if (m_dialog) {
        m_dialog->raise();
        m_dialog->activateWindow();
        return;
    }
    m_dialog = new QFileDialog(window, tr("Save Image"), folder());
    m_dialog->setAttribute(Qt::WA_DeleteOnClose);
    m_dialog->setAcceptMode(QFileDialog::AcceptSave);
    const QString png = tr("PNG image (*.png)");
    const QString tiff = tr("TIFF image (*.tif *.tiff)");
    m_dialog->setNameFilters({png, tiff});
    m_dialog->setDefaultSuffix(QStringLiteral("png"));
    m_dialog->selectFile(suggestedFileName(cameraName, image.time.toLocalTime()));
    connect(m_dialog, &QFileDialog::filterSelected, m_dialog,
            [dialog = m_dialog.data(), tiff](const QString &filter) {
                const bool isTiff = filter == tiff;
                dialog->setDefaultSuffix(isTiff ? QStringLiteral("tif") : QStringLiteral("png"));
                const QFileInfo chosen(dialog->selectedFiles().value(0));
                dialog->selectFile(chosen.completeBaseName() + QLatin1Char('.')
                                   + dialog->defaultSuffix());
            });
    connect(m_dialog, &QFileDialog::fileSelected, this,
            [this, result = image.result](const QString &path) { save(result, path); });
    m_dialog->open();
}

void CImageSaving::save(const Nerix::CGrabResultPtr &result, const QString &path)
{
    m_worker.start([this, result, path] {
        const QString problem = writeImageFile(result->image(), path);
        QMetaObject::invokeMethod(
            this,
            [this, problem, path] {
                if (problem.isEmpty()) {
                    onSaved(path);
                } else {
                    Q_EMIT failed(problem);
                }
            },
            Qt::QueuedConnection);
    });
}

void CImageSaving::onSaved(const QString &path)
{
    QSettings().setValue(folderKey, QFileInfo(path).absolutePath());
    Q_EMIT saved(path);
}

} // namespace ImageView
