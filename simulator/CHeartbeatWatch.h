// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <glib.h>

#include <string>

typedef struct _ArvFakeCamera ArvFakeCamera;

namespace Simulator {

// Ends an acquisition whose program let go of the camera or fell silent for longer than the
// heartbeat allows, as cameras do. Aravis' fake camera (0.8.26) notices a silent program only when
// somebody else speaks to it, and would go on sending images as soon as the next one takes control.
//
// Works by a timer in the main context of GLib, in the thread of that context.
class CHeartbeatWatch
{
public:
    // The camera serves at the address and outlives the watch.
    CHeartbeatWatch(const std::string &address, ArvFakeCamera *camera);
    ~CHeartbeatWatch();
    CHeartbeatWatch(const CHeartbeatWatch &) = delete;
    CHeartbeatWatch &operator=(const CHeartbeatWatch &) = delete;

private:
    static gboolean onTime(gpointer self);
    void look();
    void speak();

    ArvFakeCamera *m_camera;
    int m_socket;
    guint m_timer;
};

} // namespace Simulator
