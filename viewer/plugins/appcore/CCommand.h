// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <Core/AppCoreComponents/CContext.h>
#include <Plugin/AppCore/ICommand.h>

#include <QPointer>

class QAction;

namespace Plugin {
namespace AppCore {

/// An action with its id and its contexts. GUI thread.
class CCommand : public ICommand
{
public:
    explicit CCommand(const Core::CId &id);
    ~CCommand() override;

    Core::CId id() const override;
    QAction *action() const override;

    const Core::AppCoreComponents::CContext &context() const;

    void setAction(QAction *action, const Core::AppCoreComponents::CContext &context);

private:
    Core::CId m_id;
    QPointer<QAction> m_action;
    Core::AppCoreComponents::CContext m_context;
};

} // namespace AppCore
} // namespace Plugin
