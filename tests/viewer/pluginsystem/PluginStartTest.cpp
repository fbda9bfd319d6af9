// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "TestMetaData.h"
#include "TestTexts.h"

#include <FixtureControl.h>
#include <pluginsystem/CPluginManager.h>

#include <QCoreApplication>
#include <QLoggingCategory>
#include <QSignalSpy>
#include <QTest>

using namespace PluginSystem;
using Core::Plugin::IPluginInitializer;

/// How good plug-ins are started.
class PluginStartTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void testEachStepIsDoneForAllBeforeTheNextOne();
    void testInitializationDoneComesOnceFromTheEventLoop();
    void testPluginsHearInitializationDoneBeforeTheViewer();
    void testStates();
    void testSecondStartIsRefused();
    void testObjectNameIsTheNameOfTheMetaDataBeforePreInitialize();
    void testLanguageIsSetBeforePreInitialize();
    void testLanguageIsChangedLater();
    void testBuiltInPluginsAndLibrariesDependOnEachOther();
    void testShutDownBeforeTheEventLoopRunsKeepsBackInitializationDone();
    void testLogExplainsTheStart();
    void testThePluginIsCreatedAnewInTheNextRun();
};

namespace {

const QString chain = QStringLiteral(NERIX_FIXTURE_PLUGINS "/chain");

/// A built-in plug-in that notes its object name.
class CBuiltInPlugin : public Core::Plugin::IPlugin
{
    Q_OBJECT

public:
    bool preInitialize(const QPointer<IPluginInitializer> &) override
    {
        return FixtureControl::note(objectName() + QStringLiteral(".preInitialize"));
    }
    bool initialize() override
    {
        return FixtureControl::note(objectName() + QStringLiteral(".initialize"));
    }
    bool uninitialize(const QPointer<IPluginInitializer> &) override
    {
        return true;
    }
};

} // namespace

void PluginStartTest::init()
{
    FixtureControl::reset();
}

void PluginStartTest::testEachStepIsDoneForAllBeforeTheNextOne()
{
    CPluginManager manager;
    manager.addFolder(chain);
    QCOMPARE(FixtureControl::takeCalls(), QStringList());
    manager.start();

    QCOMPARE(FixtureControl::takeCalls(),
             texts({"Aside.construct", "Base.construct", "Middle.construct", "Top.construct",
                    "Aside.preInitialize", "Base.preInitialize", "Middle.preInitialize",
                    "Top.preInitialize", "Aside.initialize", "Base.initialize", "Middle.initialize",
                    "Top.initialize"}));
}

void PluginStartTest::testInitializationDoneComesOnceFromTheEventLoop()
{
    CPluginManager manager;
    QSignalSpy spy(&manager.registry(), &IPluginInitializer::initializationDone);
    manager.addFolder(chain);
    manager.start();
    FixtureControl::takeCalls();
    QCOMPARE(spy.size(), 0);

    QVERIFY(spy.wait());
    QCOMPARE(FixtureControl::takeCalls(),
             texts({"Aside.initializationDone", "Base.initializationDone",
                    "Middle.initializationDone", "Top.initializationDone"}));

    QCoreApplication::processEvents();
    QCOMPARE(spy.size(), 1);
    QCOMPARE(FixtureControl::takeCalls(), QStringList());
}

void PluginStartTest::testPluginsHearInitializationDoneBeforeTheViewer()
{
    CPluginManager manager;
    manager.addFolder(chain);
    manager.start();
    connect(&manager.registry(), &IPluginInitializer::initializationDone, this,
            [] { FixtureControl::note(QStringLiteral("viewer")); });
    FixtureControl::takeCalls();

    QCoreApplication::processEvents();

    QCOMPARE(FixtureControl::takeCalls().last(), QStringLiteral("viewer"));
}

void PluginStartTest::testStates()
{
    CPluginManager manager;
    manager.addFolder(chain);
    const QVector<const CPluginSpec *> plugins = manager.plugins();
    QCOMPARE(plugins.size(), 4);
    for (const CPluginSpec *plugin : plugins) {
        QCOMPARE(plugin->state(), PluginState::Read);
    }

    manager.start();
    for (const CPluginSpec *plugin : plugins) {
        QCOMPARE(plugin->state(), PluginState::Initialized);
    }

    QCoreApplication::processEvents();
    for (const CPluginSpec *plugin : plugins) {
        QCOMPARE(plugin->state(), PluginState::Running);
    }

    manager.shutDown();
    for (const CPluginSpec *plugin : plugins) {
        QCOMPARE(plugin->state(), PluginState::Deleted);
        QCOMPARE(plugin->error(), QString());
    }
}

void PluginStartTest::testSecondStartIsRefused()
{
    CPluginManager manager;
    manager.addFolder(chain);
    manager.start();
    FixtureControl::takeCalls();

    QTest::ignoreMessage(QtWarningMsg, "The plug-ins are started already");
    manager.start();

    QCOMPARE(FixtureControl::takeCalls(), QStringList());
}

