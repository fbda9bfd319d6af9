// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// The meta-objects of the plug-in's classes: what others connect and bind to by name and index.

#include "TestMain.h"
#include "UsageTrackingPluginProbe.h"

#include <QMetaMethod>
#include <QMetaProperty>

Q_DECLARE_METATYPE(const QMetaObject *)

using namespace Plugin::UsageTracking;
using namespace Plugin::UsageTracking::Internal;

namespace {

QString describe(const QMetaMethod &method)
{
    static const QMap<QMetaMethod::MethodType, QString> types{
        {QMetaMethod::Signal, QStringLiteral("signal")},
        {QMetaMethod::Slot, QStringLiteral("slot")},
        {QMetaMethod::Method, QStringLiteral("method")},
        {QMetaMethod::Constructor, QStringLiteral("constructor")},
    };
    static const QStringList accesses{QStringLiteral("private"), QStringLiteral("protected"),
                                      QStringLiteral("public")};
    QStringList arguments;
    const QList<QByteArray> names = method.parameterNames();
    const QList<QByteArray> argumentTypes = method.parameterTypes();
    for (int i = 0; i < names.size(); ++i) {
        arguments.append(QString::fromLatin1(argumentTypes[i] + ' ' + names[i]));
    }
    return QStringLiteral("%1 %2 %3 %4(%5)")
        .arg(accesses.at(method.access()), types.value(method.methodType()),
             QString::fromLatin1(method.typeName()), QString::fromLatin1(method.name()),
             arguments.join(QStringLiteral(", ")));
}

QStringList methodsOf(const QMetaObject &meta)
{
    QStringList methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        methods.append(describe(meta.method(i)));
    }
    return methods;
}

QStringList classChain(const QMetaObject *meta)
{
    QStringList names;
    for (; meta; meta = meta->superClass()) {
        names.append(QString::fromLatin1(meta->className()));
    }
    return names;
}

} // namespace

class MetaObjectTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void methods_data()
    {
        QTest::addColumn<const QMetaObject *>("meta");
        QTest::addColumn<QStringList>("methods");

        QTest::newRow("plug-in") << &CUsageTrackingPlugin::staticMetaObject
                                 << QStringList{
                                        "private slot void onInitializationDone()",
                                        "private slot void onDataPrivacyApplyClicked()",
                                        "private slot void onShowDataPrivacyTriggered()",
                                    };
        QTest::newRow("provider")
            << &CUsageTrackingProvider::staticMetaObject
            << QStringList{
                   "public slot void startTracking()",
                   "public slot void stopTracking()",
                   "public slot void stopTrackingAndOptOut()",
                   "protected slot void onParameterSelectionChanged("
                   "QSharedPointer<ParameterCollection::IParameter> ptrParameter)",
                   "protected slot void onEnumerationChanged()",
                   "protected slot void onDeviceSelectionChanged("
                   "Core::CameraPoolComponents::DeviceBaseInfoPtr ptrDeviceInfo)",
                   "protected slot void onCameraConnected(DeviceBaseInfoPtr ptrDeviceInfo)",
                   "protected slot void onCameraDisconnected(DeviceBaseInfoPtr ptrDeviceInfo)",
                   "protected slot void onDeviceOpened(DeviceBaseInfoPtr ptrDeviceInfo)",
                   "protected slot void onDeviceClosing(DeviceBaseInfoPtr ptrDeviceInfo)",
                   "protected slot void onCameraGrabStarted("
                   "Core::CameraPoolComponents::DeviceBaseInfoPtr ptrDeviceInfo)",
                   "protected slot void onCameraGrabStopped(DeviceBaseInfoPtr ptrDeviceInfo)",
                   "protected slot void onCameraImageGrabFailed("
                   "Core::CameraPoolComponents::CameraInfoPtr ptrCameraInfo, "
                   "Nerix::CGrabResultPtr grabResult)",
                   "protected slot void onCameraStatisticUpdated(CameraInfoPtr cameraInfo, "
                   "int imagesGrabbedCount, int imagesFailedCount, double fps, uint64_t bps)",
               };
        QTest::newRow("parameter observer")
            << &CParameterChangedHandler::staticMetaObject
            << QStringList{"public slot void onParameterValueAboutToBeSet(QString newValue)"};
        QTest::newRow("tab") << &CDataPrivacyTab::staticMetaObject
                             << QStringList{"public slot void onDataPrivacyOptInSelectedChanged()"};
        QTest::newRow("controller") << &CDataPrivacyTabController::staticMetaObject
                                    << QStringList{
                                           "public signal void dataPrivacyOptInSelectedChanged()",
                                           "public signal void dataPrivacyOptInEnabledChanged()",
                                           "public signal void dataPrivacyApplyEnabledChanged()",
                                           "public signal void dataPrivacyApplyClicked()",
                                           "public slot void onDataPrivacyApplyClicked()",
                                           "public slot void onDataPrivacyLinkClicked(QString url)",
                                       };
    }

    void methods()
    {
        QFETCH(const QMetaObject *, meta);
        QTEST(methodsOf(*meta), "methods");
    }

    void classChains_data()
    {
        QTest::addColumn<const QMetaObject *>("meta");
        QTest::addColumn<QStringList>("chain");
        QTest::newRow("plug-in") << &CUsageTrackingPlugin::staticMetaObject
                                 << QStringList{"Plugin::UsageTracking::CUsageTrackingPlugin",
                                                "Core::Plugin::ALocalizedPlugin",
                                                "Core::Plugin::IPlugin", "QObject"};
        QTest::newRow("provider") << &CUsageTrackingProvider::staticMetaObject
                                  << QStringList{
                                         "Plugin::UsageTracking::Internal::CUsageTrackingProvider",
                                         "QObject"};
        QTest::newRow("parameter observer in the global namespace")
            << &CParameterChangedHandler::staticMetaObject
            << QStringList{"CParameterChangedHandler", "QObject"};
        QTest::newRow("tab") << &CDataPrivacyTab::staticMetaObject
                             << QStringList{"Plugin::UsageTracking::Internal::CDataPrivacyTab",
                                            "Plugin::NerixWelcome::INerixWelcomeTab", "QObject"};
        QTest::newRow("controller")
            << &CDataPrivacyTabController::staticMetaObject
            << QStringList{"Plugin::UsageTracking::Internal::CDataPrivacyTabController", "QObject"};
    }

    void classChains()
    {
        QFETCH(const QMetaObject *, meta);
        QTEST(classChain(meta), "chain");
    }

    void controllerProperties_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("writable");
        QTest::addColumn<QString>("notify");
        QTest::newRow("0") << 0 << "dataPrivacyOptInSelected" << true
                           << "dataPrivacyOptInSelectedChanged()";
        QTest::newRow("1") << 1 << "dataPrivacyOptInEnabled" << true
                           << "dataPrivacyOptInEnabledChanged()";
        QTest::newRow("2") << 2 << "dataPrivacyApplyEnabled" << false
                           << "dataPrivacyApplyEnabledChanged()";
    }

    void controllerProperties()
    {
        QFETCH(int, index);
        const QMetaObject &meta = CDataPrivacyTabController::staticMetaObject;
        QCOMPARE(meta.propertyCount() - meta.propertyOffset(), 3);
        const QMetaProperty property = meta.property(meta.propertyOffset() + index);
        QTEST(QString::fromLatin1(property.name()), "name");
        QCOMPARE(QString::fromLatin1(property.typeName()), QStringLiteral("bool"));
        QTEST(property.isWritable(), "writable");
        QTEST(QString::fromLatin1(property.notifySignal().methodSignature()), "notify");
        QVERIFY(property.isReadable() && property.isDesignable() && property.isScriptable()
                && property.isStored());
        QVERIFY(!property.isConstant() && !property.isFinal() && !property.isResettable());
    }

    void noOtherClassHasPropertiesOfItsOwn()
    {
        for (const QMetaObject *meta :
             {&CUsageTrackingPlugin::staticMetaObject, &CUsageTrackingProvider::staticMetaObject,
              &CDataPrivacyTab::staticMetaObject, &CParameterChangedHandler::staticMetaObject}) {
            QCOMPARE(meta->propertyCount() - meta->propertyOffset(), 0);
        }
    }
};

NERIX_TEST_MAIN(MetaObjectTest)
#include "MetaObjectTest.moc"
