// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <initializer_list>

#include <QString>
#include <QStringList>

/// A list of literals, for tables.
inline QStringList texts(std::initializer_list<const char *> literals)
{
    QStringList list;
    for (const char *literal : literals) {
        list += QString::fromUtf8(literal);
    }
    return list;
}
