// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "policy/CUsagePolicy.h"

#include <ruiSDK.h>

namespace Policy {

CUsagePolicy::CUsagePolicy(Kind kind)
    : m_kind(kind)
{}

CUsagePolicy CUsagePolicy::read()
{
    int32_t sum = 0;
    const bool isTold = ruiGetPolicy(NERIX_ANALYTICS_PRODUCT_ID, &sum) == RUI_OK;
    return fromLibrary(isTold ? sum : RUI_POLICY_NO_STORING | RUI_POLICY_UNREADABLE);
}

CUsagePolicy CUsagePolicy::fromLibrary(int sum)
{
    if ((sum & RUI_POLICY_NO_STORING) == 0) {
        return (sum & RUI_POLICY_NO_DELIVERY) == 0 ? Kind::Allowed : Kind::OnThisComputer;
    }
    if ((sum & RUI_POLICY_UNREADABLE) != 0) {
        return Kind::OffByUnreadableFile;
    }
    return (sum & RUI_POLICY_DO_NOT_TRACK) != 0 ? Kind::OffByEnvironment : Kind::OffByAdministrator;
}

CUsagePolicy::Kind CUsagePolicy::kind() const
{
    return m_kind;
}

bool CUsagePolicy::isOff() const
{
    return m_kind != Kind::Allowed && m_kind != Kind::OnThisComputer;
}

QString CUsagePolicy::text() const
{
    switch (m_kind) {
    case Kind::Allowed:
        break;
    case Kind::OnThisComputer:
        return tr("The administrator of this computer has forbidden to send usage data: what is "
                  "recorded stays here.");
    case Kind::OffByAdministrator:
        return tr("The administrator of this computer has switched usage tracking off: nothing is "
                  "recorded or sent.");
    case Kind::OffByEnvironment:
        return tr("DO_NOT_TRACK in the environment has switched usage tracking off: nothing is "
                  "recorded or sent.");
    case Kind::OffByUnreadableFile:
        return tr("Usage tracking is switched off: the administrator's file "
                  "/etc/ruisdk/policy.json cannot be read. Nothing is recorded or sent.");
    }
    return {};
}

} // namespace Policy
