// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

/// Exports a class or a function from the shared library NerixCore.
#ifdef NERIXCORE_BUILD
#define NERIXCORE_EXPORT Q_DECL_EXPORT
#else
#define NERIXCORE_EXPORT Q_DECL_IMPORT
#endif
