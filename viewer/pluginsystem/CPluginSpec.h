// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <pluginsystem/PluginMetaData.h>
#include <pluginsystem/PluginState.h>

#include <QString>

namespace PluginSystem {

/// What the viewer knows of one plug-in: what it says of itself, where it comes from, how far it
/// has come, and what went wrong. GUI thread.
class CPluginSpec
{
public:
    /// Of a shared library; \a libraryPath is empty for a built-in plug-in.
    explicit CPluginSpec(const QString &libraryPath = QString());

    /// The "Name" of the metadata; as long as that is not known, the path of the library.
    QString name() const;

    /// Empty for a built-in plug-in.
    const QString &libraryPath() const;

    bool isBuiltIn() const;

    const PluginMetaData &metaData() const;
    void setMetaData(const PluginMetaData &metaData);

    PluginState state() const;

    /// Goes on to \a state. @return false, and nothing changes, if the plug-in has an error or
    /// \a state is not the next one.
    bool advance(PluginState state);

    bool hasError() const;

    /// What went wrong, in lines that each name the plug-in and a remedy; empty if nothing did.
    const QString &error() const;

    /// Adds \a line to `error` and logs it.
    void fail(const QString &line);

    /// What a user can do about a plug-in that does not work, as the end of such a line.
    QString remedy() const;

private:
    QString m_libraryPath;
    PluginMetaData m_metaData;
    PluginState m_state = PluginState::Found;
    QString m_error;
};

} // namespace PluginSystem
