// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>

// What a camera whose images are 64 x 100 pixels of 8 bits may send instead of them.
struct StreamCase
{
    const char *name;
    QList<QByteArray> packets; // in the order in which they are sent
};

QList<StreamCase> streamCases();
