// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayList>
#include <QImage>
#include <QList>
#include <QString>

/// What a picture of the page shows: a state of the answer in a language.
struct PageView
{
    QString name; ///< as a file name, for example "ja-3-no-clicked"
    QString language;
    bool answered = false;
    bool answer = false;
    QByteArrayList clicks;
};

/// The six states in the four languages.
QList<PageView> pageViews();

/// The page as it is drawn. A display with OpenGL is needed for the shadows of the tiles.
QImage pictureOf(const PageView &view);

/// A picture in the size in which it is kept for comparison: small enough that fonts and graphics
/// drivers make no difference, large enough for each line of text.
QImage keptSize(const QImage &picture);
