// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "application/CGuardedApplication.h"

#include <exception>
#include <utility>

namespace Application {

CGuardedApplication::CGuardedApplication(int &argc, char **argv)
    : QApplication(argc, argv)
{}

CGuardedApplication::~CGuardedApplication() = default;

bool CGuardedApplication::notify(QObject *receiver, QEvent *event)
{
    // The receiver may be gone once its handler has thrown.
    const char *className = receiver ? receiver->metaObject()->className() : "nobody";
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception &exception) {
        m_exceptionLog.report(className, exception.what());
    } catch (...) {
        m_exceptionLog.report(className, "of an unknown type");
    }
    return false;
}

void CGuardedApplication::setQuitHandler(std::function<void()> handler)
{
    m_quitHandler = std::move(handler);
}

bool CGuardedApplication::event(QEvent *event)
{
    if (event->type() == QEvent::Quit && m_quitHandler) {
        m_quitHandler();
        return true;
    }
    return QApplication::event(event);
}

} // namespace Application
