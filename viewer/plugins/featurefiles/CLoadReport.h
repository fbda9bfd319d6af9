// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QMetaType>
#include <QString>
#include <QStringList>
#include <QVector>

namespace FeatureFiles {

/// What came of loading a file of features. A value.
struct CLoadReport
{
    Q_DECLARE_TR_FUNCTIONS(FeatureFiles::CLoadReport)

public:
    /// A feature that does not have the value of the file in the end.
    struct Refused
    {
        QString name;   ///< without the tree
        QString reason; ///< one line
    };

    int set = 0;       ///< had another value, and has that of the file now
    int unchanged = 0; ///< had that value already
    int readOnly = 0;  ///< cannot be set by a user at all, so they were passed over
    QVector<Refused> refused;

    /// Belong to one camera alone, and the file is not known to be of this one: not set. Names
    /// without the tree.
    QStringList leftAlone;

    /// Belong to the connection and have another value now: not set. Names without the tree.
    QStringList ofConnection;
    bool isCancelled = false; ///< what comes after the last one that is counted was not tried

    /// One line, for example "12 set, 20 unchanged, 5 read-only, 1 not set".
    QString summary() const;

    /// One line that names what was left alone, and says why and what to do; empty for nothing.
    QString leftAloneHint() const;

    /// One line that names what was left to the connection, and says why; empty for nothing.
    QString connectionHint() const;
};

} // namespace FeatureFiles

Q_DECLARE_METATYPE(FeatureFiles::CLoadReport)
