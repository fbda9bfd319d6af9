// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <Nerix/CGrabResultData.h>

#include <QDateTime>
#include <QString>

namespace ImageView {

/// Writes \a image to the file \a path, in the format that its suffix names: .png, .tif or .tiff. A
/// file that is there is replaced, once the new one is written whole. See `fileImage` for what is
/// in the file. Callable in any thread.
/// @return one line with the file and the remedy if that fails; else an empty text.
QString writeImageFile(const Nerix::CImage &image, const QString &path);

/// A name for the file of an image of the camera \a cameraName, taken at \a time, without folder:
/// "Left of the belt 2026-11-21 14-05-09-123.png". Characters that file systems refuse are
/// replaced.
QString suggestedFileName(const QString &cameraName, const QDateTime &time);

} // namespace ImageView
