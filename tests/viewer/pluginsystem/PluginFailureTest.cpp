// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "TestMetaData.h"
#include "TestTexts.h"

#include <FixtureControl.h>
#include <pluginsystem/CPluginManager.h>

#include <QCoreApplication>
#include <QSignalSpy>
#include <QTest>

using namespace PluginSystem;
using Core::Plugin::IPluginInitializer;
using FixtureControl::Outcome;

Q_DECLARE_METATYPE(FixtureControl::Outcome)

/// What happens to a plug-in of which one operation fails, to those that depend on it, and to the
/// others. It is always the middle one of a chain of three; one more has nothing to do with them.
class PluginFailureTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void testFailingOperation_data();
    void testFailingOperation();
    void testDependentsOfAPluginThatFailed_data();
    void testDependentsOfAPluginThatFailed();
    void testServicesOfAPluginThatWillNotBeInitialisedAreDropped_data();
    void testServicesOfAPluginThatWillNotBeInitialisedAreDropped();
    void testThreadThatRunsAfterAFailedInitialize();
    void testFailureOfARequiredPluginIsCritical();
    void testFactoryThatGivesNothing();
    void testFactoryThatThrows();
};

namespace {

const QString chain = QStringLiteral(NERIX_FIXTURE_PLUGINS "/chain");

QString resolvePaths(QString text)
{
    return text.replace(QLatin1String("{fixtures}"), QStringLiteral(NERIX_FIXTURE_PLUGINS));
}

/// The whole life of the viewer.
void run(CPluginManager &manager)
{
    manager.addFolder(chain);
    manager.setLanguage(QStringLiteral("ja"));
    manager.start();
    QCoreApplication::processEvents();
    manager.canClose();
    manager.shutDown();
}

} // namespace

void PluginFailureTest::init()
{
    FixtureControl::reset();
}

void PluginFailureTest::testFailingOperation_data()
{
    QTest::addColumn<QString>("operation");
    QTest::addColumn<Outcome>("outcome");
    QTest::addColumn<QString>("error");
    QTest::addColumn<PluginState>("state");
    QTest::addColumn<QStringList>("calls");

    QTest::newRow("exception from the constructor")
        << "construct" << Outcome::Throw
        << "Plug-in \"Middle\" failed in its constructor (exception: boom): update or remove "
           "\"{fixtures}/chain/libMiddle.so\""
        << PluginState::Resolved << texts({"construct"});
    QTest::newRow("exception from setLanguage")
        << "setLanguage ja" << Outcome::Throw
        << "Plug-in \"Middle\" failed in setLanguage (exception: boom): update or remove "
           "\"{fixtures}/chain/libMiddle.so\""
        << PluginState::Loaded << texts({"construct", "setLanguage ja", "destroy"});
    QTest::newRow("setLanguage false: there is no such catalogue, which is no error")
        << "setLanguage ja" << Outcome::ReturnFalse << "" << PluginState::Deleted
        << texts({"construct", "setLanguage ja", "preInitialize", "initialize",
                  "initializationDone", "checkPluginClosability", "aboutToUninitialize",
                  "uninitialize", "destroy"});
    QTest::newRow("preInitialize false: neither initialised nor uninitialised")
        << "preInitialize" << Outcome::ReturnFalse
        << "Plug-in \"Middle\" failed in preInitialize (it returned false): update or remove "
           "\"{fixtures}/chain/libMiddle.so\""
        << PluginState::Loaded
        << texts({"construct", "setLanguage ja", "preInitialize", "destroy"});
    QTest::newRow("exception from preInitialize: neither initialised nor uninitialised")
        << "preInitialize" << Outcome::Throw
        << "Plug-in \"Middle\" failed in preInitialize (exception: boom): update or remove "
           "\"{fixtures}/chain/libMiddle.so\""
        << PluginState::Loaded
        << texts({"construct", "setLanguage ja", "preInitialize", "destroy"});
    QTest::newRow("initialize false: uninitialised all the same, and told everything")
        << "initialize" << Outcome::ReturnFalse
        << "Plug-in \"Middle\" failed in initialize (it returned false): update or remove "
           "\"{fixtures}/chain/libMiddle.so\""
        << PluginState::PreInitialized
        << texts({"construct", "setLanguage ja", "preInitialize", "initialize",
                  "initializationDone", "aboutToUninitialize", "uninitialize", "destroy"});
    QTest::newRow("exception from initialize: uninitialised all the same")
        << "initialize" << Outcome::Throw
        << "Plug-in \"Middle\" failed in initialize (exception: boom): update or remove "
           "\"{fixtures}/chain/libMiddle.so\""
        << PluginState::PreInitialized
        << texts({"construct", "setLanguage ja", "preInitialize", "initialize",
                  "initializationDone", "aboutToUninitialize", "uninitialize", "destroy"});
    QTest::newRow("an exception that is no std::exception")
        << "initialize" << Outcome::ThrowNumber
        << "Plug-in \"Middle\" failed in initialize (exception of an unknown type): update or "
           "remove \"{fixtures}/chain/libMiddle.so\""
        << PluginState::PreInitialized
        << texts({"construct", "setLanguage ja", "preInitialize", "initialize",
                  "initializationDone", "aboutToUninitialize", "uninitialize", "destroy"});
    QTest::newRow("exception from a slot for initializationDone: asked no more, but uninitialised")
        << "initializationDone" << Outcome::Throw
        << "Plug-in \"Middle\" failed in a slot for initializationDone (exception: boom): update "
           "or remove \"{fixtures}/chain/libMiddle.so\""
        << PluginState::Initialized
        << texts({"construct", "setLanguage ja", "preInitialize", "initialize",
                  "initializationDone", "aboutToUninitialize", "uninitialize", "destroy"});
    QTest::newRow("exception from checkPluginClosability: no veto")
        << "checkPluginClosability" << Outcome::Throw
        << "Plug-in \"Middle\" failed in checkPluginClosability (exception: boom): update or "
           "remove \"{fixtures}/chain/libMiddle.so\""
        << PluginState::Running
        << texts({"construct", "setLanguage ja", "preInitialize", "initialize",
                  "initializationDone", "checkPluginClosability", "aboutToUninitialize",
                  "uninitialize", "destroy"});
    QTest::newRow("exception from aboutToUninitialize: uninitialised all the same")
        << "aboutToUninitialize" << Outcome::Throw
        << "Plug-in \"Middle\" failed in aboutToUninitialize (exception: boom): update or remove "
           "\"{fixtures}/chain/libMiddle.so\""
        << PluginState::Running
        << texts({"construct", "setLanguage ja", "preInitialize", "initialize",
                  "initializationDone", "checkPluginClosability", "aboutToUninitialize",
                  "uninitialize", "destroy"});
    QTest::newRow("uninitialize false: destroyed all the same")
        << "uninitialize" << Outcome::ReturnFalse
        << "Plug-in \"Middle\" failed in uninitialize (it returned false): update or remove "
           "\"{fixtures}/chain/libMiddle.so\""
        << PluginState::Running
        << texts({"construct", "setLanguage ja", "preInitialize", "initialize",
                  "initializationDone", "checkPluginClosability", "aboutToUninitialize",
                  "uninitialize", "destroy"});
    QTest::newRow("exception from uninitialize: destroyed all the same")
        << "uninitialize" << Outcome::Throw
        << "Plug-in \"Middle\" failed in uninitialize (exception: boom): update or remove "
           "\"{fixtures}/chain/libMiddle.so\""
        << PluginState::Running
        << texts({"construct", "setLanguage ja", "preInitialize", "initialize",
                  "initializationDone", "checkPluginClosability", "aboutToUninitialize",
                  "uninitialize", "destroy"});
}

