// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CCameraPool.h"

#include "CCameraControl.h"
#include "CCameraStatus.h"
#include "CDeviceStore.h"
#include "CPoolWorker.h"

#include <utility>

#include <QEventLoop>

namespace CameraPool {

CCameraPool::CCameraPool(std::unique_ptr<ICameraSearch> search, const CPoolTiming &timing)
    : m_status(QSharedPointer<CCameraStatus>::create())
    , m_enumeration(QSharedPointer<CCameraEnumeration>::create())
    , m_control(QSharedPointer<CCameraControl>::create())
    , m_images(QSharedPointer<CImageNews>::create())
    , m_devices(QSharedPointer<CDeviceStore>::create())
    , m_worker(std::make_unique<CPoolWorker>(CPoolWorker::Outlets{m_status.get(), m_images.get(),
                                                                  m_enumeration.get(),
                                                                  m_control.get(), m_devices.get()},
                                             std::move(search), timing))
{
    m_control->setWorker(m_worker.get());
    m_thread.setObjectName(QStringLiteral("CameraPool"));
    m_worker->moveToThread(&m_thread);
    // In the pool's thread, so that the caller of `stop` has its event loop meanwhile.
    QObject::connect(&m_thread, &QThread::finished, m_worker.get(), &CPoolWorker::waitForSearch);
}

CCameraPool::~CCameraPool()
{
    stop();
    m_control->setWorker(nullptr);
}

void CCameraPool::start()
{
    m_thread.start();
}

void CCameraPool::beginSearching()
{
    QMetaObject::invokeMethod(m_worker.get(), &CPoolWorker::beginSearching, Qt::QueuedConnection);
}

void CCameraPool::stop()
{
    if (!m_thread.isRunning()) {
        return;
    }
    QEventLoop loop;
    QObject::connect(&m_thread, &QThread::finished, &loop, &QEventLoop::quit);
    QObject::connect(m_control.get(), &CCameraControl::allClosed, &m_thread, &QThread::quit);
    m_control->closeAll();
    loop.exec();
    m_thread.wait();
}

} // namespace CameraPool
