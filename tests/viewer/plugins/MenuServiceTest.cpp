// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/appcore/CMenuService.h"
#include "support/Texts.h"

#include <Plugin/AppCore/IActionContainer.h>
#include <Plugin/AppCore/ICommand.h>

#include <QAction>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>

using Core::CId;
using Core::AppCoreComponents::CContext;
using Plugin::AppCore::CMenuService;
using Plugin::AppCore::IActionContainer;
using Plugin::AppCore::ICommand;
using TriggerResult = CMenuService::TriggerResult;

Q_DECLARE_METATYPE(CContext)
Q_DECLARE_METATYPE(TriggerResult)

class MenuServiceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void testUnknownMenuIsNotFound();
    void testMenuIsFoundUnderItsId();
    void testMenuIdThatIsTakenGivesTheMenuThatIsThere();
    void testInvalidMenuIdGivesNoMenu();

    void testRegisteringNoActionGivesNoCommand();
    void testRegisteringUnderAnInvalidIdGivesNoCommand();
    void testCommandKnowsItsIdAndItsAction();

    void testCommandsOfAGroupStandTogether();
    void testGroupWithAFixedPlaceKeepsIt();
    void testEmptyGroupShowsNoSeparator();
    void testNullCommandIsIgnored();
    void testCommandAddedTwiceIsThereOnce();

    void testTakenIdGetsItsActionReplacedInPlace();
    void testFormerActionMayDieLater();
    void testDestroyedActionTakesItsCommandAlong();

    void testEntriesComeInMenuOrderThenThoseInNoMenu();
    void testEntryTextIsWithoutMnemonic();

    void testTriggerDoesWhatChoosingTheActionDoes();
    void testTriggerRefuses_data();
    void testTriggerRefuses();

private:
    QAction *add(const char *id, const char *group = nullptr);
    QStringList menuTexts() const;

    QScopedPointer<CMenuService> m_service;
    QScopedPointer<QObject> m_owner;
    IActionContainer *m_menu = nullptr;
};

namespace {

const CId menuId("Test.Menu");
const CContext everywhere(CId("AppCore.Global.Context"));

} // namespace

void MenuServiceTest::init()
{
    m_service.reset(new CMenuService);
    m_owner.reset(new QObject);
    m_menu = m_service->createActionContainer(menuId, QStringLiteral("&Test"));
}

QAction *MenuServiceTest::add(const char *id, const char *group)
{
    auto *action = new QAction(QString::fromLatin1(id), m_owner.data());
    ICommand *command = m_service->registerAction(action, CId(id), everywhere);
    if (group) {
        m_menu->addCommand(command, CId(group));
    }
    return action;
}

// What the menu holds from top to bottom; a separator is "-".
QStringList MenuServiceTest::menuTexts() const
{
    QStringList texts;
    const auto actions = m_service->menus().at(0)->actions();
    for (const QAction *action : actions) {
        texts.append(action->isSeparator() ? QStringLiteral("-") : action->text());
    }
    return texts;
}

void MenuServiceTest::testUnknownMenuIsNotFound()
{
    QVERIFY(!m_service->findActionContainer(CId("Other.Menu")));
}

void MenuServiceTest::testMenuIsFoundUnderItsId()
{
    QCOMPARE(m_service->findActionContainer(menuId), m_menu);
    QCOMPARE(m_service->menus().size(), 1);
    QCOMPARE(m_service->menus().at(0)->title(), QStringLiteral("&Test"));
}

void MenuServiceTest::testMenuIdThatIsTakenGivesTheMenuThatIsThere()
{
    QCOMPARE(m_service->createActionContainer(menuId, QStringLiteral("Other")), m_menu);
    QCOMPARE(m_service->menus().size(), 1);
    QCOMPARE(m_service->menus().at(0)->title(), QStringLiteral("&Test"));
}

void MenuServiceTest::testInvalidMenuIdGivesNoMenu()
{
    QVERIFY(!m_service->createActionContainer(CId(), QStringLiteral("Other")));
    QCOMPARE(m_service->menus().size(), 1);
}

void MenuServiceTest::testRegisteringNoActionGivesNoCommand()
{
    QVERIFY(!m_service->registerAction(nullptr, CId("Test.Action"), everywhere));
    QVERIFY(m_service->entries().isEmpty());
}

void MenuServiceTest::testRegisteringUnderAnInvalidIdGivesNoCommand()
{
    QAction action;
    QVERIFY(!m_service->registerAction(&action, CId(), everywhere));
    QVERIFY(m_service->entries().isEmpty());
}

void MenuServiceTest::testCommandKnowsItsIdAndItsAction()
{
    QAction action;
    const ICommand *command = m_service->registerAction(&action, CId("Test.Action"), everywhere);
    QVERIFY(command);
    QCOMPARE(command->id(), CId("Test.Action"));
    QCOMPARE(command->action(), &action);
}

