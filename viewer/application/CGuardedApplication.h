// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "application/CExceptionLog.h"

#include <functional>

#include <QApplication>

namespace Application {

/// The application object. An exception that leaves a slot or an event handler ends here, in
/// whatever thread: it is logged once, and the thread goes on with its next event.
class CGuardedApplication : public QApplication
{
    Q_OBJECT

public:
    /// \a argc and \a argv must outlive the object.
    CGuardedApplication(int &argc, char **argv);
    ~CGuardedApplication() override;

    bool notify(QObject *receiver, QEvent *event) override;

    /// Called when the session of the desktop ends, in place of leaving every event loop at once.
    void setQuitHandler(std::function<void()> handler);

protected:
    bool event(QEvent *event) override;

private:
    std::function<void()> m_quitHandler;
    CExceptionLog m_exceptionLog;
};

} // namespace Application
