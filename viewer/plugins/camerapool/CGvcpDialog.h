// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "CFoundCamera.h"
#include "CGvcpSocket.h"

namespace CameraPool {

/// Two questions to one camera and their answers: who it is, and then whether somebody controls it.
/// One after the other, because a camera need not take a question before it has answered the last.
/// Waits for nothing. Used in one thread.
class CGvcpDialog
{
public:
    /// Asks the camera at the `openId` of \a camera, which is filled in by the answers and outlives
    /// the dialog.
    explicit CGvcpDialog(CFoundCamera *camera);

    Q_DISABLE_COPY_MOVE(CGvcpDialog)

    /// True when both answers are there, or if none is to be expected.
    bool isOver() const
    {
        return m_stage == Stage::Over;
    }

    /// For `poll`, while the dialog is not over.
    int handle() const
    {
        return m_socket.handle();
    }

    /// Asks the question once more that was not answered. An answer to either counts.
    void askAgain()
    {
        sendQuestion();
    }

    /// Takes the datagram that has arrived, and asks on if it is the answer.
    void takeAnswer();

private:
    enum class Stage { Discovery, Privilege, Over };

    void ask(Stage stage);
    void sendQuestion();

    CFoundCamera *const m_camera;
    const CGvcpSocket m_socket;
    Stage m_stage = Stage::Over;
    quint16 m_requestId = 0;
};

} // namespace CameraPool
