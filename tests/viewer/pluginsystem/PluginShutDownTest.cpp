// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "TestMetaData.h"
#include "TestTexts.h"

#include <FixtureControl.h>
#include <pluginsystem/CPluginManager.h>

#include <QCoreApplication>
#include <QPointer>
#include <QTest>

using namespace PluginSystem;
using Core::Plugin::IPluginInitializer;
using FixtureControl::Outcome;

/// How plug-ins are asked, told and ended.
class PluginShutDownTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void testAllAreAskedDependentsFirst();
    void testVetoNamesThePlugin();
    void testAllAreAskedAlsoAfterAVeto();
    void testNobodyIsEndedByBeingAsked();
    void testOneThatIsNotRunningIsNotAsked();
    void testShutDownOrder();
    void testServicesWorkInEveryUninitialize();
    void testServicesAreDroppedJustBeforeTheirPlugin();
    void testSecondShutDownDoesNothing();
    void testDestructorShutsDown();
    void testNothingToEndWithoutStart();
    void testWhatPluginsLeftToDeleteLaterIsDeletedBeforeThem();

private:
    void start(CPluginManager &manager);
};

namespace {

/// Leaves an object to `deleteLater` when it is ended.
class CLateDeleter : public Core::Plugin::IPlugin
{
    Q_OBJECT

public:
    ~CLateDeleter() override
    {
        FixtureControl::note(QStringLiteral("plug-in"));
    }
    bool preInitialize(const QPointer<IPluginInitializer> &) override
    {
        return true;
    }
    bool initialize() override
    {
        return true;
    }
    bool uninitialize(const QPointer<IPluginInitializer> &) override
    {
        auto *window = new QObject;
        connect(window, &QObject::destroyed,
                [] { FixtureControl::note(QStringLiteral("window")); });
        window->deleteLater();
        return true;
    }
};

} // namespace

void PluginShutDownTest::init()
{
    FixtureControl::reset();
}

void PluginShutDownTest::start(CPluginManager &manager)
{
    manager.addFolder(QStringLiteral(NERIX_FIXTURE_PLUGINS "/chain"));
    manager.start();
    QCoreApplication::processEvents();
    FixtureControl::takeCalls();
}

void PluginShutDownTest::testAllAreAskedDependentsFirst()
{
    CPluginManager manager;
    start(manager);
    QStringList vetoes{QStringLiteral("of an earlier time")};

    QVERIFY(manager.canClose(&vetoes));

    QCOMPARE(vetoes, QStringList());
    QCOMPARE(FixtureControl::takeCalls(),
             texts({"Top.checkPluginClosability", "Middle.checkPluginClosability",
                    "Base.checkPluginClosability", "Aside.checkPluginClosability"}));
}

void PluginShutDownTest::testVetoNamesThePlugin()
{
    CPluginManager manager;
    start(manager);
    FixtureControl::setOutcome(QStringLiteral("Middle.checkPluginClosability"),
                               Outcome::ReturnFalse);
    QStringList vetoes;

    QVERIFY(!manager.canClose(&vetoes));

    QCOMPARE(vetoes, texts({"Plug-in \"Middle\" does not let the viewer close: wait until it has "
                            "finished, or end what it does"}));
    QCOMPARE(manager.errors(), QStringList());
    QCOMPARE(manager.plugin(QStringLiteral("Middle"))->state(), PluginState::Running);
}

void PluginShutDownTest::testAllAreAskedAlsoAfterAVeto()
{
    CPluginManager manager;
    start(manager);
    for (const QString &name : texts({"Top", "Aside"})) {
        FixtureControl::setOutcome(name + QStringLiteral(".checkPluginClosability"),
                                   Outcome::ReturnFalse);
    }
    QStringList vetoes;

    QVERIFY(!manager.canClose(&vetoes));

    QCOMPARE(vetoes, texts({"Plug-in \"Top\" does not let the viewer close: wait until it has "
                            "finished, or end what it does",
                            "Plug-in \"Aside\" does not let the viewer close: wait until it has "
                            "finished, or end what it does"}));
    QCOMPARE(FixtureControl::takeCalls().size(), 4);
}

void PluginShutDownTest::testNobodyIsEndedByBeingAsked()
{
    CPluginManager manager;
    start(manager);
    FixtureControl::setOutcome(QStringLiteral("Top.checkPluginClosability"), Outcome::ReturnFalse);
    QVERIFY(!manager.canClose());
    FixtureControl::setOutcome(QStringLiteral("Top.checkPluginClosability"), Outcome::Succeed);
    QVERIFY(manager.canClose());

    QCOMPARE(FixtureControl::takeCalls().filter(QStringLiteral("ninitialize")), QStringList());
    QCOMPARE(manager.plugin(QStringLiteral("Top"))->state(), PluginState::Running);
}

