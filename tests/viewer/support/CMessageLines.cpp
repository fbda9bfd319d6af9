// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "support/CMessageLines.h"

#include <QMutex>

namespace {

QMutex mutex;
QStringList kept;

void keepMessage(QtMsgType, const QMessageLogContext &, const QString &text)
{
    const QMutexLocker lock(&mutex);
    kept.append(text);
}

} // namespace

CMessageLines::CMessageLines()
    : m_former(qInstallMessageHandler(keepMessage))
{
    const QMutexLocker lock(&mutex);
    kept.clear();
}

CMessageLines::~CMessageLines()
{
    qInstallMessageHandler(m_former);
}

QStringList CMessageLines::lines() const
{
    const QMutexLocker lock(&mutex);
    return kept;
}
