// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "scripting/CScriptObject.h"

#include <QString>

namespace Scripting {

/// `help`: documents and web addresses that were shown. GUI thread.
class CScriptHelp : public CScriptObject
{
    Q_OBJECT

public:
    using CScriptObject::CScriptObject;

    /// The path of the document, or the web address, that was shown last; empty before the first.
    Q_INVOKABLE QString lastShown();
};

} // namespace Scripting
