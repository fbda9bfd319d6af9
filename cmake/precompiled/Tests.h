// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// What nearly every test includes; see NerixPrecompiled.cmake. Not <QTest>, whose contents depend
// on the libraries of the test.
#pragma once

#include "Parts.h"

#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest/qtestcase.h>
#include <QtTest/qtestdata.h>
