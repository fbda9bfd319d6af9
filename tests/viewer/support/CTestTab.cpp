// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "support/CTestTab.h"

#include <QQmlContext>

CTestTab::CTestTab(const char *id, bool applyNeeded)
    : INerixWelcomeTab(nullptr)
{
    setId(Core::CId(id));
    title = QString::fromLatin1(id);
    applyIsNeeded = applyNeeded;
}

CTestTab::~CTestTab() = default;

void CTestTab::setApplyNeeded(bool needed)
{
    applyIsNeeded = needed;
    Q_EMIT applyIsNeededChanged();
}

void CTestTab::setController(QObject *controller)
{
    m_controller = controller;
}

bool CTestTab::setupQmlContext(QQmlContext *context)
{
    if (m_controller) {
        context->setContextProperty(QStringLiteral("_dataPrivacyController"), m_controller);
    }
    return true;
}
