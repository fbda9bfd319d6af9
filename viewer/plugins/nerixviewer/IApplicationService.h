// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

namespace Plugin {
namespace NerixViewer {

/// The application as its own parts see it. GUI thread.
class IApplicationService : public QObject
{
    Q_OBJECT

public:
    /// Asks the application to close, as the Quit entry of the File menu does. A plug-in may veto.
    virtual void requestQuit() = 0;

Q_SIGNALS:
    /// What the windows remember is to be kept now: the viewer may soon be ended by others.
    void layoutIsToBeKept();

    void quitRequested();

protected:
    using QObject::QObject;
};

} // namespace NerixViewer
} // namespace Plugin
