// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include <Core/CId.h>

#include <QHash>

namespace Core {

CId::CId(const QString &text)
    : m_text(text)
{}

CId::CId(const char *text)
    : m_text(QString::fromUtf8(text))
{}

bool CId::isValid() const
{
    return !m_text.isEmpty();
}

const QString &CId::toString() const
{
    return m_text;
}

bool operator==(const CId &left, const CId &right)
{
    return left.toString() == right.toString();
}

bool operator!=(const CId &left, const CId &right)
{
    return !(left == right);
}

bool operator<(const CId &left, const CId &right)
{
    return left.toString() < right.toString();
}

uint qHash(const CId &id, uint seed)
{
    return ::qHash(id.toString(), seed);
}

} // namespace Core
