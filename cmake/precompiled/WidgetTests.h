// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// The same for tests of what has a user interface: their <QTest> has widgets and a network.
#pragma once

#include "Tests.h"
#include "WidgetParts.h"

#include <QApplication>
#include <QTest>
