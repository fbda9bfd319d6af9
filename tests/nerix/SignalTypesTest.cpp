// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include <CameraPool/ICameraEnumerationService.h>
#include <CameraPool/ICameraStatusService.h>
#include <CameraSelector/IDeviceSelectorService.h>
#include <Core/Plugin/ALocalizedPlugin.h>
#include <FeatureTree/IFeatureTreeStatusService.h>
#include <ParameterCollection/IParameter.h>
#include <ParameterCollectionPool/IParameterService.h>
#include <Plugin/AppCore/IMenuService.h>
#include <Plugin/NerixWelcome/INerixWelcomeService.h>
#include <Plugin/NerixWelcome/INerixWelcomeTab.h>

#include <QMetaMethod>
#include <QTest>

Q_DECLARE_METATYPE(const QMetaObject *)

/// The signals of every interface, as a plug-in that was built against them finds them, and their
/// arguments. Nothing in this program registers a type: the library must have done it.
class SignalTypesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testSignals_data();
    void testSignals();
    void testArgumentsAreRegistered_data();
    void testArgumentsAreRegistered();
    void testOtherNamesOfTheTypes_data();
    void testOtherNamesOfTheTypes();
};

namespace {

template <class Interface>
void addRow(const QStringList &signatures)
{
    const QMetaObject *metaObject = &Interface::staticMetaObject;
    QTest::newRow(metaObject->className()) << metaObject << signatures;
}

QVector<QMetaMethod> ownSignals(const QMetaObject &metaObject)
{
    QVector<QMetaMethod> methods;
    for (int index = metaObject.methodOffset(); index < metaObject.methodCount(); ++index) {
        if (metaObject.method(index).methodType() == QMetaMethod::Signal) {
            methods += metaObject.method(index);
        }
    }
    return methods;
}

} // namespace

void SignalTypesTest::testSignals_data()
{
    QTest::addColumn<const QMetaObject *>("metaObject");
    QTest::addColumn<QStringList>("signatures");

    const QString device =
        QStringLiteral("(QSharedPointer<Core::CameraPoolComponents::IDeviceBaseInfo>)");
    const QString camera =
        QStringLiteral("(QSharedPointer<Core::CameraPoolComponents::ICameraInfo>)");
    addRow<Core::Plugin::IPluginInitializer>({"initializationDone()"});
    addRow<Core::Plugin::IPlugin>({});
    addRow<Core::Plugin::ALocalizedPlugin>({});
    addRow<CameraPool::ICameraEnumerationService>({"enumerationChanged()"});
    addRow<CameraPool::IDeviceStatusService>({"deviceOpened" + device, "deviceClosing" + device});
    addRow<CameraPool::ICameraStatusService>(
        {"deviceConnected" + device, "deviceDisconnected" + device, "cameraGrabStarted" + camera,
         "cameraGrabStopped" + camera,
         "cameraImageGrabbed(QSharedPointer<Core::CameraPoolComponents::ICameraInfo>,"
         "Nerix::CGrabResultPtr)",
         "cameraStatisticUpdated(QSharedPointer<Core::CameraPoolComponents::ICameraInfo>,int,int,"
         "double,qulonglong,CCompressionStatistic)"});
    addRow<CameraSelector::IDeviceSelectorService>({"selectionChanged" + device});
    addRow<FeatureTree::IFeatureTreeStatusService>(
        {"currentChanged(QSharedPointer<ParameterCollection::IParameter>)"});
    addRow<ParameterCollection::IParameter>({"parameterValueAboutToBeSet(QString)"});
    addRow<ParameterCollectionPool::IParameterService>({});
    addRow<Plugin::AppCore::IMenuService>({});
    addRow<Plugin::NerixWelcome::INerixWelcomeService>({});
    addRow<Plugin::NerixWelcome::INerixWelcomeTab>({"applyIsNeededChanged()", "titleChanged()"});
}

void SignalTypesTest::testSignals()
{
    QFETCH(const QMetaObject *, metaObject);

    QStringList found;
    for (const QMetaMethod &method : ownSignals(*metaObject)) {
        found += QString::fromLatin1(method.methodSignature());
    }
    QTEST(found, "signatures");
}

void SignalTypesTest::testArgumentsAreRegistered_data()
{
    testSignals_data();
}

void SignalTypesTest::testArgumentsAreRegistered()
{
    QFETCH(const QMetaObject *, metaObject);

    for (const QMetaMethod &method : ownSignals(*metaObject)) {
        // By name, as a connection by name does; QMetaMethod itself would register them now.
        for (const QByteArray &name : method.parameterTypes()) {
            QVERIFY2(QMetaType::type(name) != QMetaType::UnknownType, name.constData());
        }
    }
}

void SignalTypesTest::testOtherNamesOfTheTypes_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("other");

    const QByteArray device("QSharedPointer<Core::CameraPoolComponents::IDeviceBaseInfo>");
    const QByteArray camera("QSharedPointer<Core::CameraPoolComponents::ICameraInfo>");
    QTest::newRow("a device, by its short name") << QByteArray("DeviceBaseInfoPtr") << device;
    QTest::newRow("a device, by its full name")
        << QByteArray("Core::CameraPoolComponents::DeviceBaseInfoPtr") << device;
    QTest::newRow("a camera, by its short name") << QByteArray("CameraInfoPtr") << camera;
    QTest::newRow("a camera, by its full name")
        << QByteArray("Core::CameraPoolComponents::CameraInfoPtr") << camera;
    QTest::newRow("a whole number of 64 bits") << QByteArray("uint64_t") << QByteArray("quint64");
}

void SignalTypesTest::testOtherNamesOfTheTypes()
{
    QFETCH(QByteArray, name);
    QFETCH(QByteArray, other);

    QVERIFY(QMetaType::type(name) != QMetaType::UnknownType);
    QCOMPARE(QMetaType::sizeOf(QMetaType::type(name)), QMetaType::sizeOf(QMetaType::type(other)));
}

QTEST_GUILESS_MAIN(SignalTypesTest)
#include "SignalTypesTest.moc"
