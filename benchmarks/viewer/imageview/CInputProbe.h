// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <thread>

#include <QObject>
#include <QVector>
#include <QWidget>

// Posts input to a widget from another thread, as the window system does, and takes the time until
// the widget has handled it: moves of the mouse, each 100th time a turn of the wheel.
class CInputProbe : public QObject
{
    Q_OBJECT

public:
    // Begins at once. \a widget must outlive this.
    explicit CInputProbe(QWidget &widget);
    ~CInputProbe() override;

    // Ends the posting. What was posted may still be handled.
    void stop();

    // In milliseconds, in the order of the events. In the GUI thread.
    const QVector<double> &latencies() const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void post();

    QWidget &m_widget;
    const QSize m_size;
    QVector<double> m_latencies;
    std::atomic<bool> m_isStopping{false};
    std::thread m_thread; // last: it uses the others
};
