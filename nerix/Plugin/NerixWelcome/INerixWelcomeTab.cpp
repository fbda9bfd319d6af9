// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include <Plugin/NerixWelcome/INerixWelcomeTab.h>

namespace Plugin {
namespace NerixWelcome {

INerixWelcomeTab::INerixWelcomeTab(QObject *parent)
    : QObject(parent)
{}

INerixWelcomeTab::~INerixWelcomeTab() = default;

const Core::CId &INerixWelcomeTab::tabId() const
{
    return m_id;
}

const QString &INerixWelcomeTab::tabTitle() const
{
    return title;
}

const QUrl &INerixWelcomeTab::tabQmlSource() const
{
    return qmlSource;
}

bool INerixWelcomeTab::isApplyNeeded() const
{
    return applyIsNeeded;
}

void INerixWelcomeTab::setId(const Core::CId &id)
{
    m_id = id;
}

} // namespace NerixWelcome
} // namespace Plugin
