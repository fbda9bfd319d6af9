// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include <Core/AppCoreComponents/CContext.h>

namespace Core {
namespace AppCoreComponents {

CContext::CContext(const CId &id)
{
    add(id);
}

void CContext::add(const CId &id)
{
    if (id.isValid() && !m_ids.contains(id)) {
        m_ids.append(id);
    }
}

bool CContext::contains(const CId &id) const
{
    return m_ids.contains(id);
}

const QList<CId> &CContext::ids() const
{
    return m_ids;
}

} // namespace AppCoreComponents
} // namespace Core
