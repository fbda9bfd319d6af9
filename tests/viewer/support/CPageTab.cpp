// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "support/CPageTab.h"

#include <QFile>
#include <QQmlContext>

CPageTab::CPageTab(const QString &qml, const char *caption, bool setsUp)
    : INerixWelcomeTab(nullptr)
    , m_setsUp(setsUp)
{
    title = QString::fromLatin1(caption);
    QFile page(m_folder.filePath(QStringLiteral("Page.qml")));
    if (page.open(QIODevice::WriteOnly)) {
        page.write(qml.toUtf8());
    }
    qmlSource = QUrl::fromLocalFile(page.fileName());
}

CPageTab::~CPageTab() = default;

void CPageTab::rename(const QString &caption)
{
    title = caption;
    Q_EMIT titleChanged();
}

void CPageTab::setApplyNeeded(bool needed)
{
    applyIsNeeded = needed;
    Q_EMIT applyIsNeededChanged();
}

void CPageTab::loseThePage()
{
    QFile::remove(qmlSource.toLocalFile());
}

int CPageTab::setUpCount() const
{
    return m_setUpCount;
}

bool CPageTab::setupQmlContext(QQmlContext *context)
{
    ++m_setUpCount;
    context->setContextProperty(QStringLiteral("_greeting"), QStringLiteral("Hello"));
    return m_setsUp;
}
