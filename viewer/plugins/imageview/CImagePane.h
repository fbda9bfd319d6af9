// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace ImageView {

class CElidedLabel;
class CImageView;
class CLiveCamera;
class COverlayLabel;

/// One camera in the live view: its name, its image or words in its place, what failed, the pixel
/// under the pointer, size and format. GUI thread.
class CImagePane : public QWidget
{
    Q_OBJECT

public:
    /// \a camera must outlive this.
    explicit CImagePane(CLiveCamera &camera, QWidget *parent = nullptr);
    ~CImagePane() override;

    CLiveCamera &camera() const;
    CImageView &view() const;

    /// Marks the pane as the one of the selected camera.
    void setSelected(bool isSelected);
    bool isSelected() const;

Q_SIGNALS:
    /// The user has chosen this pane.
    void activated();

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;

private:
    void build();
    void retranslate();
    void showImage();
    void showState();
    void showPointer();
    void showFormat();
    QString wordsForNoImage() const;

    CLiveCamera &m_camera;
    CImageView *m_view;
    CElidedLabel *m_name;
    COverlayLabel *m_words;   // in the place of an image
    COverlayLabel *m_failure; // over the image
    CElidedLabel *m_pixel;
    CElidedLabel *m_format;
    bool m_isSelected = false;
};

} // namespace ImageView
