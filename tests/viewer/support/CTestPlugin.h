// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <Core/Plugin/IPlugin.h>

#include <functional>

#include <QList>
#include <QSharedPointer>
#include <QStringList>

// A plug-in that offers the services of the test, vetoes when the test says so, and writes down
// what the viewer does with it.
class CTestPlugin : public Core::Plugin::IPlugin
{
    Q_OBJECT

public:
    struct Behaviour
    {
        QList<QSharedPointer<QObject>> services;
        bool closable = true;
        int closabilityQuestions = 0;
        QStringList calls;
        // Called in initialize.
        std::function<void()> work;
    };

    // \a behaviour must outlive the plug-in.
    explicit CTestPlugin(Behaviour &behaviour);
    ~CTestPlugin() override;

    bool preInitialize(const QPointer<Core::Plugin::IPluginInitializer> &initializer) override;
    bool initialize() override;
    bool uninitialize(const QPointer<Core::Plugin::IPluginInitializer> &initializer) override;
    bool checkPluginClosability() override;
    void aboutToUninitialize() override;

private:
    Behaviour &m_behaviour;
};
