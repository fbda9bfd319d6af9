// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "CFeatureFolder.h"
#include "CFeatureRig.h"
#include "plugins/appcore/CMenuService.h"
#include "plugins/featurefiles/CFeatureFileEntries.h"
#include "support/CMessageCount.h"
#include "support/CSettingsSandbox.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QLabel>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>

using namespace FeatureFiles;
using namespace ParameterCollection;
using Plugin::AppCore::CMenuService;

// The entries of the File menu and their dialogs.
class FeatureFilesPluginTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void testEntriesStandInTheFileMenu();
    void testEntriesAreEnabledWhileTheSelectedCameraIsOpen();
    void testEntriesFollowACameraThatIsRenamed();
    void testFeaturesAreSavedUnderTheNameOfTheCamera();
    void testFeaturesAreLoadedAndToldInOneLine();
    void testWhatWasNotSetIsListedAndCanBeCopied();
    void testWhatWasLeftAloneIsToldInALineOfItsOwnAndInTheDialog();
    void testWrongFileIsTold();
    void testLoadingCanBeCancelledAndTheWindowGoesOnMeanwhile();
    void testFolderIsRemembered();
    void testWithoutWindowsNoDialogIsOpened();

private:
    void create(bool hasWindows = true);
    bool openCamera();
    QAction *action(const char *name) const;
    bool choose(const char *name, const QString &file);

    QScopedPointer<CSettingsSandbox> m_settings;
    QScopedPointer<CFeatureFolder> m_folder;
    QScopedPointer<CFeatureRig> m_rig;
    QScopedPointer<CMenuService> m_menus;
    QScopedPointer<QWidget> m_window;
    QScopedPointer<CFeatureFileEntries> m_entries;
    QSharedPointer<CLiveText> m_label;
    QSharedPointer<CLiveText> m_locked;
};

namespace {

// The dialog of this kind that is shown; null if there is none.
template <class Dialog>
Dialog *shown()
{
    const auto all = QApplication::topLevelWidgets();
    for (QWidget *widget : all) {
        auto *dialog = qobject_cast<Dialog *>(widget);
        if (dialog && dialog->isVisible()) {
            return dialog;
        }
    }
    return nullptr;
}

} // namespace

void FeatureFilesPluginTest::init()
{
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    m_settings.reset(new CSettingsSandbox);
    m_folder.reset(new CFeatureFolder);
    m_rig.reset(new CFeatureRig);
    m_label = m_rig->add<CLiveText>("Label", InterfaceString, "left");
    m_locked = m_rig->add<CLiveText>("Locked", InterfaceString, "old");
    m_locked->change(
        [](CLiveState &state) { state.setRefusal = "@CameraDevice/Locked: it is locked now"; });
    m_rig->collection->stream =
        "# nerix feature stream 1: 1 features, 0 not readable\nLabel\tleft\n";
    m_window.reset(new QWidget);
    m_window->show();
}

void FeatureFilesPluginTest::cleanup()
{
    m_entries.reset();
    m_menus.reset();
    m_window.reset();
    m_rig.reset();
    m_folder.reset();
    m_settings.reset();
}

void FeatureFilesPluginTest::create(bool hasWindows)
{
    m_menus.reset(new CMenuService);
    m_menus->createActionContainer(Core::CId("NerixViewer.Menu.File"), "File");
    CFeatureFileEntries::Services services;
    services.selection = m_rig->deviceSelection;
    services.control = m_rig->control;
    services.status = m_rig->status;
    services.parameters = m_rig->parameters;
    services.messages = m_rig->messages;
    services.hasWindows = hasWindows;
    services.window = m_window.data();
    m_entries.reset(new CFeatureFileEntries(*m_menus, services));
}

bool FeatureFilesPluginTest::openCamera()
{
    m_rig->deviceSelection->select(m_rig->camera);
    return m_rig->openCamera();
}

QAction *FeatureFilesPluginTest::action(const char *name) const
{
    const auto actions = m_entries->findChildren<QAction *>();
    for (QAction *candidate : actions) {
        if (candidate->text() == name) {
            return candidate;
        }
    }
    return nullptr;
}

// Chooses the entry, and a file in its dialog.
bool FeatureFilesPluginTest::choose(const char *name, const QString &file)
{
    action(name)->trigger();
    auto *dialog = shown<QFileDialog>();
    if (!dialog) {
        return false;
    }
    dialog->selectFile(file);
    QMetaObject::invokeMethod(dialog, "accept");
    return QTest::qWaitFor([] { return !shown<QFileDialog>(); });
}

