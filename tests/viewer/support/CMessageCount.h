// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

// Counts log messages instead of printing them, until the end of its scope. One at a time.
class CMessageCount
{
public:
    CMessageCount();
    ~CMessageCount();

    Q_DISABLE_COPY_MOVE(CMessageCount)

    int count() const;

private:
    QtMessageHandler m_former;
};
