// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <NerixCoreExport.h>

#include <string>

namespace GenICam {

/// A text at the boundary of a camera SDK: bytes, UTF-8, ended by a zero. A null text is not the
/// same as an empty one. A value type.
class NERIXCORE_EXPORT gcstring
{
public:
    /// A null text.
    gcstring() = default;

    /// A copy of \a text; null gives a null text. Implicit as in every implementation of the type.
    gcstring(const char *text); // NOLINT(google-explicit-constructor)

    /// Null for a null text, else valid until the object changes.
    const char *c_str() const;

private:
    std::string m_text;
    bool m_isNull = true;
};

} // namespace GenICam
