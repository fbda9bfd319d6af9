// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QLabel;

namespace Grabbing {

class CGrabController;

/// The figures of the selected camera for the status bar: images, failures, images and data a
/// second. Empty before its first grab. GUI thread.
class CFiguresBar : public QWidget
{
    Q_OBJECT

public:
    /// \a controller must outlive this.
    explicit CFiguresBar(const CGrabController &controller, QWidget *parent = nullptr);
    ~CFiguresBar() override;

private:
    QLabel *addLabel(const char *name);
    void giveRoomBack();
    void update();

    const CGrabController &m_controller;
    QLabel *m_images;
    QLabel *m_failures;
    QLabel *m_imageRate;
    QLabel *m_dataRate;
};

} // namespace Grabbing
