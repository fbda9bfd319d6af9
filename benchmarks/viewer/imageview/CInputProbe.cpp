// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "CInputProbe.h"

#include <chrono>

#include <QCoreApplication>
#include <QMouseEvent>
#include <QWheelEvent>

namespace {

using Clock = std::chrono::steady_clock;

// Somewhat faster than a mouse that is moved, and not in step with the images.
constexpr std::chrono::milliseconds interval(7);

// Of a run of a quarter of an hour.
constexpr int mostEvents = 130000;

struct Timed
{
    Clock::time_point posted = Clock::now();
};

class CTimedMove : public QMouseEvent, public Timed
{
public:
    explicit CTimedMove(const QPointF &place)
        : QMouseEvent(MouseMove, place, Qt::NoButton, Qt::NoButton, Qt::NoModifier)
    {}
};

class CTimedTurn : public QWheelEvent, public Timed
{
public:
    CTimedTurn(const QPointF &place, int angle)
        : QWheelEvent(place, place, {}, {0, angle}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                      false)
    {}
};

} // namespace

CInputProbe::CInputProbe(QWidget &widget)
    : m_widget(widget)
    , m_size(widget.size())
    , m_thread([this] { post(); })
{
    m_latencies.fill(0.0, mostEvents); // so that it is no memory that comes later
    m_latencies.resize(0);
    widget.installEventFilter(this);
}

CInputProbe::~CInputProbe()
{
    stop();
}

void CInputProbe::stop()
{
    m_isStopping = true;
    if (m_thread.joinable()) {
        m_thread.join();
    }
}

const QVector<double> &CInputProbe::latencies() const
{
    return m_latencies;
}

void CInputProbe::post()
{
    for (int count = 1; !m_isStopping; ++count) {
        std::this_thread::sleep_for(interval);
        const QPointF place(count * 3 % m_size.width(), count * 2 % m_size.height());
        if (count % 100 == 0) {
            // In and out by turns, so that all scales between fitted and magnified are drawn.
            const int angle = count / 100 % 8 < 4 ? 120 : -120;
            QCoreApplication::postEvent(&m_widget, new CTimedTurn(place, angle));
        } else {
            QCoreApplication::postEvent(&m_widget, new CTimedMove(place));
        }
    }
}

bool CInputProbe::eventFilter(QObject *watched, QEvent *event)
{
    const auto *timed = dynamic_cast<const Timed *>(event);
    if (!timed) {
        return false;
    }
    watched->event(event);
    const std::chrono::duration<double, std::milli> passed = Clock::now() - timed->posted;
    m_latencies.append(passed.count());
    return true;
}
