// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "plugins/nerixwelcome/CNerixWelcomeController.h"
#include "plugins/nerixwelcome/CPageWidget.h"
#include "plugins/nerixwelcome/CWelcomeWindow.h"
#include "support/CPageTab.h"
#include "support/CSettingsSandbox.h"

#include <memory>

#include <QString>

class QLabel;
class QTabBar;

// The window of the welcome screen on a controller without tabs.
class WelcomeWindowFixture
{
public:
    // A page without anything, of 400 x 300 pixels.
    static const QString emptyPage;

    // The same with three places for the keyboard: "a", "b" and "c".
    static const QString pageOfThree;

    WelcomeWindowFixture();
    ~WelcomeWindowFixture();

    void makeWindow(QWidget *parent = nullptr);
    QTabBar *tabBar() const;
    QLabel *notice() const;

    // The page that is seen; null if there is an error in its place.
    Plugin::NerixWelcome::CPageWidget *page() const;

    // Where the keyboard is: the name of an item of the page, or "tabs".
    QString stop() const;

    CSettingsSandbox sandbox;
    Plugin::NerixWelcome::CNerixWelcomeController controller;
    std::unique_ptr<Plugin::NerixWelcome::CWelcomeWindow> window;
};
