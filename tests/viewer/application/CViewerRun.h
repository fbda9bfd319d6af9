// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "application/CViewer.h"
#include "support/CTestPlugin.h"

#include <memory>

#include <QTemporaryDir>

// The whole viewer in the process of the test, with folders of its own and a plug-in "A" of the
// test, which comes before the built-in ones.
class CViewerRun
{
public:
    // \a options may name a script; the folders are given.
    explicit CViewerRun(Application::CommandLine options = {});
    explicit CViewerRun(const QByteArray &script);
    ~CViewerRun();

    Q_DISABLE_COPY_MOVE(CViewerRun)

    Application::CViewer &viewer();
    CTestPlugin::Behaviour &behaviour();
    QString folder() const;

    // Starts the viewer and runs the event loop to its end. @return the exit status.
    int run();

private:
    void make(Application::CommandLine options);

    QTemporaryDir m_folder;
    CTestPlugin::Behaviour m_behaviour;
    std::unique_ptr<Application::CViewer> m_viewer;
};
