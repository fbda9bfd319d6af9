// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/appcore/CCommand.h"

#include <QAction>

namespace Plugin {
namespace AppCore {

CCommand::CCommand(const Core::CId &id)
    : m_id(id)
{}

CCommand::~CCommand() = default;

Core::CId CCommand::id() const
{
    return m_id;
}

QAction *CCommand::action() const
{
    return m_action;
}

const Core::AppCoreComponents::CContext &CCommand::context() const
{
    return m_context;
}

void CCommand::setAction(QAction *action, const Core::AppCoreComponents::CContext &context)
{
    m_action = action;
    m_context = context;
}

} // namespace AppCore
} // namespace Plugin
