// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

namespace Plugin {
namespace NerixViewer {

/// The last problems and news, for the user to read. Callable in any thread.
///
/// What the viewer's parts log as a warning or worse, in a category "nerix.*", comes here by
/// itself; nothing is to be reported twice.
class IMessageService : public QObject
{
    Q_OBJECT

public:
    enum class Severity { Information, Warning, Error };

    /// Adds one line of text that names the thing and the remedy. A text that repeats the one
    /// before is counted, not added.
    virtual void add(Severity severity, const QString &text) = 0;

protected:
    using QObject::QObject;
};

} // namespace NerixViewer
} // namespace Plugin
