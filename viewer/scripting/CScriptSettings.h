// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QVariant>

namespace Scripting {

/// `settings`: what the viewer and its plug-ins remember. GUI thread.
class CScriptSettings : public QObject
{
    Q_OBJECT

public:
    explicit CScriptSettings(QObject *parent);

    /// The value of \a key, for example "NerixWelcome/ShowAtStartup", as it stands in the settings
    /// file: a text. Null if the key is not there.
    Q_INVOKABLE QVariant get(const QString &key) const;

    /// The file in which the settings are kept.
    Q_INVOKABLE QString fileName() const;
};

} // namespace Scripting