void FeatureFilesPluginTest::testEntriesStandInTheFileMenu()
{
    create();
    QStringList entries;
    for (const auto &entry : m_menus->entries()) {
        entries.append(entry.menu.toString() + ' ' + entry.group.toString() + ' '
                       + entry.id.toString() + ' ' + entry.text);
    }
    QCOMPARE(entries, (QStringList{"NerixViewer.Menu.File NerixViewer.Group.File.Features "
                                   "FeatureFiles.Action.Save Save Features...",
                                   "NerixViewer.Menu.File NerixViewer.Group.File.Features "
                                   "FeatureFiles.Action.Load Load Features..."}));
    m_entries.reset();
    QVERIFY(m_menus->entries().isEmpty());
}

void FeatureFilesPluginTest::testEntriesAreEnabledWhileTheSelectedCameraIsOpen()
{
    create();
    const QAction *save = action("Save &Features...");
    const QAction *load = action("&Load Features...");
    QVERIFY(!save->isEnabled() && !load->isEnabled());
    QVERIFY(openCamera());
    QVERIFY(save->isEnabled() && load->isEnabled());
    m_rig->deviceSelection->select({});
    QVERIFY(!save->isEnabled() && !load->isEnabled());
    m_rig->deviceSelection->select(m_rig->camera);
    QVERIFY(save->isEnabled() && load->isEnabled());
    QVERIFY(m_rig->closeCamera());
    QVERIFY(!save->isEnabled() && !load->isEnabled());
}

void FeatureFilesPluginTest::testEntriesFollowACameraThatIsRenamed()
{
    create();
    m_rig->deviceSelection->select(m_rig->camera);
    m_rig->camera = m_rig->control->rename(m_rig->camera, "Line3");
    QVERIFY(m_rig->openCamera());
    QVERIFY(action("Save &Features...")->isEnabled());
    action("Save &Features...")->trigger();
    QVERIFY(shown<QFileDialog>());
    QVERIFY(shown<QFileDialog>()->selectedFiles().first().endsWith("/Line3.features"));
}

void FeatureFilesPluginTest::testFeaturesAreSavedUnderTheNameOfTheCamera()
{
    create();
    QVERIFY(openCamera());
    action("Save &Features...")->trigger();
    auto *dialog = shown<QFileDialog>();
    QVERIFY(dialog);
    QVERIFY(dialog->selectedFiles().first().endsWith("/A-1.features"));
    dialog->selectFile(m_folder->path("mine")); // the suffix is added
    QMetaObject::invokeMethod(dialog, "accept");
    const QString path = m_folder->path("mine.features");
    QTRY_COMPARE(m_rig->messages->texts, QStringList{"The features of A-1 are saved in " + path});
    QCOMPARE(m_folder->read("mine.features"),
             QByteArray("# nerix feature stream 1: 1 features, 0 not readable\nLabel\tleft\n"));
}

void FeatureFilesPluginTest::testFeaturesAreLoadedAndToldInOneLine()
{
    create();
    QVERIFY(openCamera());
    const QString path = m_folder->write("in.features", {"Label\tright"});
    QVERIFY(choose("&Load Features...", path));
    QTRY_COMPARE(
        m_rig->messages->texts,
        QStringList{"A-1, features from " + path + ": 1 set, 0 unchanged, 0 read-only, 0 not set"});
    QCOMPARE(m_label->sets(), QStringList{"right"});
    QVERIFY(!m_label->wasUsedIn(QThread::currentThread()));
    QVERIFY(!shown<QDialog>());
}

void FeatureFilesPluginTest::testWhatWasNotSetIsListedAndCanBeCopied()
{
    create();
    QVERIFY(openCamera());
    const QString path = m_folder->write("in.features", {"Label\tright", "Locked\tnew"});
    QVERIFY(choose("&Load Features...", path));
    QTRY_VERIFY(shown<QDialog>() && shown<QDialog>()->findChild<QTreeWidget *>());
    QDialog *dialog = shown<QDialog>();
    const auto *list = dialog->findChild<QTreeWidget *>();
    QCOMPARE(list->topLevelItemCount(), 1);
    QCOMPARE(list->topLevelItem(0)->text(0), QString("Locked"));
    QCOMPARE(list->topLevelItem(0)->text(1), QString("it is locked now"));
    const auto buttons = dialog->findChildren<QPushButton *>();
    for (QPushButton *button : buttons) {
        if (button->text() == "&Copy") {
            QTest::mouseClick(button, Qt::LeftButton);
        }
    }
    QCOMPARE(QApplication::clipboard()->text(), QString("Locked\tit is locked now\n"));
    QVERIFY(
        m_rig->messages->texts.first().endsWith(": 1 set, 0 unchanged, 0 read-only, 1 not set"));
    QTest::keyClick(dialog, Qt::Key_Escape);
    QTRY_VERIFY(!shown<QDialog>());
}

