// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "scripting/CScriptRunner.h"

#include <pluginsystem/CPluginManager.h>

#include <memory>

#include <QStringList>
#include <QTemporaryDir>

// One script against the services of the test.
class CScriptRun
{
public:
    CScriptRun();
    ~CScriptRun();

    Q_DISABLE_COPY_MOVE(CScriptRun)

    void addService(const QSharedPointer<QObject> &service);
    Scripting::CScriptRunner &runner();

    // Runs \a script as the file "test.js". @return what `CScriptRunner::run` returns, without the
    // path of the file.
    QString run(const QByteArray &script);

    const QStringList &printed() const;

private:
    QTemporaryDir m_folder;
    PluginSystem::CPluginManager m_plugins;
    std::unique_ptr<Scripting::CScriptRunner> m_runner;
    QStringList m_printed;
};
