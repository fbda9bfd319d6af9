// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <glib.h>

#include <string>

namespace Simulator {

// Ends an acquisition whose program let go of the camera or fell silent for longer than the
// heartbeat allows, as cameras do. Aravis' fake camera (0.8.26) notices a silent program only when
// somebody else speaks to it, and would go on sending images as soon as the next one takes control.
//
// Four times a second it asks the camera, over the control protocol as any other program would, to
// stop acquiring. The camera looks at the heartbeat, ignores the request as long as a program is in
// control, and obeys it otherwise. Works by a timer in the main context of GLib, in its thread.
class CHeartbeatWatch
{
public:
    // The address is the camera's.
    explicit CHeartbeatWatch(const std::string &address);
    ~CHeartbeatWatch();
    CHeartbeatWatch(const CHeartbeatWatch &) = delete;
    CHeartbeatWatch &operator=(const CHeartbeatWatch &) = delete;

private:
    static gboolean onTime(gpointer self);
    void ask();

    int m_socket;
    guint m_timer;
};

} // namespace Simulator