void PluginFailureTest::testFailingOperation()
{
    QFETCH(QString, operation);
    QFETCH(Outcome, outcome);
    QFETCH(QString, error);
    QFETCH(QStringList, calls);
    FixtureControl::setOutcome(QStringLiteral("Middle.") + operation, outcome);
    CPluginManager manager;
    QSignalSpy viewer(&manager.registry(), &IPluginInitializer::initializationDone);

    run(manager);

    const CPluginSpec *middle = manager.plugin(QStringLiteral("Middle"));
    QCOMPARE(middle->error(), resolvePaths(error));
    QTEST(middle->state(), "state");
    const QStringList all = FixtureControl::takeCalls();
    QCOMPARE(all.filter(QStringLiteral("Middle."))
                 .replaceInStrings(QStringLiteral("Middle."), QString())
                 .filter(QRegularExpression(QStringLiteral("^(?!service)"))),
             calls);
    for (const QString &name : texts({"Aside", "Base"})) {
        QCOMPARE(manager.plugin(name)->error(), QString());
        QCOMPARE(manager.plugin(name)->state(), PluginState::Deleted);
        QVERIFY(all.contains(name + QStringLiteral(".initializationDone")));
    }
    QCOMPARE(viewer.size(), 1);
}

void PluginFailureTest::testDependentsOfAPluginThatFailed_data()
{
    QTest::addColumn<QString>("operation");
    QTest::addColumn<PluginState>("state");
    QTest::addColumn<QStringList>("calls");

    QTest::newRow("not loaded, if it could not be loaded")
        << "construct" << PluginState::Resolved << QStringList();
    QTest::newRow("not pre-initialised, if setLanguage failed")
        << "setLanguage ja" << PluginState::Loaded
        << texts({"construct", "setLanguage ja", "destroy"});
    QTest::newRow("not pre-initialised, if preInitialize failed")
        << "preInitialize" << PluginState::Loaded
        << texts({"construct", "setLanguage ja", "destroy"});
    QTest::newRow("neither initialised nor uninitialised, if initialize failed")
        << "initialize" << PluginState::PreInitialized
        << texts(
               {"construct", "setLanguage ja", "preInitialize", "destroy", "service is destroyed"});
}

