// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

namespace Plugin {
namespace Help {

/// What the help has shown. GUI thread.
class IHelpViewService : public QObject
{
    Q_OBJECT

public:
    /// The path of the document, or the web address, that was shown last; empty before the first.
    virtual QString lastShown() const = 0;

Q_SIGNALS:
    void shown(const QString &pathOrAddress);

    /// Something could not be shown. \a message is one line for the user, with the remedy.
    void failed(const QString &message);

protected:
    using QObject::QObject;
};

} // namespace Help
} // namespace Plugin
