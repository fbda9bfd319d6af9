// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "windows/CWorkThread.h"

#include <utility>

namespace Windows {

CWorkThread::CWorkThread(const QString &name)
    : m_context(new QObject)
{
    m_thread.setObjectName(name);
    m_context->moveToThread(&m_thread);
    QObject::connect(&m_thread, &QThread::finished, m_context, &QObject::deleteLater);
    m_thread.start();
}

CWorkThread::~CWorkThread()
{
    m_thread.quit();
    m_thread.wait();
}

void CWorkThread::post(std::function<void()> work)
{
    QMetaObject::invokeMethod(m_context, std::move(work), Qt::QueuedConnection);
}

} // namespace Windows
