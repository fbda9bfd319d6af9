// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "support/CMessageCount.h"

#include <atomic>

namespace {

std::atomic<int> messageCount{0};

void countMessage(QtMsgType, const QMessageLogContext &, const QString &)
{
    ++messageCount;
}

} // namespace

CMessageCount::CMessageCount()
    : m_former(qInstallMessageHandler(countMessage))
{
    messageCount = 0;
}

CMessageCount::~CMessageCount()
{
    qInstallMessageHandler(m_former);
}

int CMessageCount::count() const
{
    return messageCount;
}