void FeatureFilesPluginTest::testWhatWasLeftAloneIsToldInALineOfItsOwnAndInTheDialog()
{
    const auto name = m_rig->add<CLiveText>("DeviceUserID", InterfaceString, "Line4");
    const auto address = m_rig->add<CLiveText>("GevSCDA", InterfaceString, "2130706433");
    create();
    QVERIFY(openCamera());
    const QString path = m_folder->write(
        "in.features", {"DeviceID\tB2", "DeviceUserID\tLine3", "GevSCDA\t0", "Locked\tnew"});
    QVERIFY(choose("&Load Features...", path));
    QTRY_VERIFY(shown<QDialog>() && shown<QDialog>()->findChild<QTreeWidget *>());
    const QString hint =
        "left alone: DeviceUserID; the file is not from this camera, so set them by hand";
    const QString connectionHint =
        "left alone: GevSCDA; what belongs to the connection is never loaded";
    QCOMPARE(m_rig->messages->texts.mid(1),
             (QStringList{"A-1, " + hint, "A-1, " + connectionHint}));
    QVERIFY(shown<QDialog>()->findChild<QLabel *>()->text().endsWith('\n' + hint + '\n'
                                                                     + connectionHint));
    QCOMPARE(name->sets() + address->sets(), QStringList());
    QTest::keyClick(shown<QDialog>(), Qt::Key_Escape);
    QTRY_VERIFY(!shown<QDialog>());
}

void FeatureFilesPluginTest::testWrongFileIsTold()
{
    create();
    QVERIFY(openCamera());
    const QString path = m_folder->writeRaw("in.features", "GIF89a");
    QVERIFY(choose("&Load Features...", path));
    QTRY_VERIFY(shown<QMessageBox>());
    const QString reason = "file " + path
                           + " holds no features: this is no feature stream of version 1: its "
                             "first line must begin with \"# nerix feature stream 1:\"";
    QCOMPARE(shown<QMessageBox>()->text(), reason);
    QCOMPARE(m_rig->messages->texts, QStringList{reason});
    QCOMPARE(m_label->sets(), QStringList());
}

void FeatureFilesPluginTest::testLoadingCanBeCancelledAndTheWindowGoesOnMeanwhile()
{
    create();
    QVERIFY(openCamera());
    m_label->hold();
    const QString path = m_folder->write("in.features", {"Label\tright", "Locked\tnew"});
    QVERIFY(choose("&Load Features...", path));
    QTRY_VERIFY(m_label->isWaitedFor());
    QTRY_VERIFY(shown<QProgressDialog>()); // of its own after a while
    QVERIFY(!action("&Load Features...")->isEnabled());
    QTest::keyClick(shown<QProgressDialog>(), Qt::Key_Escape);
    m_label->release();
    QTRY_COMPARE(m_rig->messages->texts,
                 QStringList{"A-1, features from " + path
                             + ": 1 set, 0 unchanged, 0 read-only, 0 not set; cancelled"});
    QCOMPARE(m_locked->sets(), QStringList());
    QVERIFY(action("&Load Features...")->isEnabled());
    QVERIFY(!shown<QProgressDialog>());
}

void FeatureFilesPluginTest::testFolderIsRemembered()
{
    create();
    QVERIFY(openCamera());
    QVERIFY(choose("Save &Features...", m_folder->path("one")));
    QTRY_COMPARE(m_rig->messages->texts.size(), 1);
    create();
    action("&Load Features...")->trigger();
    QVERIFY(shown<QFileDialog>());
    QCOMPARE(shown<QFileDialog>()->directory().absolutePath(),
             QFileInfo(m_folder->path("one")).absolutePath());
}

void FeatureFilesPluginTest::testWithoutWindowsNoDialogIsOpened()
{
    create(false);
    QVERIFY(openCamera());
    const CMessageCount messages;
    action("Save &Features...")->trigger();
    QVERIFY(!shown<QDialog>());
    QCOMPARE(messages.count(), 1);
}

QTEST_MAIN(FeatureFilesPluginTest)
#include "FeatureFilesPluginTest.moc"
