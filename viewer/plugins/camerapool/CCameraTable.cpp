// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CCameraTable.h"

#include "CCameraInfo.h"

#include <algorithm>

namespace CameraPool {

CCameraTable::Changes CCameraTable::update(const QVector<CFoundCamera> &found,
                                           const QSet<QString> &openIdentities)
{
    Changes changes;
    for (Entry &entry : m_entries) {
        entry.wasFound = false;
    }
    for (const CFoundCamera &camera : found) {
        take(camera, &changes);
    }
    for (Entry &entry : m_entries) {
        if (entry.isThere && !entry.wasFound) {
            miss(&entry, openIdentities.contains(entry.found.identity()), &changes);
        }
    }
    return changes;
}

void CCameraTable::remove(const QString &identity)
{
    for (Entry &entry : m_entries) {
        if (entry.found.identity() == identity) {
            entry.isThere = false;
        }
    }
}

void CCameraTable::setControlled(const QString &identity, bool isControlled)
{
    for (Entry &entry : m_entries) {
        if (entry.found.identity() == identity) {
            entry.found.isControlled = isControlled;
        }
    }
}

QList<CCameraTable::CameraInfoPtr> CCameraTable::cameras() const
{
    QList<CameraInfoPtr> infos;
    for (const Entry &entry : m_entries) {
        if (entry.isThere) {
            infos.append(entry.info);
        }
    }
    return infos;
}

QString CCameraTable::nameOf(const CameraInfoPtr &camera) const
{
    for (const Entry &entry : m_entries) {
        if (entry.found.identity() == camera->identity()) {
            return entry.found.displayName();
        }
    }
    return camera->displayName();
}

const CFoundCamera *CCameraTable::find(const QString &identity) const
{
    for (const Entry &entry : m_entries) {
        if (entry.isThere && entry.found.identity() == identity) {
            return &entry.found;
        }
    }
    return nullptr;
}

CCameraTable::Entry &CCameraTable::entry(const QString &identity)
{
    const auto known = std::find_if(m_entries.begin(), m_entries.end(), [&](const Entry &entry) {
        return entry.found.identity() == identity;
    });
    if (known != m_entries.end()) {
        return *known;
    }
    m_entries.append(Entry());
    return m_entries.last();
}

CFoundCamera CCameraTable::withWhatWasKnown(CFoundCamera found, const CFoundCamera &before)
{
    if (!found.isNameKnown) {
        found.userName = before.userName;
    }
    if (!found.isControlKnown) {
        found.isControlled = before.isControlled;
    }
    return found;
}

void CCameraTable::take(const CFoundCamera &answer, Changes *changes)
{
    Entry &camera = entry(answer.identity());
    const CFoundCamera found = withWhatWasKnown(answer, camera.found);
    if (!camera.info) {
        camera.info.reset(new CCameraInfo(found));
    } else if (camera.found.userName != found.userName) {
        camera.info.reset(new CCameraInfo(found));
        changes->renamed.append(camera.info);
    }
    camera.found = found;
    camera.misses = 0;
    camera.wasFound = true;
    if (!camera.isThere) {
        camera.isThere = true;
        changes->connected.append(camera.info);
    }
}

void CCameraTable::miss(Entry *entry, bool isOpen, Changes *changes)
{
    ++entry->misses;
    if (isOpen) {
        if (entry->misses == MissesUntilLost) {
            changes->lost.append(entry->info);
        }
    } else if (entry->misses >= MissesUntilGone) {
        entry->isThere = false;
        changes->gone.append(entry->info);
    }
}

} // namespace CameraPool
