// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <sys/resource.h>

#include <csignal>

#include <QtGlobal>

// While it lives no file may grow beyond \a bytes, as on a disk that is nearly full.
class CSmallFiles
{
public:
    explicit CSmallFiles(rlim_t bytes)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit small{bytes, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
    }
    ~CSmallFiles()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
    }
    Q_DISABLE_COPY_MOVE(CSmallFiles)

private:
    rlimit m_before{};
};
