// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <Nerix/CGrabResultData.h>

#include <functional>
#include <memory>
#include <mutex>

#include <QDateTime>
#include <QHash>
#include <QString>
#include <QVector>

namespace ImageView {

/// Takes the results of grabs to the GUI thread without ever making a grab wait: of each camera it
/// holds the newest image only, and counts the failures. So it holds one image of each camera at
/// most, however slow its reader is.
class CMailbox
{
public:
    /// Failures with the same text.
    struct Failure
    {
        QString text;
        int count = 0;
    };

    /// What came from one camera since it was taken last.
    struct News
    {
        Nerix::CGrabResultPtr image; ///< the newest one; null if none came
        QDateTime time;              ///< when it came, in UTC
        QVector<Failure> failures;   ///< the last one at the end; the texts are few
    };

    /// \a tell is called in the grab's thread, with the identity of a camera of which there was
    /// nothing to take before. It must do no more than post an event.
    explicit CMailbox(std::function<void(const QString &identity)> tell);

    /// Callable in any thread.
    void put(const QString &identity, const Nerix::CGrabResultPtr &result);

    /// Takes what there is. Callable in any thread.
    News take(const QString &identity);

    /// Drops what there is and what comes later, and calls `tell` no more, not even in a thread
    /// that is in `put` right now.
    void close();

private:
    struct Slot
    {
        News news;
        bool isEmpty = true;
    };

    std::mutex m_mutex;
    const std::function<void(const QString &identity)> m_tell; // called under m_mutex
    QHash<QString, Slot> m_slots;                              // guarded by m_mutex
    bool m_isClosed = false;                                   // guarded by m_mutex
};

/// The words for a result that failed.
QString failureText(const Nerix::CGrabResultData &result);

} // namespace ImageView