void PluginStartTest::testObjectNameIsTheNameOfTheMetaDataBeforePreInitialize()
{
    CPluginManager manager;
    manager.addBuiltIn(testMetaData(QStringLiteral("Alpha"), QStringLiteral("1.0")),
                       [] { return std::make_unique<CBuiltInPlugin>(); });
    manager.start();

    QCOMPARE(FixtureControl::takeCalls(), texts({"Alpha.preInitialize", "Alpha.initialize"}));
}

void PluginStartTest::testLanguageIsSetBeforePreInitialize()
{
    CPluginManager manager;
    manager.addFolder(chain);
    manager.setLanguage(QStringLiteral("zh_CN"));
    manager.start();

    QCOMPARE(FixtureControl::takeCalls().mid(4, 5),
             texts({"Aside.setLanguage zh_CN", "Base.setLanguage zh_CN", "Middle.setLanguage zh_CN",
                    "Top.setLanguage zh_CN", "Aside.preInitialize"}));
}

void PluginStartTest::testLanguageIsChangedLater()
{
    CPluginManager manager;
    manager.addFolder(chain);
    manager.start();
    FixtureControl::takeCalls();

    manager.setLanguage(QStringLiteral("ja"));

    QCOMPARE(FixtureControl::takeCalls(), texts({"Aside.setLanguage ja", "Base.setLanguage ja",
                                                 "Middle.setLanguage ja", "Top.setLanguage ja"}));
}

void PluginStartTest::testBuiltInPluginsAndLibrariesDependOnEachOther()
{
    CPluginManager manager;
    const auto create = [] { return std::make_unique<CBuiltInPlugin>(); };
    manager.addBuiltIn(testMetaData(QStringLiteral("Above"), QStringLiteral("1.0"),
                                    texts({"Top 1.2.0", "Zero 1.0"})),
                       create);
    manager.addBuiltIn(testMetaData(QStringLiteral("Zero"), QStringLiteral("1.0")), create);
    manager.addFolder(chain);
    manager.start();

    QCOMPARE(FixtureControl::takeCalls().filter(QStringLiteral(".initialize")),
             texts({"Aside.initialize", "Base.initialize", "Middle.initialize", "Top.initialize",
                    "Zero.initialize", "Above.initialize"}));
}

void PluginStartTest::testShutDownBeforeTheEventLoopRunsKeepsBackInitializationDone()
{
    CPluginManager manager;
    QSignalSpy spy(&manager.registry(), &IPluginInitializer::initializationDone);
    manager.addFolder(chain);
    manager.start();
    manager.shutDown();

    QCoreApplication::processEvents();

    QCOMPARE(spy.size(), 0);
    QVERIFY(!FixtureControl::takeCalls().contains(QStringLiteral("Base.initializationDone")));
}

void PluginStartTest::testLogExplainsTheStart()
{
    QLoggingCategory::setFilterRules(QStringLiteral("nerix.pluginsystem.debug=true"));
    QTest::ignoreMessage(QtDebugMsg, "\"Alpha\": Found -> Read");
    QTest::ignoreMessage(QtDebugMsg, "\"Alpha\": Read -> Resolved");
    QTest::ignoreMessage(QtDebugMsg, "\"Alpha\": Resolved -> Loaded");
    QTest::ignoreMessage(QtDebugMsg, "\"Alpha\": Loaded -> PreInitialized");
    QTest::ignoreMessage(QtDebugMsg, "\"Alpha\": PreInitialized -> Initialized");
    QTest::ignoreMessage(QtDebugMsg, "\"Alpha\": Initialized -> Running");
    QTest::ignoreMessage(QtDebugMsg, "\"Alpha\": Running -> Uninitialized");
    QTest::ignoreMessage(QtDebugMsg, "\"Alpha\": Uninitialized -> Deleted");
    CPluginManager manager;
    manager.addBuiltIn(testMetaData(QStringLiteral("Alpha"), QStringLiteral("1.0")),
                       [] { return std::make_unique<CBuiltInPlugin>(); });
    manager.start();
    QCoreApplication::processEvents();
    manager.shutDown();
    QLoggingCategory::setFilterRules(QString());
}

void PluginStartTest::testThePluginIsCreatedAnewInTheNextRun()
{
    for (int run = 0; run < 2; ++run) {
        CPluginManager manager;
        manager.addFolder(chain);
        manager.start();
        QCOMPARE(FixtureControl::takeCalls().count(QStringLiteral("Base.construct")), 1);
        manager.shutDown();
        QCOMPARE(FixtureControl::takeCalls().count(QStringLiteral("Base.destroy")), 1);
    }
}

QTEST_GUILESS_MAIN(PluginStartTest)
#include "PluginStartTest.moc"
