// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "CFoundCamera.h"

#include <Core/CameraPoolComponents/ICameraInfo.h>

#include <vector>

#include <QHash>
#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QVector>

namespace CameraPool {

/// What the searches know: which cameras are there, and how often each was missed. A camera counts
/// as gone after some misses in a row, because one answer is easily lost on a busy network. Pure
/// logic, used in one thread.
class CCameraTable
{
public:
    using CameraInfoPtr = Core::CameraPoolComponents::CameraInfoPtr;

    /// From how many searches in a row a camera must be missing to count as gone.
    static constexpr int MissesUntilGone = 2;

    /// The same for a camera that is open. It is more, because a camera that streams may be slow to
    /// answer, and because the open connection usually notices a loss by itself.
    static constexpr int MissesUntilLost = 3;

    /// What a search changed, in the table's order.
    struct Changes
    {
        QList<CameraInfoPtr> connected;
        QList<CameraInfoPtr> gone;
        QList<CameraInfoPtr> lost;    ///< open, and missed as often as that; still in the table
        QList<CameraInfoPtr> renamed; ///< have another display name than when they were found last
        QStringList conflicts; ///< a line for each device that looks like another, told once each
    };

    /// How many cameras are remembered that are gone. Those seen first are forgotten first: a
    /// device can say that it is another one each time that it is asked.
    static constexpr int MostGone = 2000;

    /// Takes the result of a search. A camera that was renamed keeps its place and gets a new
    /// description; it is neither connected nor gone by that. What a camera did not tell this time
    /// stays as it was told before. Of several devices that say that they are the same camera the
    /// first one is it, and the others are cameras of their own.
    Changes update(const QVector<CFoundCamera> &found, const QSet<QString> &openIdentities);

    /// Forgets that the camera is there, as if it had been missed often enough.
    void remove(const QString &identity);

    /// Notes who controls the camera, between two searches that tell it too.
    void setControlled(const QString &identity, bool isControlled);

    /// The cameras that are there, in the order in which they were first seen. A camera that comes
    /// back gets its old place.
    QList<CameraInfoPtr> cameras() const;

    /// The display name of \a camera, which is not null, as it was found last, also if it is gone
    /// by now. Its own one if it was never found.
    QString nameOf(const CameraInfoPtr &camera) const;

    /// The camera as it was found last; null if it is not there. Valid until the table changes.
    const CFoundCamera *find(const QString &identity) const;

private:
    struct Entry
    {
        CFoundCamera found;
        CameraInfoPtr info;
        int misses = 0;
        bool isThere = false;
        bool wasFound = false;
    };

    static CFoundCamera withWhatWasKnown(CFoundCamera found, const CFoundCamera &before);
    QVector<CFoundCamera> knownFirst(QVector<CFoundCamera> found) const;
    CFoundCamera distinguished(CFoundCamera found, Changes *changes);
    bool isTaken(const CFoundCamera &found) const;
    void tell(const QString &conflict, Changes *changes);
    Entry *entryOf(const QString &identity);
    void take(const CFoundCamera &answer, Changes *changes);
    static void miss(Entry *entry, bool isOpen, Changes *changes);
    void forgetSome();

    std::vector<Entry> m_entries;
    QHash<QString, std::size_t> m_places; // in m_entries, by identity
    QSet<QString> m_told;
};

} // namespace CameraPool
