// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <thread>

#include <QFile>
#include <QTemporaryDir>

// A named pipe on which a reader would block for ever, and whether somebody has opened it to read.
class CReadPipe
{
public:
    CReadPipe()
    {
        if (mkfifo(m_path.constData(), S_IRUSR | S_IWUSR) != 0) {
            qFatal("no pipe %s", m_path.constData());
        }
        m_watch = std::thread(&CReadPipe::watch, this);
    }

    ~CReadPipe()
    {
        m_isOver = true;
        const int reader = ::open(m_path.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
        m_watch.join();
        ::close(reader);
    }

    Q_DISABLE_COPY_MOVE(CReadPipe)

    QString path() const
    {
        return QFile::decodeName(m_path);
    }

    bool wasRead() const
    {
        return m_wasRead;
    }

private:
    // Opening returns once there is a reader, who then finds the end.
    void watch()
    {
        while (!m_isOver) {
            const int writer = ::open(m_path.constData(), O_WRONLY | O_CLOEXEC);
            m_wasRead = m_wasRead || !m_isOver;
            ::close(writer);
        }
    }

    QTemporaryDir m_folder;
    QByteArray m_path = QFile::encodeName(m_folder.filePath(QStringLiteral("pipe")));
    std::atomic<bool> m_isOver{false};
    std::atomic<bool> m_wasRead{false};
    std::thread m_watch;
};
