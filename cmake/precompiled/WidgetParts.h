// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// The same for parts with a user interface.
#pragma once

#include "Parts.h"

#include <QAction>
#include <QGuiApplication>
#include <QWidget>
