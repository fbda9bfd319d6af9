// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "CViewerRun.h"

#include <utility>

#include <QCoreApplication>
#include <QDir>
#include <QFile>

namespace {

PluginSystem::PluginMetaData metaData()
{
    PluginSystem::PluginMetaData data;
    data.name = QStringLiteral("A");
    data.version = QVersionNumber(1, 0, 0);
    return data;
}

} // namespace

CViewerRun::CViewerRun(Application::CommandLine options)
{
    make(std::move(options));
}

CViewerRun::CViewerRun(const QByteArray &script)
{
    QFile file(m_folder.filePath(QStringLiteral("test.js")));
    if (!file.open(QIODevice::WriteOnly) || file.write(script) < 0) {
        qFatal("no script file");
    }
    Application::CommandLine options;
    options.scriptFile = file.fileName();
    make(std::move(options));
}

void CViewerRun::make(Application::CommandLine options)
{
    if (options.pluginFolders.isEmpty()) {
        options.pluginFolders.append(m_folder.filePath(QStringLiteral("plugins")));
        QDir(m_folder.path()).mkdir(QStringLiteral("plugins"));
    }
    options.settingsFolder = m_folder.filePath(QStringLiteral("settings"));
    m_viewer = std::make_unique<Application::CViewer>(options);
    m_viewer->plugins().addBuiltIn(metaData(),
                                   [this] { return std::make_unique<CTestPlugin>(m_behaviour); });
}

CViewerRun::~CViewerRun() = default;

Application::CViewer &CViewerRun::viewer()
{
    return *m_viewer;
}

CTestPlugin::Behaviour &CViewerRun::behaviour()
{
    return m_behaviour;
}

QString CViewerRun::folder() const
{
    return m_folder.path();
}

int CViewerRun::run()
{
    m_viewer->start();
    return QCoreApplication::exec();
}
