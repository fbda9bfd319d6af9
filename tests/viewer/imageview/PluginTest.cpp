// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/appcore/CMenuService.h"
#include "plugins/camerapool/CCameraStatus.h"
#include "plugins/cameraselector/CDeviceSelectionService.h"
#include "plugins/imageview/CImageArea.h"
#include "plugins/imageview/CImagePane.h"
#include "plugins/imageview/CImageView.h"
#include "plugins/imageview/CLiveCamera.h"
#include "plugins/imageview/ImageViewPlugin.h"
#include "plugins/nerixviewer/IMessageService.h"
#include "support/CFakeCameraControl.h"
#include "support/CFakeCameraStatus.h"
#include "support/CFakeMainWindow.h"
#include "support/CSettingsSandbox.h"
#include "TestImage.h"

#include <pluginsystem/CServiceRegistry.h>

#include <memory>

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>

using ImageView::CImageArea;
using ImageView::CImagePane;
using Plugin::AppCore::CMenuService;
using Plugin::AppCore::IMenuControlService;

namespace {

// Writes down what is reported.
class CMessages : public Plugin::NerixViewer::IMessageService
{
public:
    void add(Severity severity, const QString &text) override
    {
        lines.append(QStringLiteral("%1 %2").arg(int(severity)).arg(text));
    }

    QStringList lines;
};

} // namespace

// The plug-in among the services of others: its view, its entries, its reports.
class PluginTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void testEntries();
    void testEntriesAreDisabledWithoutAnImage();
    void testEntriesZoomTheCurrentImage();
    void testEntriesZoomTheSelectedOfTwo();
    void testSavesWhatWasSeenWhenTheEntryWasChosen();
    void testSaveThatFailsIsToldInADialog_data();
    void testSaveThatFailsIsToldInADialog();
    void testFolderIsRememberedOnceSomethingIsSavedThere();
    void testFailedImagesAreReportedEachOnce();
    void testWithoutAWindowThereAreTheEntries();
    void testTakesAllAwayAtTheEnd();
    void testNeedsTheCameraPool();

private:
    void start();
    CImageArea *area() const;
    CImagePane *open(const char *identity);
    void give(CImagePane *pane, const Nerix::CGrabResultPtr &result);
    bool isEnabled(const char *id) const;
    int trigger(const char *id);
    QFileDialog *askForFile();
    void saveAs(const QString &path);

    std::unique_ptr<CSettingsSandbox> m_settings;
    QSharedPointer<CFakeCameraControl> m_control;
    QSharedPointer<CFakeCameraStatus> m_status;
    QSharedPointer<CameraPool::CImageNews> m_news;
    QSharedPointer<CameraSelector::CDeviceSelectionService> m_selection;
    QSharedPointer<CMenuService> m_menus;
    QSharedPointer<CMessages> m_messages;
    QSharedPointer<CFakeMainWindow> m_window;
    std::unique_ptr<PluginSystem::CServiceRegistry> m_registry;
    std::unique_ptr<ImageView::CImageViewPlugin> m_plugin;
};

void PluginTest::init()
{
    m_settings = std::make_unique<CSettingsSandbox>();
    m_control = QSharedPointer<CFakeCameraControl>::create();
    m_status = QSharedPointer<CFakeCameraStatus>::create();
    m_news = QSharedPointer<CameraPool::CImageNews>::create();
    m_selection = QSharedPointer<CameraSelector::CDeviceSelectionService>::create();
    m_menus = QSharedPointer<CMenuService>::create();
    m_menus->createActionContainer(Core::CId("NerixViewer.Menu.File"), "&File");
    m_menus->createActionContainer(Core::CId("NerixViewer.Menu.View"), "&View");
    m_messages = QSharedPointer<CMessages>::create();
    m_window = QSharedPointer<CFakeMainWindow>::create();
    m_registry = std::make_unique<PluginSystem::CServiceRegistry>();
    for (const QSharedPointer<QObject> &service : QList<QSharedPointer<QObject>>{
             m_control, m_status, m_news, m_selection, m_menus, m_messages}) {
        m_registry->addService(service);
    }
    m_plugin = std::make_unique<ImageView::CImageViewPlugin>();
}

void PluginTest::cleanup()
{
    m_plugin->uninitialize(m_registry.get());
    m_plugin.reset();
}

void PluginTest::start()
{
    m_registry->addService(m_window);
    QVERIFY(m_plugin->preInitialize(m_registry.get()));
    QVERIFY(m_plugin->initialize());
    area()->resize(640, 480);
    area()->show();
}

CImageArea *PluginTest::area() const
{
    return qobject_cast<CImageArea *>(m_window->centralView);
}

