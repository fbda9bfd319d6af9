// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "Address.h"
#include "CAddressHold.h"
#include "CCamera.h"
#include "CDescriptionFile.h"
#include "Description.h"

#include <fcntl.h>
#include <sched.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <memory>
#include <stdexcept>

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Simulator;

namespace {

// Another program. Once told to, it waits for the address, takes it, opens the pipe and keeps the
// address until its end.
class CRival
{
public:
    explicit CRival(QByteArray pipe)
    {
        int start[2] = {-1, -1};
        if (::pipe(start) != 0) {
            qFatal("no pipe");
        }
        m_process = fork();
        if (m_process == 0) {
            close(start[1]); // so that the end of the test is the end of the pipe, too
            char byte = 0;
            if (read(start[0], &byte, 1) == 1) {
                takeAddressThenOpen(pipe);
            }
            _exit(0);
        }
        close(start[0]);
        m_start = start[1];
    }

    ~CRival()
    {
        close(m_start);
        kill(m_process, SIGKILL);
        waitpid(m_process, nullptr, 0);
    }

    CRival(const CRival &) = delete;
    CRival &operator=(const CRival &) = delete;

    bool start()
    {
        return write(m_start, "", 1) == 1;
    }

private:
    static void takeAddressThenOpen(const QByteArray &pipe)
    {
        std::unique_ptr<CAddressHold> taken;
        while (!taken) {
            try {
                taken = std::make_unique<CAddressHold>("127.0.0.1");
            } catch (const std::runtime_error &) {
                sched_yield();
            }
        }
        close(open(pipe.constData(), O_WRONLY));
        pause();
    }

    pid_t m_process = -1;
    int m_start = -1;
};

} // namespace

// The camera as an object, where its program could not be brought into the situation.
class CameraTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testOwnsItsAddressWhetherPluggedInOrNot();
    void testPluggingInOrOutTwiceChangesNothing();
    void testAddressTakenWhilePluggingInIsRefused();

private:
    const CIdentity m_identity{"Ostrand", "XQZ-2000", "A-7", ""};
};

void CameraTest::testOwnsItsAddressWhetherPluggedInOrNot()
{
    const CDescriptionFile file(description(baseFeatureCount()));
    {
        CCamera camera("127.0.0.1", m_identity, file.path());
        QVERIFY(ownsControlPort("127.0.0.1"));
        camera.plugIn();
        QVERIFY(ownsControlPort("127.0.0.1"));
        camera.unplug();
        QVERIFY(ownsControlPort("127.0.0.1"));
    }
    QVERIFY(!ownsControlPort("127.0.0.1"));
}

void CameraTest::testPluggingInOrOutTwiceChangesNothing()
{
    const CDescriptionFile file(description(baseFeatureCount()));
    CCamera camera("127.0.0.1", m_identity, file.path());
    QVERIFY(!camera.isPluggedIn());
    camera.unplug();
    QVERIFY(!camera.isPluggedIn());
    camera.plugIn();
    camera.plugIn();
    QVERIFY(camera.isPluggedIn());
}

void CameraTest::testAddressTakenWhilePluggingInIsRefused()
{
    // The camera lets go of its address, then reads its description: from a pipe, at which it waits
    // until somebody else has the address.
    const QTemporaryDir folder;
    const QByteArray pipe = QFile::encodeName(folder.filePath(QStringLiteral("description")));
    QCOMPARE(mkfifo(pipe.constData(), S_IRUSR | S_IWUSR), 0);
    CRival rival(pipe);
    CCamera camera("127.0.0.1", m_identity, pipe.toStdString());
    QVERIFY(rival.start());
    QByteArray refusal;
    try {
        camera.plugIn();
    } catch (const std::runtime_error &error) {
        refusal = error.what();
    }
    QVERIFY(!camera.isPluggedIn());
    QVERIFY_EXCEPTION_THROWN(camera.plugIn(), std::runtime_error);
    QCOMPARE(refusal, QByteArray("address 127.0.0.1 was taken by another program just now: end that"
                                 " one or try again"));
}

QTEST_GUILESS_MAIN(CameraTest)

#include "CameraTest.moc"
