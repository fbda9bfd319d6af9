// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "application/CViewer.h"

#include <memory>

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QProcess>
#include <QQuickItem>
#include <QQuickWidget>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <QTest>

// A user who has nothing but a keyboard answers on the first start, and withdraws later: the whole
// viewer with its windows, the real plug-in and the real analytics library.
class FirstStartTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void testYesByKeyboardBeginsTheRecording();
    void testNoByKeyboardRecordsNothing();
    void testHelpEntryReopensThePageAndWithdraws();

private:
    QWidget *window(const char *name) const;
    void waitForThePage();
    QQuickWidget *page() const;
    QString focus() const;
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {});
    void walkTo(const char *name);
    void answer(const char *tile);
    void openFromTheHelpMenu();
    QStringList records() const;

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<Application::CViewer> m_viewer;
};

namespace {

constexpr int waitLimit = 30000;

} // namespace

void FirstStartTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    qputenv("XDG_DATA_HOME", m_folder->path().toUtf8());
    Application::CommandLine options;
    options.pluginFolders.append(QStringLiteral(NERIX_BUILD_DIR "/lib/nerix/plugins"));
    options.settingsFolder = m_folder->path();
    options.showsWindows = true;
    m_viewer = std::make_unique<Application::CViewer>(options);
    m_viewer->start();
    waitForThePage();
}

void FirstStartTest::cleanup()
{
    m_viewer->shutDown();
    m_viewer.reset();
    m_folder.reset();
}

QWidget *FirstStartTest::window(const char *name) const
{
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (window->isVisible() && window->objectName() == QLatin1String(name)) {
            return window;
        }
    }
    return nullptr;
}

void FirstStartTest::waitForThePage()
{
    QTRY_VERIFY_WITH_TIMEOUT(window("welcomeWindow"), waitLimit);
    QTRY_COMPARE_WITH_TIMEOUT(QApplication::activeWindow(), window("welcomeWindow"), waitLimit);
}

QQuickWidget *FirstStartTest::page() const
{
    return window("welcomeWindow")->findChild<QQuickWidget *>(QStringLiteral("page"));
}

QString FirstStartTest::focus() const
{
    const QQuickItem *item = page()->quickWindow()->activeFocusItem();
    return item ? item->objectName() : QString();
}

void FirstStartTest::press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
}

void FirstStartTest::walkTo(const char *name)
{
    constexpr int enough = 20;
    for (int steps = 0; steps < enough && focus() != QLatin1String(name); ++steps) {
        press(Qt::Key_Tab);
    }
    QCOMPARE(focus(), QString::fromLatin1(name));
}

void FirstStartTest::answer(const char *tile)
{
    walkTo(tile);
    press(Qt::Key_Space);
    walkTo("applyButton");
    press(Qt::Key_Return);
    walkTo("closeButton");
    press(Qt::Key_Return);
    QVERIFY(!window("welcomeWindow"));
}

QStringList FirstStartTest::records() const
{
    QProcess program;
    program.start(RUI_EVENTS, {"--raw", m_folder->filePath("Ostrand/nerix-viewer")});
    program.waitForFinished(waitLimit);
    return QString::fromUtf8(program.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts);
}

// Alt+H, then down to the entry.
void FirstStartTest::openFromTheHelpMenu()
{
    QWidget *main = nullptr;
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget *candidate : windows) {
        if (candidate->windowTitle() == QLatin1String("Nerix Viewer")) {
            main = candidate;
        }
    }
    QVERIFY(main);
    main->activateWindow();
    QTRY_COMPARE_WITH_TIMEOUT(QApplication::activeWindow(), main, waitLimit);
    QTest::keyClick(main, Qt::Key_H, Qt::AltModifier);
    auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    QVERIFY(menu);
    const int enough = menu->actions().size();
    for (int steps = 0; steps < enough; ++steps) {
        if (menu->activeAction() && menu->activeAction()->text() == QLatin1String("Data Privacy")) {
            QTest::keyClick(menu, Qt::Key_Return);
            return;
        }
        QTest::keyClick(menu, Qt::Key_Down);
    }
    QFAIL("the menu has no such entry");
}

void FirstStartTest::testYesByKeyboardBeginsTheRecording()
{
    press(Qt::Key_Escape);
    QVERIFY(window("welcomeWindow"));
    answer("yesCheckbox");
    QTRY_COMPARE_WITH_TIMEOUT(records().size(), 2, waitLimit);
    m_viewer->shutDown();
    QCOMPARE(records(),
             QStringList({"GeneralEvent\tSessionStarted\t{\"EventCategory\":\"GeneralEvent\","
                          "\"EventName\":\"SessionStarted\"}",
                          "GeneralEvent\tInitialCameraCount\t{\"EventCategory\":\"GeneralEvent\","
                          "\"EventName\":\"InitialCameraCount\",\"InitialCameraCount\":0}",
                          "GeneralEvent\tSessionEnded\t{\"EventCategory\":\"GeneralEvent\","
                          "\"EventName\":\"SessionEnded\",\"FinalCameraCount\":0,"
                          "\"TotalUsedCameraCount\":0}"}));
}

void FirstStartTest::testNoByKeyboardRecordsNothing()
{
    answer("noCheckbox");
    m_viewer->shutDown();
    QCOMPARE(records(), QStringList());
}

void FirstStartTest::testHelpEntryReopensThePageAndWithdraws()
{
    answer("yesCheckbox");
    QTRY_VERIFY_WITH_TIMEOUT(!records().isEmpty(), waitLimit);

    openFromTheHelpMenu();
    waitForThePage();
    answer("noCheckbox");
    // What was recorded is deleted; the record of the withdrawal stays.
    QTRY_VERIFY_WITH_TIMEOUT(!records().join('\n').contains("SessionStarted"), waitLimit);
    m_viewer->shutDown();
    QCOMPARE(records(), QStringList("ruiSDK\tOptOut\t"));
}

int main(int argc, char **argv)
{
    qputenv("LC_ALL", "C");
    const QApplication application(argc, argv);
    FirstStartTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "FirstStartTest.moc"
