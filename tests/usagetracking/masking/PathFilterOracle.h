// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QRegExp>
#include <QString>

/// What the path filter must agree with: the same masking by Qt's regular expression engine, whose
/// time grows with the square of the length.
class PathFilterOracle
{
public:
    QString maskPaths(const QString &text) const
    {
        return QString(text).replace(m_path, QStringLiteral("***"));
    }

private:
    const QRegExp m_path{QStringLiteral(R"(((file|smb|[\w]|[\\\/])([^\w][\:\\\/])?)+)"
                                        R"(([^\:\\\/]*[\\\/])*([^\\\/]+[\\\/]?)$)"),
                         Qt::CaseSensitive, QRegExp::RegExp};
};
