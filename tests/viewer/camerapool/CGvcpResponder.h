// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <thread>
#include <vector>

#include <QByteArray>

// What a GigE Vision camera answers who looks for it, and nothing else: it cannot be opened. It may
// lack what the simulated camera always has, and lose what is sent to it. It runs in a thread of
// its own and is used from one other thread.
class CGvcpResponder
{
public:
    struct Camera
    {
        QByteArray address; // 127.0.0.1 to 127.0.0.5; nothing else may listen there
        QByteArray mac;     // in hexadecimal
        QByteArray serial;
        QByteArray userName;
        quint32 privilege = 0; // 2: somebody controls it
        // Told of each question that is sent to the camera alone, in the camera's thread. False:
        // the question is lost.
        std::function<bool()> onDirectQuestion = {};
    };

    explicit CGvcpResponder(Camera camera);
    ~CGvcpResponder();

    Q_DISABLE_COPY_MOVE(CGvcpResponder)

    // False if the address or the broadcasts cannot be listened to.
    bool isListening() const;

private:
    void run();
    void answer(int socket);
    QByteArray answerTo(const QByteArray &question) const;
    QByteArray discoveryAnswer() const;

    const Camera m_camera;
    std::vector<int> m_sockets; // the camera's own first, then those for broadcasts
    int m_end = -1;             // readable when the thread shall end
    std::thread m_thread;
};
