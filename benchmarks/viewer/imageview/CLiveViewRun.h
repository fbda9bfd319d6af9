// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "application/CViewer.h"
#include "CInputProbe.h"

#include <atomic>
#include <memory>

#include <QObject>
#include <QTemporaryDir>
#include <QTimer>
#include <QVector>

namespace ImageView {
class CImageArea;
}

// One run of the real viewer, with or without its windows, that grabs 1920 x 1080 pixels 60 times a
// second from the simulated camera.
class CLiveViewRun : public QObject
{
    Q_OBJECT

public:
    struct Result
    {
        bool hasSucceeded = false;
        int images = 0;
        int failures = 0;
        qint64 missedFrames = -1;   // that never began to arrive, as the stream has counted
        double imagesPerSecond = 0; // over the whole grab
        int shown = 0;              // images that the view got
        QVector<double> latencies;  // of input, in milliseconds
        QVector<double> memory;     // in MiB, once a second during the grab
    };

    CLiveViewRun(bool withWindows, double seconds);
    ~CLiveViewRun() override;

    // Runs the application's event loop until all is over.
    Result run();

private:
    void writeScript(double seconds) const;
    void listen();
    void watchView();
    void onSecond();
    void onGrabStopped();

    const bool m_withWindows;
    QTemporaryDir m_folder;
    std::unique_ptr<Application::CViewer> m_viewer;
    std::unique_ptr<CInputProbe> m_probe;
    QTimer m_second;
    Result m_result;
    std::atomic<int> m_images{0};
    std::atomic<int> m_failures{0};
};
