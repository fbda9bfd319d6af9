// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/cameraselector/CameraStateLook.h"

#include "windows/DrawnIcon.h"

#include <QCoreApplication>
#include <QPainter>

namespace CameraSelector {

namespace {

using CameraPool::ICameraControlService;

constexpr QRectF dot(3.5, 3.5, 9, 9);

// Readable on light and on dark ground.
QColor colorOf(ICameraControlService::CameraState state)
{
    switch (state) {
    case ICameraControlService::Free:
    case ICameraControlService::Open:
        return QColor(0x3f, 0x9b, 0x57);
    case ICameraControlService::Grabbing:
        return QColor(0x2f, 0x7f, 0xc4);
    case ICameraControlService::InUseElsewhere:
        return QColor(0xd1, 0x7b, 0x12);
    case ICameraControlService::Gone:
        break;
    }
    return QColor(0x8a, 0x8a, 0x8a);
}

bool isFull(ICameraControlService::CameraState state)
{
    return state == ICameraControlService::Open || state == ICameraControlService::Grabbing;
}

} // namespace

QString stateText(ICameraControlService::CameraState state)
{
    const auto text = [](const char *source) {
        return QCoreApplication::translate("CameraSelector::CameraState", source);
    };
    switch (state) {
    case ICameraControlService::Free:
        return text(QT_TRANSLATE_NOOP("CameraSelector::CameraState", "Free"));
    case ICameraControlService::InUseElsewhere:
        return text(QT_TRANSLATE_NOOP("CameraSelector::CameraState", "In use elsewhere"));
    case ICameraControlService::Open:
        return text(QT_TRANSLATE_NOOP("CameraSelector::CameraState", "Open"));
    case ICameraControlService::Grabbing:
        return text(QT_TRANSLATE_NOOP("CameraSelector::CameraState", "Grabbing"));
    case ICameraControlService::Gone:
        break;
    }
    return text(QT_TRANSLATE_NOOP("CameraSelector::CameraState", "Gone"));
}

QIcon stateIcon(ICameraControlService::CameraState state)
{
    return Windows::drawnIcon([state] { return colorOf(state); },
                              [state](QPainter &painter) {
                                  painter.setPen(QPen(painter.brush(), 2));
                                  if (!isFull(state)) {
                                      painter.setBrush(Qt::NoBrush);
                                  }
                                  painter.drawEllipse(dot);
                                  if (state == ICameraControlService::Gone) {
                                      painter.drawLine(dot.bottomLeft(), dot.topRight());
                                  }
                              });
}

} // namespace CameraSelector