CImagePane *PluginTest::open(const char *identity)
{
    Q_EMIT m_status->deviceOpened(m_control->plugIn(identity));
    return area()->panes().constLast();
}

void PluginTest::give(CImagePane *pane, const Nerix::CGrabResultPtr &result)
{
    Q_EMIT m_news->resultArrived(pane->camera().info(), result);
    QVERIFY(QTest::qWaitFor([&] { return pane->view().image().result == result; }));
}

bool PluginTest::isEnabled(const char *id) const
{
    const auto entries = m_menus->entries();
    for (const auto &entry : entries) {
        if (entry.id == Core::CId(id)) {
            return entry.enabled;
        }
    }
    return false;
}

int PluginTest::trigger(const char *id)
{
    return int(m_menus->trigger(Core::CId(id)));
}

// Null if no dialog comes.
QFileDialog *PluginTest::askForFile()
{
    trigger("ImageView.Action.SaveImage");
    QFileDialog *dialog = nullptr;
    const bool hasCome = QTest::qWaitFor([&] {
        dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
        return dialog != nullptr;
    });
    return hasCome ? dialog : nullptr;
}

void PluginTest::saveAs(const QString &path)
{
    auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
    dialog->findChild<QLineEdit *>("fileNameEdit")->setText(path);
    QVERIFY(QMetaObject::invokeMethod(dialog, "accept"));
}

void PluginTest::testEntries()
{
    start();
    QStringList found;
    const auto entries = m_menus->entries();
    for (const auto &entry : entries) {
        found.append(entry.id.toString() + u'|' + entry.text + u'|' + entry.group.toString());
    }
    QCOMPARE(found,
             (QStringList{"ImageView.Action.SaveImage|Save Image...|NerixViewer.Group.File.Image",
                          "ImageView.Action.Fit|Fit Image|NerixViewer.Group.View.Image",
                          "ImageView.Action.ActualSize|100 %|NerixViewer.Group.View.Image",
                          "ImageView.Action.ZoomIn|Zoom In|NerixViewer.Group.View.Image",
                          "ImageView.Action.ZoomOut|Zoom Out|NerixViewer.Group.View.Image"}));
}

void PluginTest::testEntriesAreDisabledWithoutAnImage()
{
    start();
    CImagePane *pane = open("A");
    for (const char *id : {"ImageView.Action.SaveImage", "ImageView.Action.Fit",
                           "ImageView.Action.ActualSize", "ImageView.Action.ZoomIn"}) {
        QVERIFY(!isEnabled(id));
    }
    give(pane, greyResult({1, 2}));
    QVERIFY(isEnabled("ImageView.Action.SaveImage"));
    QVERIFY(isEnabled("ImageView.Action.ActualSize"));
    QVERIFY(!isEnabled("ImageView.Action.Fit")); // it is fitted already
    Q_EMIT m_control->closed(pane->camera().info());
    QVERIFY(!isEnabled("ImageView.Action.SaveImage"));
    QVERIFY(!isEnabled("ImageView.Action.ActualSize"));
}

void PluginTest::testEntriesZoomTheCurrentImage()
{
    start();
    CImagePane *pane = open("A");
    give(pane, greyResult(std::vector<std::uint8_t>(1000)));
    const auto scale = [pane] { return pane->view().transform().scale(); };
    const int triggered = int(IMenuControlService::TriggerResult::Triggered);
    QCOMPARE(trigger("ImageView.Action.ActualSize"), triggered);
    QCOMPARE(scale(), 1.0);
    QVERIFY(!isEnabled("ImageView.Action.ActualSize"));
    QCOMPARE(trigger("ImageView.Action.ZoomIn"), triggered);
    QCOMPARE(scale(), 1.5);
    QCOMPARE(trigger("ImageView.Action.ZoomOut"), triggered);
    QCOMPARE(trigger("ImageView.Action.ZoomOut"), triggered);
    QCOMPARE(scale(), 0.75);
    QCOMPARE(trigger("ImageView.Action.Fit"), triggered);
    QVERIFY(pane->view().transform().isFit());
}

void PluginTest::testEntriesZoomTheSelectedOfTwo()
{
    start();
    CImagePane *first = open("A");
    CImagePane *second = open("B");
    give(first, greyResult({1, 2}));
    give(second, greyResult({1, 2}));
    QVERIFY(!isEnabled("ImageView.Action.ActualSize"));
    m_selection->select(second->camera().info());
    trigger("ImageView.Action.ActualSize");
    QVERIFY(first->view().transform().isFit());
    QCOMPARE(second->view().transform().scale(), 1.0);
}

