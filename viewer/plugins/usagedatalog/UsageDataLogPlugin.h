// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "policy/CUsagePolicy.h"

#include <Core/Plugin/IPlugin.h>

#include <memory>

#include <QString>

class QAction;

namespace Plugin {
namespace UsageDataLog {

class CConsentWatch;
class CEventStore;
class CUsageDataLogWindow;

/// The built-in plug-in "UsageDataLog": the window in which a user sees what is kept of how the
/// viewer is used. It needs windows, and does nothing in a run without. It knows nothing of who
/// records.
class CUsageDataLogPlugin : public Core::Plugin::IPlugin
{
    Q_OBJECT

public:
    /// \a program is `rui-events`.
    explicit CUsageDataLogPlugin(QString program, Policy::CUsagePolicy policy = {},
                                 QObject *parent = nullptr);
    ~CUsageDataLogPlugin() override;

    bool preInitialize(const QPointer<Core::Plugin::IPluginInitializer> &initializer) override;
    bool initialize() override;
    bool uninitialize(const QPointer<Core::Plugin::IPluginInitializer> &initializer) override;

private:
    void showWindow();

    QString m_program;
    const Policy::CUsagePolicy m_policy;
    QPointer<Core::Plugin::IPluginInitializer> m_initializer;
    std::unique_ptr<CEventStore> m_store;     // null until the window is needed
    std::unique_ptr<CConsentWatch> m_consent; // likewise
    QPointer<CUsageDataLogWindow> m_window;
    QAction *m_action = nullptr;
};

} // namespace UsageDataLog
} // namespace Plugin
