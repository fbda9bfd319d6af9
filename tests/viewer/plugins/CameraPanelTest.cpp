// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/appcore/CMenuService.h"
#include "plugins/cameraselector/CameraSelectorPlugin.h"
#include "plugins/cameraselector/CCameraCommands.h"
#include "plugins/cameraselector/CCameraListModel.h"
#include "plugins/cameraselector/CCameraPanel.h"
#include "plugins/cameraselector/CDeviceSelectionService.h"
#include "plugins/nerixviewer/IMessageService.h"
#include "support/CFakeCameraControl.h"
#include "support/CFakeMainWindow.h"
#include "support/Texts.h"

#include <pluginsystem/CServiceRegistry.h>

#include <QAction>
#include <QLabel>
#include <QSignalSpy>
#include <QTest>
#include <QTreeView>

using CameraPool::ICameraControlService;
using CameraSelector::CCameraCommands;
using CameraSelector::CCameraListModel;
using CameraSelector::CCameraPanel;
using CameraSelector::CDeviceSelectionService;

// Keeps what is told to the user.
class CKeptMessages : public Plugin::NerixViewer::IMessageService
{
public:
    void add(Severity, const QString &text) override
    {
        texts.append(text);
    }

    QStringList texts;
};

class CameraPanelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void testEachCameraHasARowWithItsName();
    void testStateIsSaidInWords_data();
    void testStateIsSaidInWords();
    void testCameraThatIsGoneStaysInTheList();
    void testCameraThatComesBackHasItsRowAgain();
    void testRefreshTellsOfChangesOnly();
    void testRenamedCameraIsShownUnderItsNewName();
    void testCamerasOfTheSameNameHaveTheirSerialNumbersBesideIt();
    void testCurrentRowIsTheSelectedDevice();
    void testSelectionByOthersMovesTheCurrentRow();
    void testSelectedCameraIsCurrentOnceItIsInTheList();
    void testEnterOpensAndCloses();
    void testDoubleClickOpens();
    void testDoubleClickAndEnterLeaveAGrabbingCameraAloneAndSayHowToCloseIt();
    void testHintStandsInTheMessages();
    void testEntriesAreEnabledAsTheStateAllows_data();
    void testEntriesAreEnabledAsTheStateAllows();
    void testEntriesOpenAndCloseTheSelectedCamera();
    void testListWithoutCamerasSaysWhatToDo();
    void testProblemIsSaidBelowTheList();

private:
    QString cell(int row, int column) const;

    QSharedPointer<CFakeCameraControl> m_control;
    QSharedPointer<CDeviceSelectionService> m_selection;
    QScopedPointer<CCameraPanel> m_panel; // made last, so that it goes first
    QScopedPointer<CCameraListModel> m_model;
    QScopedPointer<CCameraCommands> m_commands;
    QScopedPointer<Plugin::AppCore::CMenuService> m_menus;
};

void CameraPanelTest::init()
{
    m_panel.reset();
    m_model.reset();
    m_commands.reset();
    m_control = QSharedPointer<CFakeCameraControl>::create();
    m_selection = QSharedPointer<CDeviceSelectionService>::create();
    m_menus.reset(new Plugin::AppCore::CMenuService);
    m_commands.reset(new CCameraCommands(m_control, m_selection));
    m_commands->addEntries(*m_menus);
    m_model.reset(new CCameraListModel(m_control));
    m_panel.reset(new CCameraPanel(*m_model, *m_commands, m_selection));
}

QString CameraPanelTest::cell(int row, int column) const
{
    return m_model->index(row, column).data().toString();
}

void CameraPanelTest::testEachCameraHasARowWithItsName()
{
    m_control->plugIn("Ostrand-XQZ-2000-1", "XQZ-2000", "Left of the belt");
    m_control->plugIn("Ostrand-XQZ-2000-2");
    m_model->refresh();
    QCOMPARE(m_model->rowCount(), 2);
    QCOMPARE(cell(0, CCameraListModel::CameraColumn), QString("Left of the belt"));
    QCOMPARE(cell(1, CCameraListModel::CameraColumn), QString("Ostrand-XQZ-2000-2"));
}

