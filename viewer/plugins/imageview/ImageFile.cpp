// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/imageview/ImageFile.h"

#include "plugins/imageview/ImageConversion.h"
#include "windows/WrittenFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QImageWriter>
#include <QSaveFile>

namespace ImageView {

namespace {

// Of the TIFF format: lossless, and read by every program.
constexpr int lzwCompression = 1;

// In characters: a file system that takes names of 255 bytes takes this in any script.
constexpr int longestProposal = 60;

QString text(const char *source)
{
    return QCoreApplication::translate("ImageView::File", source);
}

QByteArray formatOf(const QString &path)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    if (suffix == QLatin1String("tif") || suffix == QLatin1String("tiff")) {
        return QByteArrayLiteral("tiff");
    }
    return suffix == QLatin1String("png") ? QByteArrayLiteral("png") : QByteArray();
}

QString cannotWrite(const QString &path, const QString &reason)
{
    return text(QT_TRANSLATE_NOOP("ImageView::File",
                                  "%1 cannot be written (%2): choose another folder, or make room"))
        .arg(QDir::toNativeSeparators(path), reason);
}

} // namespace

QString writeImageFile(const Nerix::CImage &image, const QString &path)
{
    const QByteArray format = formatOf(path);
    if (format.isEmpty()) {
        return text(QT_TRANSLATE_NOOP("ImageView::File",
                                      "%1 is not the name of a PNG or TIFF file: give it one that "
                                      "ends with .png or .tif"))
            .arg(QDir::toNativeSeparators(path));
    }
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        return cannotWrite(path, file.errorString());
    }
    QImageWriter writer(&file, format);
    if (format == "tiff") {
        writer.setCompression(lzwCompression);
    }
    if (!writer.write(fileImage(image))) {
        return cannotWrite(path, writer.errorString());
    }
    return Windows::isWritten(file) && file.commit() ? QString()
                                                     : cannotWrite(path, file.errorString());
}

QString suggestedFileName(const QString &cameraName, const QDateTime &time)
{
    const QString refused = QStringLiteral("/\\:*?\"<>|");
    QString name = cameraName.left(longestProposal);
    for (QChar &character : name) {
        if (refused.contains(character) || !character.isPrint()) {
            character = QLatin1Char('_');
        }
    }
    return name + time.toString(QStringLiteral(" yyyy-MM-dd HH-mm-ss-zzz"))
           + QStringLiteral(".png");
}

} // namespace ImageView
