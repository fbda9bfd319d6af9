// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <Plugin/NerixWelcome/INerixWelcomeTab.h>

#include <QQmlContext>

// The consent page's object, as far as others see it.
class CAnswer : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool dataPrivacyOptInSelected MEMBER selected NOTIFY selectedChanged)
    Q_PROPERTY(bool dataPrivacyOptInEnabled MEMBER enabled NOTIFY enabledChanged)
    Q_PROPERTY(bool dataPrivacyApplyEnabled MEMBER applyEnabled NOTIFY applyEnabledChanged)

public:
    bool selected = false;
    bool enabled = false;
    bool applyEnabled = false;

Q_SIGNALS:
    void selectedChanged();
    void enabledChanged();
    void applyEnabledChanged();
};

class CAnswerTab : public Plugin::NerixWelcome::INerixWelcomeTab
{
    Q_OBJECT

public:
    CAnswerTab()
        : INerixWelcomeTab(nullptr)
    {
        title = QStringLiteral("Data Privacy");
    }

    bool setupQmlContext(QQmlContext *context) override
    {
        context->setContextProperty(QStringLiteral("_dataPrivacyController"), &answer);
        return true;
    }

    CAnswer answer;
};