void CameraPanelTest::testStateIsSaidInWords_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<QString>("words");
    QTest::newRow("free") << int(ICameraControlService::Free) << "Free";
    QTest::newRow("open") << int(ICameraControlService::Open) << "Open";
    QTest::newRow("grabbing") << int(ICameraControlService::Grabbing) << "Grabbing";
    QTest::newRow("in use") << int(ICameraControlService::InUseElsewhere) << "In use elsewhere";
    QTest::newRow("gone") << int(ICameraControlService::Gone) << "Gone";
}

void CameraPanelTest::testStateIsSaidInWords()
{
    QFETCH(int, state);
    QFETCH(QString, words);
    const auto camera = m_control->plugIn("Ostrand-XQZ-2000-1");
    m_model->refresh();
    m_control->setState(camera, ICameraControlService::CameraState(state));
    m_model->refresh();
    QCOMPARE(cell(0, CCameraListModel::StateColumn), words);
    QCOMPARE(m_model->index(0, 0).data(Qt::AccessibleTextRole).toString(),
             "Ostrand-XQZ-2000-1, " + words);
}

void CameraPanelTest::testCameraThatIsGoneStaysInTheList()
{
    const auto camera = m_control->plugIn("Ostrand-XQZ-2000-1");
    m_model->refresh();
    m_control->unplug(camera);
    m_model->refresh();
    QCOMPARE(m_model->rowCount(), 1);
    QCOMPARE(cell(0, CCameraListModel::StateColumn), QString("Gone"));
}

void CameraPanelTest::testCameraThatComesBackHasItsRowAgain()
{
    const auto camera = m_control->plugIn("Ostrand-XQZ-2000-1");
    m_model->refresh();
    m_control->unplug(camera);
    m_model->refresh();
    m_control->plugIn("Ostrand-XQZ-2000-1", "XQZ-2000", "Renamed");
    m_model->refresh();
    QCOMPARE(m_model->rowCount(), 1);
    QCOMPARE(cell(0, CCameraListModel::CameraColumn), QString("Renamed"));
    QCOMPARE(cell(0, CCameraListModel::StateColumn), QString("Free"));
}

void CameraPanelTest::testRefreshTellsOfChangesOnly()
{
    const auto camera = m_control->plugIn("Ostrand-XQZ-2000-1");
    m_model->refresh();
    const QSignalSpy changed(m_model.data(), &QAbstractItemModel::dataChanged);
    m_model->refresh();
    QCOMPARE(changed.count(), 0);
    m_control->setState(camera, ICameraControlService::Open);
    m_model->refresh();
    QCOMPARE(changed.count(), 1);
}

void CameraPanelTest::testRenamedCameraIsShownUnderItsNewName()
{
    const auto camera = m_control->plugIn("Ostrand-XQZ-2000-1");
    m_model->refresh();
    const QSignalSpy changed(m_model.data(), &QAbstractItemModel::dataChanged);
    m_control->rename(camera, "Left of the belt");
    m_model->refresh();
    QCOMPARE(cell(0, CCameraListModel::CameraColumn), QString("Left of the belt"));
    QCOMPARE(changed.count(), 1);
    QVERIFY(m_model->index(0, 0).data(Qt::ToolTipRole).toString().contains("Ostrand-XQZ-2000-1"));
}

void CameraPanelTest::testCamerasOfTheSameNameHaveTheirSerialNumbersBesideIt()
{
    m_control->plugIn("Ostrand-XQZ-2000-A1", "XQZ-2000", "Line3");
    const auto second = m_control->plugIn("Ostrand-XQZ-2000-B-2", "XQZ-2000", "Line4");
    m_model->refresh();
    QCOMPARE(cell(0, CCameraListModel::CameraColumn), QString("Line3"));
    const auto renamed = m_control->rename(second, "Line3");
    m_model->refresh();
    QCOMPARE(cell(0, CCameraListModel::CameraColumn), QString("Line3 (A1)"));
    QCOMPARE(cell(1, CCameraListModel::CameraColumn), QString("Line3 (B-2)"));
    QCOMPARE(m_model->index(1, 0).data(Qt::AccessibleTextRole).toString(),
             QString("Line3 (B-2), Free"));
    m_control->rename(renamed, "Line5");
    m_model->refresh();
    QCOMPARE(cell(0, CCameraListModel::CameraColumn), QString("Line3"));
    QCOMPARE(cell(1, CCameraListModel::CameraColumn), QString("Line5"));
}

