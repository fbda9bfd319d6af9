// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include <QString>

namespace Scripting {

class CScriptWait;

/// Does what may have to wait for a device: in a thread of the thread pool, while the viewer works
/// on. Used in the GUI thread.
class CDeviceAccess
{
public:
    /// \a wait must outlive the object.
    explicit CDeviceAccess(CScriptWait &wait);

    /// Runs \a work and waits for its end. It may go on after that if the script is ended
    /// meanwhile, so it must own, or share, all that it uses.
    /// @return what failed, in one line; empty if nothing did.
    QString run(std::function<void()> work) const;

private:
    CScriptWait &m_wait;
};

} // namespace Scripting
