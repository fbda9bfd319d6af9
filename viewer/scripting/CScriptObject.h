// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <Core/Plugin/ServiceLookup.h>

#include <QObject>
#include <QString>

namespace Scripting {

/// Base of the objects that a script sees. What the script does wrong, and what the viewer cannot
/// do for it, becomes an exception in the script. GUI thread.
class CScriptObject : public QObject
{
    Q_OBJECT

public:
    /// \a services must outlive the object.
    CScriptObject(const Core::Plugin::IPluginInitializer &services, QObject *parent);

protected:
    /// Throws an `Error` in the script as soon as the running operation returns.
    void fail(const QString &message) const;

    /// The service of the plug-in \a plugin. Null, and an exception in the script, if that is not
    /// there.
    template <class Service>
    QSharedPointer<Service> service(const char *plugin) const
    {
        const auto found = Core::Plugin::findService<Service>(&m_services);
        if (!found) {
            failWithout(plugin);
        }
        return found;
    }

private:
    void failWithout(const char *plugin) const;

    const Core::Plugin::IPluginInitializer &m_services;
};

} // namespace Scripting
