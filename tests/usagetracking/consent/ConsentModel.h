// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

/// What the consent must do, said a second time and independently: tables instead of objects, no Qt
/// signals, no timers. Every step takes effect at once.
struct ConsentModel
{
    // What is on disk; stays when the viewer ends.
    bool storedEnabled = false;
    bool storedSelected = false;

    // What the page shows.
    bool selected = false;
    bool applied = false;
    bool shown = false;
    bool applyEnabled = false;
    bool owesAnswer = true;

    // What tracking does.
    bool active = false;
    bool sessionOpen = false;
    int lastInstance = 0;

    /// The analytics calls and the controller's signals of the steps so far.
    QStringList calls;
    QStringList notifications;

    void start();
    void click(bool yes);
    void apply();
    void shutDown();

private:
    void track();
    void withdraw();
    void endSession();
    void call(const QString &text)
    {
        calls.append(text);
    }
};
