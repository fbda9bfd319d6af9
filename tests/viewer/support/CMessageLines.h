// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

// Keeps log messages instead of printing them, until the end of its scope. One at a time.
class CMessageLines
{
public:
    CMessageLines();
    ~CMessageLines();

    Q_DISABLE_COPY_MOVE(CMessageLines)

    QStringList lines() const;

private:
    QtMessageHandler m_former;
};