void CameraPanelTest::testCurrentRowIsTheSelectedDevice()
{
    m_control->plugIn("Ostrand-XQZ-2000-1");
    const auto second = m_control->plugIn("Ostrand-XQZ-2000-2");
    m_model->refresh();
    m_panel->findChild<QTreeView *>()->setCurrentIndex(m_model->index(1, 0));
    QCOMPARE(m_selection->selected().data(),
             static_cast<Core::CameraPoolComponents::IDeviceBaseInfo *>(second.data()));
}

void CameraPanelTest::testSelectionByOthersMovesTheCurrentRow()
{
    m_control->plugIn("Ostrand-XQZ-2000-1");
    const auto second = m_control->plugIn("Ostrand-XQZ-2000-2");
    m_model->refresh();
    m_selection->select(second);
    const auto *view = m_panel->findChild<QTreeView *>();
    QCOMPARE(view->currentIndex().row(), 1);
    m_selection->select({});
    QCOMPARE(view->currentIndex().row(), -1);
}

void CameraPanelTest::testSelectedCameraIsCurrentOnceItIsInTheList()
{
    m_control->plugIn("Ostrand-XQZ-2000-1");
    const auto second = m_control->plugIn("Ostrand-XQZ-2000-2");
    m_selection->select(second);
    m_model->refresh();
    QCOMPARE(m_panel->findChild<QTreeView *>()->currentIndex().row(), 1);
    QCOMPARE(m_selection->selected().data(),
             static_cast<Core::CameraPoolComponents::IDeviceBaseInfo *>(second.data()));
}

void CameraPanelTest::testEnterOpensAndCloses()
{
    const auto camera = m_control->plugIn("Ostrand-XQZ-2000-1");
    m_model->refresh();
    auto *view = m_panel->findChild<QTreeView *>();
    m_selection->select(camera);
    QTest::keyClick(view, Qt::Key_Return);
    QTRY_COMPARE(m_control->state(camera), ICameraControlService::Open);
    QTest::keyClick(view, Qt::Key_Enter);
    QTRY_COMPARE(m_control->state(camera), ICameraControlService::Free);
}

void CameraPanelTest::testDoubleClickOpens()
{
    const auto camera = m_control->plugIn("Ostrand-XQZ-2000-1");
    m_model->refresh();
    m_panel->resize(400, 300);
    m_panel->show();
    auto *view = m_panel->findChild<QTreeView *>();
    const QPoint point = view->visualRect(m_model->index(0, 0)).center();
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, point);
    QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, point);
    QTRY_COMPARE(m_control->state(camera), ICameraControlService::Open);
}

// The requests come to their ends in turn: had an earlier one closed it, that would have been told.
void CameraPanelTest::testDoubleClickAndEnterLeaveAGrabbingCameraAloneAndSayHowToCloseIt()
{
    const auto camera = m_control->plugIn("Ostrand-XQZ-2000-1", "XQZ-2000", "Left of the belt");
    m_model->refresh();
    m_panel->resize(400, 300);
    m_panel->show();
    m_selection->select(camera);
    m_control->setState(camera, ICameraControlService::Grabbing);
    m_commands->update();
    const QSignalSpy hints(m_commands.data(), &CCameraCommands::leftAlone);
    const QSignalSpy closed(m_control.data(), &ICameraControlService::closed);
    auto *view = m_panel->findChild<QTreeView *>();
    const QPoint point = view->visualRect(m_model->index(0, 0)).center();
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, point);
    QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, point);
    QCOMPARE(hints.count(), 1);
    QTest::keyClick(view, Qt::Key_Return);
    QCOMPARE(hints.count(), 2);
    QCOMPARE(
        hints.at(1).first().toString(),
        QString("Left of the belt is grabbing: press Ctrl+W to close it (Camera > Close Camera)"));
    QCOMPARE(m_commands->closeAction()->shortcut(), QKeySequence("Ctrl+W"));
    m_menus->trigger(Core::CId("CameraSelector.Action.Close"));
    QTRY_COMPARE(m_control->state(camera), ICameraControlService::Free);
    QCOMPARE(closed.count(), 1);
}