void PluginShutDownTest::testOneThatIsNotRunningIsNotAsked()
{
    FixtureControl::setOutcome(QStringLiteral("Aside.initialize"), Outcome::ReturnFalse);
    FixtureControl::setOutcome(QStringLiteral("Aside.checkPluginClosability"),
                               Outcome::ReturnFalse);
    CPluginManager manager;
    start(manager);

    QVERIFY(manager.canClose());
    QCOMPARE(FixtureControl::takeCalls(),
             texts({"Top.checkPluginClosability", "Middle.checkPluginClosability",
                    "Base.checkPluginClosability"}));
}

void PluginShutDownTest::testShutDownOrder()
{
    CPluginManager manager;
    start(manager);

    manager.shutDown();

    QCOMPARE(
        FixtureControl::takeCalls(),
        texts({"Top.aboutToUninitialize", "Middle.aboutToUninitialize", "Base.aboutToUninitialize",
               "Aside.aboutToUninitialize", "Top.uninitialize", "Middle.uninitialize",
               "Base.uninitialize", "Aside.uninitialize", "Top.destroy", "Top.service is destroyed",
               "Middle.destroy", "Middle.service is destroyed", "Base.destroy",
               "Base.service is destroyed", "Aside.destroy", "Aside.service is destroyed"}));
}

void PluginShutDownTest::testServicesWorkInEveryUninitialize()
{
    CPluginManager manager;
    start(manager);
    QStringList seen;
    FixtureControl::setHook([&](const QString &call) {
        if (call.endsWith(QStringLiteral(".uninitialize"))) {
            for (const auto &service : manager.registry().services()) {
                seen += call.section(QLatin1Char('.'), 0, 0) + QStringLiteral(" sees ")
                        + service->objectName();
            }
        }
    });

    manager.shutDown();

    // Each takes its own service away when it is done.
    QCOMPARE(seen,
             texts({"Top sees Aside.service", "Top sees Base.service", "Top sees Middle.service",
                    "Top sees Top.service", "Middle sees Aside.service", "Middle sees Base.service",
                    "Middle sees Middle.service", "Base sees Aside.service",
                    "Base sees Base.service", "Aside sees Aside.service"}));
    QVERIFY(manager.registry().services().isEmpty());
}

void PluginShutDownTest::testServicesAreDroppedJustBeforeTheirPlugin()
{
    FixtureControl::setOutcome(QStringLiteral("Base.uninitialize"), Outcome::Throw);
    CPluginManager manager;
    start(manager);
    const QWeakPointer<QObject> service = manager.registry().services().at(1);
    QCOMPARE(service.toStrongRef()->objectName(), QStringLiteral("Base.service"));
    QStringList seen;
    FixtureControl::setHook([&](const QString &call) {
        if (call.endsWith(QStringLiteral(".destroy"))) {
            seen += call + QStringLiteral(" with ")
                    + QString::number(manager.registry().services().size());
        }
    });

    manager.shutDown();

    QCOMPARE(seen, texts({"Top.destroy with 1", "Middle.destroy with 1", "Base.destroy with 0",
                          "Aside.destroy with 0"}));
    QVERIFY(!service.toStrongRef());
}

void PluginShutDownTest::testSecondShutDownDoesNothing()
{
    CPluginManager manager;
    start(manager);
    manager.shutDown();
    FixtureControl::takeCalls();

    manager.shutDown();

    QCOMPARE(FixtureControl::takeCalls(), QStringList());
}

void PluginShutDownTest::testDestructorShutsDown()
{
    {
        CPluginManager manager;
        start(manager);
    }
    const QStringList calls = FixtureControl::takeCalls();
    QVERIFY(calls.contains(QStringLiteral("Base.uninitialize")));
    QVERIFY(calls.contains(QStringLiteral("Base.destroy")));
}

void PluginShutDownTest::testNothingToEndWithoutStart()
{
    CPluginManager manager;
    manager.addFolder(QStringLiteral(NERIX_FIXTURE_PLUGINS "/chain"));
    QVERIFY(manager.canClose());
    manager.shutDown();

    QCOMPARE(FixtureControl::takeCalls(), QStringList());
    QCOMPARE(manager.plugin(QStringLiteral("Base"))->state(), PluginState::Read);
}

void PluginShutDownTest::testWhatPluginsLeftToDeleteLaterIsDeletedBeforeThem()
{
    CPluginManager manager;
    manager.addBuiltIn(testMetaData(QStringLiteral("Alpha"), QStringLiteral("1.0")),
                       [] { return std::make_unique<CLateDeleter>(); });
    manager.start();
    QCoreApplication::processEvents();

    manager.shutDown();

    QCOMPARE(FixtureControl::takeCalls(), texts({"window", "plug-in"}));
}

QTEST_GUILESS_MAIN(PluginShutDownTest)
#include "PluginShutDownTest.moc"
