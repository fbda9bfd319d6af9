// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "scripting/CScriptObject.h"

#include <memory>

#include <QVariantMap>

class QQmlContext;
class QQmlEngine;

namespace Plugin {
namespace NerixWelcome {
class INerixWelcomeTab;
}
} // namespace Plugin

namespace Scripting {

/// `consent`: the consent page of the welcome screen, driven as its QML page does: through the
/// context property "_dataPrivacyController" that the page's tab publishes. GUI thread.
class CScriptConsent : public CScriptObject
{
    Q_OBJECT

public:
    CScriptConsent(const Core::Plugin::IPluginInitializer &services, QObject *parent);
    ~CScriptConsent() override;

    /// Chooses "yes" or "no" on the page. Nothing happens with it before `apply`.
    Q_INVOKABLE void answer(const QString &yesOrNo);

    /// Presses Apply, which the page offers only while there is something to apply.
    Q_INVOKABLE void apply();

    /// "answered": an answer was applied at least once; "answer": what the page shows, "yes" or
    /// "no"; "applyEnabled": there is something to apply.
    Q_INVOKABLE QVariantMap state();

    /// Follows a link on the page; an exception in the script if nothing is shown then.
    Q_INVOKABLE void openLink(const QString &address);

private:
    QObject *controller();
    QObject *controllerOf(Plugin::NerixWelcome::INerixWelcomeTab *tab);

    std::unique_ptr<QQmlEngine> m_engine;
    std::unique_ptr<QQmlContext> m_context;
};

} // namespace Scripting
