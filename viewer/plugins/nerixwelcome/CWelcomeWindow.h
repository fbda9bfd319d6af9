// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "plugins/nerixwelcome/CWelcomePages.h"

#include <vector>

#include <QDialog>

class QStackedWidget;
class QTabBar;

namespace Windows {
class CPlainLabel;
}

namespace Plugin {
namespace NerixWelcome {

class CNerixWelcomeController;
class CWelcomePageView;
class INerixWelcomeTab;

/// The welcome screen: a row of tabs and the page of the current one. GUI thread.
///
/// It is there exactly while the controller says that the screen is visible. Shown while a tab
/// holds a question, it blocks the other windows, and Esc and the close box only say why it stays.
class CWelcomeWindow : public QDialog
{
    Q_OBJECT

public:
    /// \a controller must outlive the window. \a parent is over what it stands.
    explicit CWelcomeWindow(CNerixWelcomeController &controller, QWidget *parent = nullptr);

    /// The pages go while the tabs are still there.
    ~CWelcomeWindow() override;

    /// Every way in which a user closes the window.
    void done(int result) override;

    /// Says \a message below the page, if this is the window in which the user is: then a link of
    /// the page has failed.
    void showProblem(const QString &message);

    /// The next link has not failed.
    void dropProblem();

private:
    struct Tab
    {
        INerixWelcomeTab *tab;
        CWelcomePageView *view; ///< null until the tab is current
    };

    void setTexts();
    void connectController();
    void layOut();
    void updateTabs();
    void removeTab(int index);
    void insertTab(int index, INerixWelcomeTab *tab);
    void showCurrentPage();
    void followVisibility();
    void followQuestion();
    void bringUp();
    void comeToTheFront();
    void fitToScreen();
    void moveOverTheParent();
    void sayWhyItStays();
    void say(const QString &text);

    CNerixWelcomeController &m_controller;
    CWelcomePages m_pages;
    std::vector<Tab> m_tabs;
    QTabBar *m_tabBar;
    QStackedWidget *m_views;
    Windows::CPlainLabel *m_notice;
    bool m_isSayingWhyItStays = false;
};

} // namespace NerixWelcome
} // namespace Plugin
