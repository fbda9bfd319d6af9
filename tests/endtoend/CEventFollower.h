// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QProcess>
#include <QStringList>

// Sees every event of a viewer as it is stored, with `rui-events --follow`: of a long run the
// library keeps only the newest.
class CEventFollower : public QObject
{
    Q_OBJECT

public:
    // From now on, in the folder \a libraryFolder, which may come later.
    explicit CEventFollower(const QString &libraryFolder);
    ~CEventFollower() override;

    // Waits until an event of \a category and \a name has been seen.
    // @return whether it was, within 60 s.
    bool waitForEvent(const QString &category, const QString &name);

    // As `rui-events --raw` prints them.
    QStringList events() const;

private:
    void onOutput();

    QProcess m_tool;
    QStringList m_events;
};
