// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace Windows {
class CPlainLabel;
}

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
    Windows::CPlainLabel *addLabel(const char *name);
    void giveRoomBack();
    void update();

    const CGrabController &m_controller;
    Windows::CPlainLabel *m_images;
    Windows::CPlainLabel *m_failures;
    Windows::CPlainLabel *m_imageRate;
    Windows::CPlainLabel *m_dataRate;
};

} // namespace Grabbing
