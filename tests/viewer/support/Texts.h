// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <initializer_list>

#include <QStringList>

// A list of texts as a test writes it out.
inline QStringList texts(std::initializer_list<const char *> literals)
{
    QStringList list;
    for (const char *literal : literals) {
        list.append(QString::fromUtf8(literal));
    }
    return list;
}
