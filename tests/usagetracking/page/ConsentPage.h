// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "PluginFixture.h"
#include "plugins/nerixwelcome/CNerixWelcomeController.h"
#include "plugins/nerixwelcome/CWelcomePages.h"

#include <Plugin/NerixWelcome/INerixWelcomeTab.h>

#include <QQuickItem>
#include <QQuickWindow>

/// The real page in a window of its default size, on the controller of the real plug-in and on the
/// real welcome screen. The user's earlier answer is what `storeKeys` stored before.
class ConsentPage
{
public:
    ConsentPage();
    ~ConsentPage();

    /// Puts a new page in the place of the one that is there.
    void reload();

    /// An item by its name; fails the test if there is none.
    QQuickItem *item(const char *name) const;
    QVariant of(const char *name, const char *property) const;

    /// A real click in the middle of an item.
    void click(const char *name);

    /// The pointer to the middle of an item, and to where nothing is.
    void hover(const char *name);
    void hoverNothing();

    /// In the window, a point over \a target in the text \a name; a null point if that text has no
    /// such link.
    QPoint linkPosition(const char *name, const QString &target) const;

    PluginFixture fixture;
    Plugin::NerixWelcome::CNerixWelcomeController welcome;
    Plugin::NerixWelcome::CWelcomePages pages{welcome};
    QQuickWindow window;

private:
    QPoint middleOf(const char *name) const;

    Plugin::NerixWelcome::CWelcomePages::Page m_page;
};

/// Stores the answer as an earlier run of the viewer left it.
inline void storeAnswer(bool yes)
{
    storeKeys(yes, true);
}

inline void storeNoAnswer()
{
    storeKeys(QVariant(), QVariant());
}