void MenuServiceTest::testCommandsOfAGroupStandTogether()
{
    add("a1", "A");
    add("b1", "B");
    add("a2", "A");
    QCOMPARE(menuTexts(), texts({"-", "a1", "a2", "-", "b1"}));
}

void MenuServiceTest::testGroupWithAFixedPlaceKeepsIt()
{
    m_service->addGroup(menuId, CId("First"));
    add("last", "Last");
    add("first", "First");
    QCOMPARE(menuTexts(), texts({"-", "first", "-", "last"}));
}

void MenuServiceTest::testEmptyGroupShowsNoSeparator()
{
    m_service->addGroup(menuId, CId("Empty"));
    add("only", "Other");
    // Qt hides separators that lead, trail or follow each other.
    QVERIFY(m_service->menus().at(0)->separatorsCollapsible());
}

void MenuServiceTest::testNullCommandIsIgnored()
{
    m_menu->addCommand(nullptr, CId("A"));
    QCOMPARE(menuTexts(), QStringList());
}

void MenuServiceTest::testCommandAddedTwiceIsThereOnce()
{
    QAction action(QStringLiteral("a"), nullptr);
    ICommand *command = m_service->registerAction(&action, CId("a"), everywhere);
    m_menu->addCommand(command, CId("A"));
    m_menu->addCommand(command, CId("B"));
    QCOMPARE(menuTexts(), texts({"-", "a"}));
}

void MenuServiceTest::testTakenIdGetsItsActionReplacedInPlace()
{
    add("a1", "A");
    add("a2", "A");
    QAction replacement(QStringLiteral("new"), nullptr);
    const ICommand *command = m_service->registerAction(&replacement, CId("a1"), everywhere);
    QCOMPARE(command->action(), &replacement);
    QCOMPARE(menuTexts(), texts({"-", "new", "a2"}));
    QCOMPARE(m_service->entries().size(), 2);
}

void MenuServiceTest::testFormerActionMayDieLater()
{
    const QAction *former = add("a1", "A");
    QAction replacement(QStringLiteral("new"), nullptr);
    m_service->registerAction(&replacement, CId("a1"), everywhere);
    delete former;
    QCOMPARE(menuTexts(), texts({"-", "new"}));
    QCOMPARE(m_service->trigger(CId("a1")), TriggerResult::Triggered);
}

void MenuServiceTest::testDestroyedActionTakesItsCommandAlong()
{
    delete add("a1", "A");
    QCOMPARE(menuTexts(), texts({"-"}));
    QVERIFY(m_service->entries().isEmpty());
    QCOMPARE(m_service->trigger(CId("a1")), TriggerResult::Unknown);
}

void MenuServiceTest::testEntriesComeInMenuOrderThenThoseInNoMenu()
{
    add("loose");
    add("b1", "B");
    add("a1", "A");
    add("b2", "B");
    QStringList lines;
    const auto entries = m_service->entries();
    for (const auto &entry : entries) {
        lines.append(entry.menu.toString() + QLatin1Char('/') + entry.group.toString()
                     + QLatin1Char('/') + entry.id.toString());
    }
    QCOMPARE(lines, texts({"Test.Menu/B/b1", "Test.Menu/B/b2", "Test.Menu/A/a1", "//loose"}));
}

void MenuServiceTest::testEntryTextIsWithoutMnemonic()
{
    add("id")->setText(QStringLiteral("&Save && Quit"));
    QCOMPARE(m_service->entries().at(0).text, QStringLiteral("Save & Quit"));
}

void MenuServiceTest::testTriggerDoesWhatChoosingTheActionDoes()
{
    const QSignalSpy triggered(add("a1"), &QAction::triggered);
    QCOMPARE(m_service->trigger(CId("a1")), TriggerResult::Triggered);
    QCOMPARE(triggered.count(), 1);
}

void MenuServiceTest::testTriggerRefuses_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<CContext>("context");
    QTest::addColumn<TriggerResult>("result");

    QTest::newRow("an id that nobody registered")
        << QStringLiteral("other") << true << everywhere << TriggerResult::Unknown;
    QTest::newRow("an action that is disabled")
        << QStringLiteral("a1") << false << everywhere << TriggerResult::Disabled;
    QTest::newRow("an action that applies nowhere")
        << QStringLiteral("a1") << true << CContext() << TriggerResult::NotApplicable;
    QTest::newRow("an action of a view that is not active")
        << QStringLiteral("a1") << true << CContext(CId("Test.View"))
        << TriggerResult::NotApplicable;
}

void MenuServiceTest::testTriggerRefuses()
{
    QFETCH(QString, id);
    QFETCH(bool, enabled);
    QFETCH(CContext, context);
    QFETCH(TriggerResult, result);

    QAction action;
    action.setEnabled(enabled);
    const QSignalSpy triggered(&action, &QAction::triggered);
    m_service->registerAction(&action, CId("a1"), context);
    QCOMPARE(m_service->trigger(CId(id)), result);
    QCOMPARE(triggered.count(), 0);
}

QTEST_MAIN(MenuServiceTest)

#include "MenuServiceTest.moc"
