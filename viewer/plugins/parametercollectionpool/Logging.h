// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QLoggingCategory>

namespace ParameterCollectionPool {

Q_DECLARE_LOGGING_CATEGORY(lcParameterCollectionPool)

} // namespace ParameterCollectionPool
