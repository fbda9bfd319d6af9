// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/appcore/CMenuService.h"
#include "support/Texts.h"
#include "windows/ChoiceMenu.h"
#include "windows/MenuEntry.h"
#include "windows/OnLanguageChange.h"

#include <QAction>
#include <QActionGroup>
#include <QCoreApplication>
#include <QEvent>
#include <QMenu>
#include <QTest>

using Core::CId;
using Plugin::AppCore::CMenuService;
using Plugin::AppCore::IMenuControlService;

class MenuEntriesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void testEntryStandsWhereItSays();
    void testEntryOfAMenuThatIsNotThereIsStillKnown();
    void testEntryGoesWithItsAction();
    void testTextsAreAskedAnewWhenTheLanguageChanges();
    void testMnemonicIsSeenInMenusOnly_data();
    void testMnemonicIsSeenInMenusOnly();
    void testNobodyAsksAfterTheOwnerIsGone();
    void testChoiceInForceIsChecked();
    void testPickedChoiceIsPassedOn();
    void testChoiceIsAnActionForScripts();
    void testCheckMarkFollowsWhatIsInForceNow();
    void testSubmenuGoesWithItsOwner();

private:
    QActionGroup *addColours();

    QScopedPointer<CMenuService> m_menus;
    QScopedPointer<QObject> m_owner;
    QString m_current;
    QStringList m_chosen;
};

namespace {

void changeLanguage()
{
    QEvent event(QEvent::LanguageChange);
    QCoreApplication::sendEvent(QCoreApplication::instance(), &event);
}

QStringList checked(const QActionGroup &group)
{
    QStringList texts;
    const auto actions = group.actions();
    for (const QAction *action : actions) {
        if (action->isChecked()) {
            texts.append(action->text());
        }
    }
    return texts;
}

} // namespace

void MenuEntriesTest::init()
{
    m_menus.reset(new CMenuService);
    m_menus->createActionContainer(CId("Test.Menu"), "Test");
    m_owner.reset(new QObject);
    m_current = "red";
    m_chosen.clear();
}

QActionGroup *MenuEntriesTest::addColours()
{
    return Windows::addChoiceMenu(
        *m_menus, {"Test.Colour", "Test.Menu", "Test.Group"}, [] { return QString("Colour"); },
        {{"Test.Colour.Red", [] { return QString("Red"); }, "red"},
         {"Test.Colour.Blue", [] { return QString("Blue"); }, "blue"}},
        [this] { return m_current; },
        [this](const QString &value) {
            m_current = value;
            m_chosen.append(value);
        },
        m_owner.data());
}

void MenuEntriesTest::testEntryStandsWhereItSays()
{
    const QAction *action = Windows::addMenuEntry(
        *m_menus, {"Test.Save", "Test.Menu", "Test.Group", QKeySequence("Ctrl+S")},
        [] { return QString("&Save"); }, m_owner.data());
    const auto entries = m_menus->entries();
    QCOMPARE(entries.size(), 1);
    QCOMPARE(entries.at(0).id, CId("Test.Save"));
    QCOMPARE(entries.at(0).text, QString("Save"));
    QCOMPARE(entries.at(0).menu, CId("Test.Menu"));
    QCOMPARE(entries.at(0).group, CId("Test.Group"));
    QCOMPARE(action->shortcut(), QKeySequence("Ctrl+S"));
}

void MenuEntriesTest::testEntryOfAMenuThatIsNotThereIsStillKnown()
{
    Windows::addMenuEntry(
        *m_menus, {"Test.Save", "No.Menu", "Test.Group"}, [] { return QString("&Save"); },
        m_owner.data());
    QCOMPARE(m_menus->trigger(CId("Test.Save")), IMenuControlService::TriggerResult::Triggered);
    QVERIFY(!m_menus->entries().at(0).menu.isValid());
}

