// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <functional>
#include <memory>

#include <QString>
#include <QStringList>

namespace Application {

/// A step that the viewer must come through to end.
struct EndStep
{
    QString line;         ///< what is to say if it hangs, such as: plug-in "Hello" does not end
    QStringList question; ///< the same for a window, as `endQuestion` gives it; empty: no window
};

/// Sees to it that the viewer can be ended whatever hangs: a plug-in, a library below it, a
/// camera's description. A thread of its own watches how long the present step of the end takes.
/// Nothing is cut short as long as it goes on: a plug-in may need its time, and is waited for
/// without a limit unless the user wants it otherwise.
///
/// All operations are callable in any thread.
class CEndGuard
{
public:
    struct Limits
    {
        /// A step that takes longer is told. Reading all features of a slow camera takes less.
        std::chrono::milliseconds patience{10000};
        /// Who chose to wait is asked again after this.
        std::chrono::milliseconds pause{60000};
        /// What every step still gets when the user insists: far more than it needs if nothing
        /// hangs.
        std::chrono::milliseconds grace{1000};
    };

    /// Tells the user of a step that hangs. Called in a thread of its own, which may be left
    /// behind.
    /// @return whether to end the viewer without waiting for it.
    using Asker = std::function<bool(const EndStep &step)>;

    /// Ends the process, in the guard's thread.
    using Ender = std::function<void(const EndStep &step)>;

    CEndGuard(Asker asker, Ender ender, const Limits &limits);
    CEndGuard(Asker asker, Ender ender);

    /// Nothing is watched any more; a question that is open is not waited for.
    ~CEndGuard();

    Q_DISABLE_COPY_MOVE(CEndGuard)

    /// \a step begins now, and the one before has ended.
    void expect(const EndStep &step);

    /// Nothing is to end at present. \a idle is what hangs when a request does not lead to the next
    /// `expect`.
    void rest(const EndStep &idle);

    /// Somebody wants the viewer to end: a step is expected to begin soon.
    void request();

    /// The user wants the end now: what takes longer than the grace is not waited for.
    void insist();

    /// The same, for the present step alone.
    void insistOnStep();

    /// Whether `insist` was called.
    bool isInsistedOn() const;

private:
    struct State;

    std::shared_ptr<State> m_state;
};

} // namespace Application
