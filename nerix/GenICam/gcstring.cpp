// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include <GenICam/gcstring.h>

namespace GenICam {

gcstring::gcstring(const char *text)
    : m_text(text ? text : "")
    , m_isNull(text == nullptr)
{}

const char *gcstring::c_str() const
{
    return m_isNull ? nullptr : m_text.c_str();
}

} // namespace GenICam
