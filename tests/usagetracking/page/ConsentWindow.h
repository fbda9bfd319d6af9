// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "PluginFixture.h"
#include "plugins/nerixwelcome/CNerixWelcomeController.h"
#include "plugins/nerixwelcome/CWelcomeWindow.h"

#include <memory>

#include <QQuickItem>

class QQuickWidget;

/// The real page in the real window of the welcome screen, for keys. The user's earlier answer is
/// what was stored before.
class ConsentWindow
{
public:
    ConsentWindow();
    ~ConsentWindow();

    /// Presses and lets go of a key, wherever the keyboard is.
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {});

    /// Where the keyboard is: the name of an item of the page, for a link its address, "tabs" for
    /// the row of tabs. Empty where it is nowhere, or nothing shows that it is there.
    QString focus() const;

    /// Presses \a key until the keyboard is at \a name. @return false if it went round without.
    bool walkTo(const QString &name, Qt::Key key = Qt::Key_Tab);

    QQuickItem *item(const char *name) const;
    QVariant of(const char *name, const char *property) const;
    QQuickWidget *page() const;

    PluginFixture fixture;
    Plugin::NerixWelcome::CNerixWelcomeController welcome;
    std::unique_ptr<Plugin::NerixWelcome::CWelcomeWindow> window;
};
