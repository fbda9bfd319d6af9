// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "CAttackRig.h"
#include "HostileDescription.h"
#include "plugins/camerapool/CDeviceStore.h"
#include "plugins/parametercollectionpool/CParameterService.h"

#include <ParameterCollection/IParameterCollection.h>

#include <QTest>

// A camera that says of its registers what cannot be.
class RegisterAttackTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testLengthOfGigabytesFailsAlone_data();
    void testLengthOfGigabytesFailsAlone();
};

namespace {

QByteArray descriptionWith(const char *kind, const char *length)
{
    const QByteArray feature =
        QByteArray("<@ Name=\"Huge\"><Address>0xb100</Address><Length>#</Length>"
                   "<AccessMode>RW</AccessMode><pPort>Device</pPort></@>")
            .replace('@', kind)
            .replace('#', length);
    return HostileDescription::text()
        .replace("<pFeature>Height</pFeature>",
                 "<pFeature>Height</pFeature><pFeature>Huge</pFeature>")
        .replace("<Port Name", feature + "<Port Name");
}

} // namespace

void RegisterAttackTest::testLengthOfGigabytesFailsAlone_data()
{
    QTest::addColumn<QByteArray>("kind");
    QTest::addColumn<QByteArray>("length");
    for (const char *kind : {"Register", "StringReg"}) {
        for (const char *length : {"1048577", "2147483647", "2147483648", "68719476736"}) {
            QTest::newRow(QByteArray(kind) + " of " + length)
                << QByteArray(kind) << QByteArray(length);
        }
    }
}

void RegisterAttackTest::testLengthOfGigabytesFailsAlone()
{
    QFETCH(QByteArray, kind);
    QFETCH(QByteArray, length);
    CHostileCamera::Identity identity;
    identity.description = descriptionWith(kind, length);
    CAttackRig rig(identity);
    QVERIFY(rig.open());
    ParameterCollectionPool::CParameterService service(rig.pool().pool().devices());
    const auto parameters = service.parameterCollection(rig.info());
    QVERIFY(parameters);
    QString problem;
    try {
        parameters->parameter("@CameraDevice/Huge")->valueText();
    } catch (const std::exception &exception) {
        problem = exception.what();
    }
    QCOMPARE(problem, "@CameraDevice/Huge: the camera says that it has " + length
                          + " bytes, and at most 1048576 are read: use a program of the camera's "
                            "maker for it");
    const QString stream = parameters->featureStream("@CameraDevice");
    QVERIFY2(stream.contains("\nWidth\t64\n"), qPrintable(stream));
    QVERIFY2(stream.startsWith("# nerix feature stream 1: ")
                 && stream.contains(", 1 not readable\n"),
             qPrintable(stream));
}

QTEST_GUILESS_MAIN(RegisterAttackTest)

#include "RegisterAttackTest.moc"
