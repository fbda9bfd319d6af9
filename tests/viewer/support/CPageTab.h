// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <Plugin/NerixWelcome/INerixWelcomeTab.h>

#include <QTemporaryDir>

// A tab of the welcome screen whose page is a text of the test, in a file "Page.qml".
class CPageTab : public Plugin::NerixWelcome::INerixWelcomeTab
{
    Q_OBJECT

public:
    // Unless \a setsUp, the tab refuses to be loaded.
    explicit CPageTab(const QString &qml, const char *caption = "News", bool setsUp = true);
    ~CPageTab() override;

    void rename(const QString &caption);
    void setApplyNeeded(bool needed);
    void loseThePage();

    // How often the page was about to be loaded.
    int setUpCount() const;

    // Publishes "_greeting".
    bool setupQmlContext(QQmlContext *context) override;

private:
    QTemporaryDir m_folder;
    bool m_setsUp;
    int m_setUpCount = 0;
};
