// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "Logging.h"

namespace ParameterCollectionPool {

Q_LOGGING_CATEGORY(lcParameterCollectionPool, "nerix.parametercollectionpool", QtWarningMsg)

} // namespace ParameterCollectionPool
