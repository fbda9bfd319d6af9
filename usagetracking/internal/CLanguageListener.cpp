// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "CLanguageListener.h"

#include <utility>

#include <QCoreApplication>
#include <QEvent>

namespace Plugin::UsageTracking::Internal {

CLanguageListener::CLanguageListener(std::function<void()> onLanguageChanged, QObject *parent)
    : QObject(parent)
    , m_onLanguageChanged(std::move(onLanguageChanged))
{
    if (QCoreApplication *application = QCoreApplication::instance()) {
        application->installEventFilter(this);
    }
}

// An event filter of the application sees the events of every object; only the application's own
// tells of catalogues.
bool CLanguageListener::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::LanguageChange && watched == QCoreApplication::instance()) {
        m_onLanguageChanged();
    }
    return QObject::eventFilter(watched, event);
}

} // namespace Plugin::UsageTracking::Internal