void PluginTest::testSavesWhatWasSeenWhenTheEntryWasChosen()
{
    const QTemporaryDir folder;
    start();
    CImagePane *pane = open("A/1");
    give(pane, greyResult({1, 2, 3}));
    const QFileDialog *dialog = askForFile();
    QVERIFY(dialog);
    QVERIFY(!dialog->testOption(QFileDialog::DontConfirmOverwrite));
    const QString suggested = QFileInfo(dialog->selectedFiles().value(0)).fileName();
    QVERIFY2(suggested.startsWith("A_1 20") && suggested.endsWith(".png"), qPrintable(suggested));

    give(pane, greyResult({4}));
    const QString path = folder.filePath("seen.png");
    saveAs(path);
    QVERIFY(QTest::qWaitFor([&] { return !m_messages->lines.isEmpty(); }));
    QCOMPARE(m_messages->lines, QStringList{"0 Image saved: " + path});
    QCOMPARE(QImage(path).size(), QSize(3, 1));
}

void PluginTest::testSaveThatFailsIsToldInADialog_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("end");

    QTest::newRow("in a folder that is none") << "none/image.png"
                                              << "): choose another folder, or make room";
    QTest::newRow("in a format that is not written")
        << "image.jpg"
        << " is not the name of a PNG or TIFF file: give it one that ends with .png or .tif";
}

void PluginTest::testSaveThatFailsIsToldInADialog()
{
    QFETCH(QString, file);
    QFETCH(QString, end);
    const QTemporaryDir folder;
    const QString path = folder.filePath(file);
    start();
    give(open("A"), greyResult({1, 2, 3}));
    QVERIFY(askForFile());
    saveAs(path);
    QMessageBox *box = nullptr;
    QVERIFY(QTest::qWaitFor([&] {
        box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        return box != nullptr;
    }));
    QVERIFY2(box->text().startsWith(path) && box->text().endsWith(end), qPrintable(box->text()));
    QCOMPARE(m_messages->lines, QStringList{"2 " + box->text()});
    QVERIFY(!QFileInfo::exists(path));
    box->close();
}

void PluginTest::testFolderIsRememberedOnceSomethingIsSavedThere()
{
    const QTemporaryDir folder;
    start();
    give(open("A"), greyResult({1, 2, 3}));
    const auto offered = [this] { return askForFile()->directory().absolutePath(); };
    const QString usual = offered();
    QVERIFY(usual != folder.path());
    saveAs(folder.filePath("image.jpg"));
    QVERIFY(QTest::qWaitFor(
        [] { return qobject_cast<QMessageBox *>(QApplication::activeModalWidget()) != nullptr; }));
    QApplication::activeModalWidget()->close();
    QCOMPARE(offered(), usual);
    saveAs(folder.filePath("image.png"));
    QVERIFY(QTest::qWaitFor([&] { return m_messages->lines.size() == 2; }));
    QCOMPARE(offered(), folder.path());
    QApplication::activeModalWidget()->close();
}

void PluginTest::testFailedImagesAreReportedEachOnce()
{
    start();
    CImagePane *pane = open("A");
    for (const char *text : {"Packets were lost.", "Packets were lost.", "It came too late."}) {
        Q_EMIT m_news->resultArrived(pane->camera().info(), failedResult(1, text));
    }
    QVERIFY(QTest::qWaitFor([&] { return m_messages->lines.size() >= 3; }));
    QCOMPARE(m_messages->lines, (QStringList{"1 A: Packets were lost.", "1 A: Packets were lost.",
                                             "1 A: It came too late."}));
}

void PluginTest::testWithoutAWindowThereAreTheEntries()
{
    QVERIFY(m_plugin->preInitialize(m_registry.get()));
    QVERIFY(m_plugin->initialize());
    QCOMPARE(m_menus->entries().size(), 5);
    Q_EMIT m_status->deviceOpened(m_control->plugIn("A"));
    QVERIFY(!isEnabled("ImageView.Action.SaveImage"));
}

void PluginTest::testTakesAllAwayAtTheEnd()
{
    start();
    open("A");
    QVERIFY(m_plugin->uninitialize(m_registry.get()));
    QVERIFY(m_menus->entries().isEmpty());
    QVERIFY(m_window->centralView.isNull());
}

void PluginTest::testNeedsTheCameraPool()
{
    m_registry->removeService(m_news);
    QVERIFY(m_plugin->preInitialize(m_registry.get()));
    QVERIFY(!m_plugin->initialize());
}

QTEST_MAIN(PluginTest)
#include "PluginTest.moc"
