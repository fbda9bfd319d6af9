// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QObject>

namespace Plugin {
namespace NerixWelcome {

class INerixWelcomeTab;

/// The welcome screen without its window: which tabs it has, which one is current, whether it is
/// shown, and whether the user may leave it. GUI thread.
///
/// The tabs are their plug-ins'; one that is destroyed disappears from the screen.
class CNerixWelcomeController : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QList<QObject *> tabs READ tabObjects NOTIFY tabsChanged)
    Q_PROPERTY(int currentIndex READ currentIndex WRITE setCurrentIndex NOTIFY currentIndexChanged)
    Q_PROPERTY(bool visible READ isVisible NOTIFY visibleChanged)
    Q_PROPERTY(
        bool applyFromTabsIsNeeded READ applyFromTabsIsNeeded NOTIFY applyFromTabsIsNeededChanged)
    Q_PROPERTY(
        bool showAtStartup READ showAtStartup WRITE setShowAtStartup NOTIFY showAtStartupChanged)

public:
    explicit CNerixWelcomeController(QObject *parent = nullptr);
    ~CNerixWelcomeController() override;

    const QList<INerixWelcomeTab *> &tabs() const;
    QList<QObject *> tabObjects() const;

    /// Adds \a tab at the end. Null, or a tab that is there already, is ignored.
    void addTab(INerixWelcomeTab *tab);

    /// The place of the current tab in `tabs()`; -1 without tabs.
    int currentIndex() const;

    /// An index without a tab is ignored.
    void setCurrentIndex(int index);

    /// Null without tabs.
    INerixWelcomeTab *currentTab() const;

    bool isVisible() const;

    /// True while a tab holds a question that was never answered: the user must not leave.
    bool applyFromTabsIsNeeded() const;

    /// Whether the user wants to see the screen at each start. Kept in the settings under
    /// "NerixWelcome/ShowAtStartup"; true unless the user chose otherwise.
    bool showAtStartup() const;
    void setShowAtStartup(bool show);

    /// Shows the screen if the user wants it at each start or if a tab holds a question, then on
    /// that tab. Without tabs there is nothing to show.
    void start();

    Q_INVOKABLE void show();

    /// Shows the screen on \a tab. @return false, and nothing is shown, for a tab that is not
    /// there.
    bool showTab(const INerixWelcomeTab *tab);

    /// Hides the screen. @return false while `applyFromTabsIsNeeded`; it then stays.
    Q_INVOKABLE bool close();

public Q_SLOTS:
    /// The Close button of a page.
    void onCloseNerixWelcomeClicked();

Q_SIGNALS:
    void tabsChanged();
    void currentIndexChanged();
    void visibleChanged();

    /// Somebody wants to see the screen, which may be there already, behind others.
    void showRequested();
    void applyFromTabsIsNeededChanged();
    void showAtStartupChanged();

private:
    void removeTab(const QObject *tab);
    void setVisible(bool visible);
    void updateApplyFromTabsIsNeeded();
    int firstTabWithQuestion() const;

    QList<INerixWelcomeTab *> m_tabs;
    int m_currentIndex = -1;
    bool m_visible = false;
    bool m_applyFromTabsIsNeeded = false;
};

} // namespace NerixWelcome
} // namespace Plugin
