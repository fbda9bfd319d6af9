// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "application/CGuardedApplication.h"

#include <stdexcept>

#include <QSemaphore>
#include <QTest>
#include <QThread>

// A receiver that throws in its slots.
class CThrower : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void throwStandard()
    {
        throw std::runtime_error("no device");
    }
    void throwOther()
    {
        throw 7;
    }
};

class GuardedApplicationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testExceptionOfAQueuedSlotIsLogged();
    void testExceptionOfAnUnknownTypeIsLogged();
    void testThreadGoesOnAfterAnException();
    void testBlockedEmitterIsReleasedByAnException();
};

namespace {

void expect(const char *what)
{
    const QString line = QStringLiteral("an exception left a slot of CThrower (%1); the viewer "
                                        "goes on, further ones like it are not told")
                             .arg(QString::fromUtf8(what));
    QTest::ignoreMessage(QtWarningMsg, qPrintable(line));
}

// An object in a thread of its own, until the end of the scope.
class CInThread
{
public:
    explicit CInThread(QObject &object)
    {
        object.moveToThread(&m_thread);
        m_thread.start();
    }

    ~CInThread()
    {
        m_thread.quit();
        m_thread.wait();
    }

    Q_DISABLE_COPY_MOVE(CInThread)

private:
    QThread m_thread;
};

} // namespace

// The log is the application's, so each test throws what no other one does, or expects no line.
void GuardedApplicationTest::testExceptionOfAQueuedSlotIsLogged()
{
    CThrower thrower;
    expect("no device");
    QMetaObject::invokeMethod(&thrower, &CThrower::throwStandard, Qt::QueuedConnection);
    QCoreApplication::processEvents();
}

void GuardedApplicationTest::testExceptionOfAnUnknownTypeIsLogged()
{
    CThrower thrower;
    expect("of an unknown type");
    QMetaObject::invokeMethod(&thrower, &CThrower::throwOther, Qt::QueuedConnection);
    QCoreApplication::processEvents();
}

void GuardedApplicationTest::testThreadGoesOnAfterAnException()
{
    CThrower thrower;
    QSemaphore semaphore;
    const CInThread thread(thrower);
    QMetaObject::invokeMethod(&thrower, &CThrower::throwStandard, Qt::QueuedConnection);
    QMetaObject::invokeMethod(
        &thrower, [&semaphore] { semaphore.release(); }, Qt::QueuedConnection);
    semaphore.acquire();
}

void GuardedApplicationTest::testBlockedEmitterIsReleasedByAnException()
{
    CThrower thrower;
    const CInThread thread(thrower);
    QVERIFY(QMetaObject::invokeMethod(&thrower, &CThrower::throwStandard,
                                      Qt::BlockingQueuedConnection));
}

int main(int argc, char **argv)
{
    qRegisterMetaType<QSemaphore *>("QSemaphore*");
    Application::CGuardedApplication application(argc, argv);
    GuardedApplicationTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "GuardedApplicationTest.moc"
