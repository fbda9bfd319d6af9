// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <Plugin/NerixWelcome/INerixWelcomeTab.h>

#include <QPointer>

// A tab of the welcome screen, as a plug-in would bring it.
class CTestTab : public Plugin::NerixWelcome::INerixWelcomeTab
{
    Q_OBJECT

public:
    explicit CTestTab(const char *id = "Test.Tab", bool applyNeeded = false);
    ~CTestTab() override;

    void setApplyNeeded(bool needed);

    // What the page finds under "_dataPrivacyController"; nothing if null.
    void setController(QObject *controller);

    bool setupQmlContext(QQmlContext *context) override;

private:
    QPointer<QObject> m_controller;
};