void CameraPanelTest::testHintStandsInTheMessages()
{
    const auto messages = QSharedPointer<CKeptMessages>::create();
    const auto window = QSharedPointer<CFakeMainWindow>::create();
    const auto menus = QSharedPointer<Plugin::AppCore::CMenuService>::create();
    PluginSystem::CServiceRegistry registry;
    registry.addService(messages);
    registry.addService(window);
    registry.addService(menus);
    registry.addService(m_control);
    const auto camera = m_control->plugIn("Ostrand-XQZ-2000-1");
    m_control->setState(camera, ICameraControlService::Grabbing);
    CameraSelector::CCameraSelectorPlugin plugin;
    QVERIFY(plugin.preInitialize(&registry) && plugin.initialize());
    auto *view = window->panels.first()->findChild<QTreeView *>();
    view->setCurrentIndex(view->model()->index(0, 0));
    QTest::keyClick(view, Qt::Key_Return);
    QCOMPARE(messages->texts.size(), 1);
    QVERIFY(messages->texts.first().startsWith("Ostrand-XQZ-2000-1 is grabbing: press Ctrl+W"));
    QVERIFY(plugin.uninitialize(&registry));
}

void CameraPanelTest::testEntriesAreEnabledAsTheStateAllows_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<bool>("canOpen");
    QTest::addColumn<bool>("canClose");
    QTest::newRow("free") << int(ICameraControlService::Free) << true << false;
    QTest::newRow("open") << int(ICameraControlService::Open) << false << true;
    QTest::newRow("grabbing") << int(ICameraControlService::Grabbing) << false << true;
    QTest::newRow("in use") << int(ICameraControlService::InUseElsewhere) << true << false;
    QTest::newRow("gone") << int(ICameraControlService::Gone) << false << false;
    QTest::newRow("none selected") << -1 << false << false;
}

void CameraPanelTest::testEntriesAreEnabledAsTheStateAllows()
{
    QFETCH(int, state);
    QFETCH(bool, canOpen);
    QFETCH(bool, canClose);
    const auto camera = m_control->plugIn("Ostrand-XQZ-2000-1");
    if (state >= 0) {
        m_selection->select(camera);
        m_control->setState(camera, ICameraControlService::CameraState(state));
    }
    m_commands->update();
    QCOMPARE(m_commands->openAction()->isEnabled(), canOpen);
    QCOMPARE(m_commands->closeAction()->isEnabled(), canClose);
}

void CameraPanelTest::testEntriesOpenAndCloseTheSelectedCamera()
{
    const auto first = m_control->plugIn("Ostrand-XQZ-2000-1");
    const auto second = m_control->plugIn("Ostrand-XQZ-2000-2");
    m_selection->select(second);
    m_menus->trigger(Core::CId("CameraSelector.Action.Open"));
    QTRY_COMPARE(m_control->state(second), ICameraControlService::Open);
    m_commands->update();
    m_menus->trigger(Core::CId("CameraSelector.Action.Close"));
    QTRY_COMPARE(m_control->state(second), ICameraControlService::Free);
    QCOMPARE(m_control->state(first), ICameraControlService::Free);
}

void CameraPanelTest::testListWithoutCamerasSaysWhatToDo()
{
    const auto *hint = m_panel->findChildren<QLabel *>().at(0);
    QVERIFY(!hint->isHidden());
    QCOMPARE(hint->text(), QString("Looking for cameras. Plug one in, and check its power and that "
                                   "its address is in a network of this computer."));
    m_control->plugIn("Ostrand-XQZ-2000-1");
    m_model->refresh();
    QVERIFY(hint->isHidden());
}

void CameraPanelTest::testProblemIsSaidBelowTheList()
{
    const auto *problem = m_panel->findChildren<QLabel *>().at(1);
    QVERIFY(problem->isHidden());
    m_panel->setProblem("camera A cannot be opened");
    QVERIFY(!problem->isHidden());
    QCOMPARE(problem->text(), QString("camera A cannot be opened"));
    m_panel->setProblem({});
    QVERIFY(problem->isHidden());
}

QTEST_MAIN(CameraPanelTest)

#include "CameraPanelTest.moc"