void MenuEntriesTest::testEntryGoesWithItsAction()
{
    Windows::addMenuEntry(
        *m_menus, {"Test.Save", "Test.Menu", "Test.Group"}, [] { return QString("&Save"); },
        m_owner.data());
    m_owner.reset();
    QVERIFY(m_menus->entries().isEmpty());
}

void MenuEntriesTest::testTextsAreAskedAnewWhenTheLanguageChanges()
{
    QString text("Save");
    const QAction *action = Windows::addMenuEntry(
        *m_menus, {"Test.Save", "Test.Menu", "Test.Group"}, [&text] { return text; },
        m_owner.data());
    QCOMPARE(action->text(), QString("Save"));
    text = "Sichern";
    QCOMPARE(action->text(), QString("Save"));
    changeLanguage();
    QCOMPARE(action->text(), QString("Sichern"));
}

void MenuEntriesTest::testMnemonicIsSeenInMenusOnly_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("read");
    QTest::addColumn<QString>("inToolBar");
    QTest::newRow("none") << "Save"
                          << "Save"
                          << "Save";
    QTest::newRow("at the beginning") << "&Save"
                                      << "Save"
                                      << "Save";
    QTest::newRow("in the word") << "S&ave"
                                 << "Save"
                                 << "Save";
    QTest::newRow("ampersand") << "&Black && White"
                               << "Black & White"
                               << "Black & White";
    QTest::newRow("in parentheses")
        << QString::fromUtf8("保存(&S)") << QString::fromUtf8("保存") << QString::fromUtf8("保存");
    QTest::newRow("in parentheses, with dots")
        << QString::fromUtf8("保存(&S)...") << QString::fromUtf8("保存...")
        << QString::fromUtf8("保存");
    QTest::newRow("other parentheses") << "Save (all)"
                                       << "Save (all)"
                                       << "Save (all)";
}

void MenuEntriesTest::testMnemonicIsSeenInMenusOnly()
{
    QFETCH(QString, text);
    const QAction *action = Windows::addMenuEntry(
        *m_menus, {"Test.Save", "Test.Menu", "Test.Group"}, [text] { return text; },
        m_owner.data());
    QCOMPARE(action->text(), text);
    QTEST(m_menus->entries().at(0).text, "read");
    QTEST(action->iconText(), "inToolBar");
}

void MenuEntriesTest::testNobodyAsksAfterTheOwnerIsGone()
{
    int asked = 0;
    Windows::onLanguageChange(m_owner.data(), [&asked] { ++asked; });
    QCOMPARE(asked, 1);
    m_owner.reset();
    changeLanguage();
    QCOMPARE(asked, 1);
}

void MenuEntriesTest::testChoiceInForceIsChecked()
{
    QCOMPARE(checked(*addColours()), texts({"Red"}));
}

void MenuEntriesTest::testPickedChoiceIsPassedOn()
{
    addColours()->actions().at(1)->trigger();
    QCOMPARE(m_chosen, texts({"blue"}));
}

void MenuEntriesTest::testChoiceIsAnActionForScripts()
{
    addColours();
    QCOMPARE(m_menus->trigger(CId("Test.Colour.Blue")),
             IMenuControlService::TriggerResult::Triggered);
    QCOMPARE(m_chosen, texts({"blue"}));
}

void MenuEntriesTest::testCheckMarkFollowsWhatIsInForceNow()
{
    const QActionGroup *group = addColours();
    m_current = "blue";
    auto *submenu = static_cast<QAction *>(group->parent())->menu();
    Q_EMIT submenu->aboutToShow();
    QCOMPARE(checked(*group), texts({"Blue"}));
}

void MenuEntriesTest::testSubmenuGoesWithItsOwner()
{
    const QPointer<QMenu> submenu(static_cast<QAction *>(addColours()->parent())->menu());
    QVERIFY(submenu);
    m_owner.reset();
    QVERIFY(!submenu);
}

QTEST_MAIN(MenuEntriesTest)

#include "MenuEntriesTest.moc"
