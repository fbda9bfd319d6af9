// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "AskCameras.h"

#include "CGvcpDialog.h"

#include <poll.h>

#include <memory>
#include <vector>

#include <QDeadlineTimer>

namespace CameraPool {
namespace {

// As long as a whole GigE Vision discovery takes: the standard gives a camera one second.
constexpr int AnswerTimeoutMs = 1000;

using Dialogs = std::vector<std::unique_ptr<CGvcpDialog>>;

Dialogs beginDialogs(QVector<CFoundCamera> *cameras)
{
    Dialogs dialogs;
    for (CFoundCamera &camera : *cameras) {
        if (camera.isGigE) {
            dialogs.push_back(std::make_unique<CGvcpDialog>(&camera));
        }
    }
    return dialogs;
}

std::vector<CGvcpDialog *> unfinished(const Dialogs &dialogs)
{
    std::vector<CGvcpDialog *> result;
    for (const auto &dialog : dialogs) {
        if (!dialog->isOver()) {
            result.push_back(dialog.get());
        }
    }
    return result;
}

void takeAnswers(const Dialogs &dialogs, const QDeadlineTimer &deadline)
{
    for (auto waiting = unfinished(dialogs); !waiting.empty(); waiting = unfinished(dialogs)) {
        std::vector<pollfd> sockets;
        for (const CGvcpDialog *dialog : waiting) {
            sockets.push_back({dialog->handle(), POLLIN, 0});
        }
        if (::poll(sockets.data(), sockets.size(), int(deadline.remainingTime())) <= 0) {
            return;
        }
        for (std::size_t i = 0; i < waiting.size(); ++i) {
            if (sockets[i].revents != 0) {
                waiting[i]->takeAnswer();
            }
        }
    }
}

} // namespace

void askCameras(QVector<CFoundCamera> *cameras)
{
    const QDeadlineTimer end(AnswerTimeoutMs);
    const Dialogs dialogs = beginDialogs(cameras);
    takeAnswers(dialogs, QDeadlineTimer(AnswerTimeoutMs / 2));
    for (CGvcpDialog *dialog : unfinished(dialogs)) {
        dialog->askAgain();
    }
    takeAnswers(dialogs, end);
}

} // namespace CameraPool