void PluginFailureTest::testDependentsOfAPluginThatFailed()
{
    QFETCH(QString, operation);
    QFETCH(QStringList, calls);
    FixtureControl::setOutcome(QStringLiteral("Middle.") + operation, Outcome::Throw);
    CPluginManager manager;

    run(manager);

    const CPluginSpec *top = manager.plugin(QStringLiteral("Top"));
    QCOMPARE(top->error(), QStringLiteral("Plug-in \"Top\" needs \"Middle\" 1.2.0, which has an "
                                          "error: ")
                               + manager.plugin(QStringLiteral("Middle"))->error());
    QTEST(top->state(), "state");
    QStringList topCalls = FixtureControl::takeCalls().filter(QStringLiteral("Top."));
    QCOMPARE(topCalls.replaceInStrings(QStringLiteral("Top."), QString()), calls);
}

void PluginFailureTest::testServicesOfAPluginThatWillNotBeInitialisedAreDropped_data()
{
    QTest::addColumn<QString>("operation");
    QTest::addColumn<QStringList>("services");

    QTest::newRow("all is well") << ""
                                 << texts({"Aside.service", "Base.service", "Middle.service",
                                           "Top.service"});
    QTest::newRow("its preInitialize failed")
        << "Middle.preInitialize" << texts({"Aside.service", "Base.service"});
    QTest::newRow("what it depends on failed to initialise, and keeps its own service")
        << "Middle.initialize" << texts({"Aside.service", "Base.service", "Middle.service"});
}

void PluginFailureTest::testServicesOfAPluginThatWillNotBeInitialisedAreDropped()
{
    QFETCH(QString, operation);
    FixtureControl::setOutcome(operation, Outcome::ReturnFalse);
    CPluginManager manager;
    manager.addFolder(chain);
    manager.start();

    QStringList names;
    for (const auto &service : manager.registry().services()) {
        names += service->objectName();
    }
    QTEST(names, "services");
}

void PluginFailureTest::testThreadThatRunsAfterAFailedInitialize()
{
    CPluginManager manager;
    manager.addFolder(QStringLiteral(NERIX_FIXTURE_PLUGINS "/thread"));
    manager.start();
    QCoreApplication::processEvents();
    QCOMPARE(FixtureControl::takeCalls(), texts({"ThreadStarter.thread is started"}));
    QCOMPARE(manager.errors(),
             QStringList(resolvePaths(QStringLiteral(
                 "Plug-in \"ThreadStarter\" failed in initialize (it returned false): update or "
                 "remove \"{fixtures}/thread/libThreadStarter.so\""))));

    manager.shutDown();

    QCOMPARE(FixtureControl::takeCalls(), texts({"ThreadStarter.thread is ended"}));
    QCOMPARE(manager.plugins().at(0)->state(), PluginState::PreInitialized);
}

void PluginFailureTest::testFailureOfARequiredPluginIsCritical()
{
    PluginMetaData metaData = testMetaData(QStringLiteral("Alpha"), QStringLiteral("1.0"));
    metaData.required = true;
    CPluginManager manager;
    manager.addBuiltIn(metaData, [] { return nullptr; });

    QTest::ignoreMessage(QtCriticalMsg, "Plug-in \"Alpha\" failed in its constructor (there is no "
                                        "object): reinstall the viewer");
    manager.start();
}

void PluginFailureTest::testFactoryThatGivesNothing()
{
    CPluginManager manager;
    manager.addBuiltIn(testMetaData(QStringLiteral("Alpha"), QStringLiteral("1.0")),
                       [] { return nullptr; });
    manager.start();

    QCOMPARE(manager.errors(), texts({"Plug-in \"Alpha\" failed in its constructor (there is no "
                                      "object): reinstall the viewer"}));
    QCOMPARE(manager.plugins().at(0)->state(), PluginState::Resolved);
}

void PluginFailureTest::testFactoryThatThrows()
{
    CPluginManager manager;
    manager.addBuiltIn(testMetaData(QStringLiteral("Alpha"), QStringLiteral("1.0")),
                       []() -> std::unique_ptr<Core::Plugin::IPlugin> { throw std::bad_alloc(); });
    manager.start();

    QCOMPARE(manager.errors(), texts({"Plug-in \"Alpha\" failed in its constructor (exception: "
                                      "std::bad_alloc): reinstall the viewer"}));
}

QTEST_GUILESS_MAIN(PluginFailureTest)
#include "PluginFailureTest.moc"
