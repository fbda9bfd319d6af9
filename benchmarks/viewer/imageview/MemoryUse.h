// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QVector>

// The memory of this process that is resident now, in MiB.
double residentMemory();

// How fast the values rise, each one second after the one before: the slope of the straight line
// that fits them best, by the minute. 0 for less than two.
double risePerMinute(const QVector<double> &values);
