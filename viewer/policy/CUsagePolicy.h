// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QString>

namespace Policy {

/// What the administrator of this computer, and the environment, allow of usage tracking. Where it
/// is switched off the user is not asked for a consent that could not count. A value; GUI thread.
class CUsagePolicy
{
    Q_DECLARE_TR_FUNCTIONS(Policy::CUsagePolicy)

public:
    enum class Kind {
        Allowed,
        OnThisComputer,      ///< events are recorded, and never sent
        OffByAdministrator,  ///< nothing is recorded
        OffByEnvironment,    ///< likewise: DO_NOT_TRACK is set
        OffByUnreadableFile, ///< likewise: the administrator's file makes no sense
    };

    CUsagePolicy(Kind kind = Kind::Allowed);

    /// Asks the analytics library. No answer counts as switched off.
    static CUsagePolicy read();

    /// The sum of `ruiPolicy` values, as the library tells it.
    static CUsagePolicy fromLibrary(int sum);

    Kind kind() const;

    /// Nothing is recorded, whatever the user would answer.
    bool isOff() const;

    /// Says it to the user; empty when everything is allowed. Translated.
    QString text() const;

private:
    Kind m_kind;
};

} // namespace Policy
