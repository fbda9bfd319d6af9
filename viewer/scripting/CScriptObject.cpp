// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "scripting/CScriptObject.h"

#include <QJSEngine>

namespace Scripting {

CScriptObject::CScriptObject(const Core::Plugin::IPluginInitializer &services, QObject *parent)
    : QObject(parent)
    , m_services(services)
{}

void CScriptObject::fail(const QString &message) const
{
    qjsEngine(this)->throwError(message);
}

void CScriptObject::failWithout(const char *plugin) const
{
    fail(QStringLiteral("plug-in %1 is not running: plugins.list() says why")
             .arg(QString::fromLatin1(plugin)));
}

} // namespace Scripting
