// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CCameraTable.h"

#include "CCameraInfo.h"

#include <algorithm>
#include <utility>

namespace CameraPool {

CCameraTable::Changes CCameraTable::update(const QVector<CFoundCamera> &found,
                                           const QSet<QString> &openIdentities)
{
    Changes changes;
    for (Entry &entry : m_entries) {
        entry.wasFound = false;
    }
    for (const CFoundCamera &camera : knownFirst(found)) {
        take(distinguished(camera, &changes), &changes);
    }
    for (Entry &entry : m_entries) {
        if (entry.isThere && !entry.wasFound) {
            miss(&entry, openIdentities.contains(entry.found.identity()), &changes);
        }
    }
    forgetSome();
    return changes;
}

void CCameraTable::remove(const QString &identity)
{
    if (Entry *entry = entryOf(identity)) {
        entry->isThere = false;
    }
}

void CCameraTable::setControlled(const QString &identity, bool isControlled)
{
    if (Entry *entry = entryOf(identity)) {
        entry->found.isControlled = isControlled;
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
    const auto place = m_places.find(camera->identity());
    return place == m_places.end() ? camera->displayName() : m_entries[*place].found.displayName();
}

const CFoundCamera *CCameraTable::find(const QString &identity) const
{
    const auto place = m_places.find(identity);
    return place == m_places.end() || !m_entries[*place].isThere ? nullptr
                                                                 : &m_entries[*place].found;
}

CCameraTable::Entry *CCameraTable::entryOf(const QString &identity)
{
    const auto place = m_places.find(identity);
    return place == m_places.end() ? nullptr : &m_entries[*place];
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

// Whoever answers first must not take the place of the camera that was there before.
QVector<CFoundCamera> CCameraTable::knownFirst(QVector<CFoundCamera> found) const
{
    std::stable_partition(found.begin(), found.end(), [this](const CFoundCamera &camera) {
        const auto place = m_places.find(camera.identity());
        return place != m_places.end() && m_entries[*place].found.openId == camera.openId;
    });
    return found;
}

// A camera keeps its MAC address, and has one address at a time. Without a MAC address there is
// nothing to tell devices apart by.
CFoundCamera CCameraTable::distinguished(CFoundCamera found, Changes *changes)
{
    if (found.isAddressShared) {
        tell(QStringLiteral("two devices have the address %1, and one of them says that it is %2: "
                            "give each an address of its own, or find out which one is the camera")
                 .arg(found.openId, found.plainIdentity()),
             changes);
    }
    if (!isTaken(found)) {
        return found;
    }
    const CFoundCamera first = entryOf(found.identity())->found;
    found.distinction = found.mac == first.mac ? found.openId : found.mac;
    tell(QStringLiteral("two devices say that they are %1: %2 at %3 and %4 at %5; give each a "
                        "serial number of its own, or find out which one is the camera")
             .arg(found.plainIdentity(), first.mac, first.openId, found.mac, found.openId),
         changes);
    return found;
}

bool CCameraTable::isTaken(const CFoundCamera &found) const
{
    const auto place = m_places.find(found.identity());
    if (place == m_places.end() || !found.isGigE || found.mac.isEmpty()) {
        return false;
    }
    const Entry &first = m_entries[*place];
    return first.found.mac != found.mac || (first.wasFound && first.found.openId != found.openId);
}

void CCameraTable::tell(const QString &conflict, Changes *changes)
{
    if (m_told.size() < MostGone && !m_told.contains(conflict)) {
        m_told.insert(conflict);
        changes->conflicts.append(conflict);
    }
}

void CCameraTable::take(const CFoundCamera &answer, Changes *changes)
{
    if (!m_places.contains(answer.identity())) {
        m_places.insert(answer.identity(), m_entries.size());
        m_entries.emplace_back();
    }
    Entry &camera = *entryOf(answer.identity());
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

void CCameraTable::forgetSome()
{
    const auto isGone = [](const Entry &entry) { return !entry.isThere; };
    auto surplus = std::count_if(m_entries.begin(), m_entries.end(), isGone) - MostGone;
    if (surplus <= 0) {
        return;
    }
    m_entries.erase(
        std::remove_if(m_entries.begin(), m_entries.end(),
                       [&](const Entry &entry) { return isGone(entry) && surplus-- > 0; }),
        m_entries.end());
    m_places.clear();
    for (std::size_t place = 0; place < m_entries.size(); ++place) {
        m_places.insert(m_entries[place].found.identity(), place);
    }
}

} // namespace CameraPool
