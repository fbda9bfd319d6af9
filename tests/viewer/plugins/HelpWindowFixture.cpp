// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "HelpWindowFixture.h"

#include "plugins/appcore/IMenuControlService.h"
#include "support/CTestWindows.h"

#include <Core/Plugin/ServiceLookup.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QTest>

using Plugin::AppCore::IMenuControlService;
using Plugin::Help::CHelpBrowser;
using Plugin::Help::CHelpWindow;

namespace {

const QByteArray contents = "<!-- A note -->\n"
                            "<!-- And one more -->\n"
                            "# The Contents\n"
                            "\n"
                            "Some **bold** words.\n"
                            "\n"
                            "[Cameras](cameras.md) [Statement](docs/privacy.md#how-to-withdraw) "
                            "[FAQ](https://ostrand.example/faq)\n";

const QByteArray cameras = "# Cameras\n\nOne camera, two cameras, and a third CAMERA.\n";

// Longer than the window is high.
QByteArray privacy()
{
    return "# Privacy\n\n" + QByteArray("Words.\n\n").repeated(200)
           + "## How to withdraw\n\nLike this.\n\n" + QByteArray("More.\n\n").repeated(200);
}

} // namespace

HelpWindowFixture::HelpWindowFixture()
{
    QSettings().setValue("Localization/Language", "en"); // whatever the system speaks
    write("help.md", contents);
    write("cameras.md", cameras);
    write("privacy.md", privacy());
}

HelpWindowFixture::~HelpWindowFixture()
{
    if (plugin) {
        plugin->uninitialize(&registry);
        plugin.reset();
    }
}

void HelpWindowFixture::write(const char *name, const QByteArray &text)
{
    QFile file(m_folder.filePath(QString::fromLatin1(name)));
    QVERIFY(QDir().mkpath(QFileInfo(file).path()));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(text), qint64(text.size()));
}

void HelpWindowFixture::start()
{
    registry.addService(QSharedPointer<CTestWindows>::create());
    m_localization =
        std::make_unique<Plugin::Localization::CLocalizationPlugin>([](const QString &) {});
    m_appCore = std::make_unique<Plugin::AppCore::CAppCorePlugin>();
    plugin = std::make_unique<Plugin::Help::CHelpPlugin>(m_folder.path());
    QVERIFY(m_localization->preInitialize(&registry));
    QVERIFY(m_appCore->preInitialize(&registry));
    QVERIFY(plugin->preInitialize(&registry));
    const auto menus = Core::Plugin::findService<IMenuControlService>(&registry);
    menus->createActionContainer(Core::CId("NerixViewer.Menu.Help"), QStringLiteral("Help"));
    QVERIFY(plugin->initialize());
}

void HelpWindowFixture::setLanguage(const char *language)
{
    const auto languages =
        Core::Plugin::findService<Plugin::Localization::ILanguageService>(&registry);
    languages->setLanguage(QString::fromLatin1(language));
}

void HelpWindowFixture::trigger(const char *id)
{
    const auto menus = Core::Plugin::findService<IMenuControlService>(&registry);
    QCOMPARE(menus->trigger(Core::CId(id)), IMenuControlService::TriggerResult::Triggered);
}

// The keys that walk from link to link and follow one.
void HelpWindowFixture::press(const char *link)
{
    QVERIFY(QTest::qWaitForWindowActive(window()));
    constexpr int enough = 10;
    for (int steps = 0; steps < enough; ++steps) {
        QTest::keyClick(browser(), Qt::Key_Tab);
        if (browser()->textCursor().selectedText() == QLatin1String(link)) {
            QTest::keyClick(browser(), Qt::Key_Return);
            return;
        }
    }
    QFAIL("no such link");
}

CHelpWindow *HelpWindowFixture::window() const
{
    const auto widgets = QApplication::topLevelWidgets();
    for (QWidget *widget : widgets) {
        if (auto *found = qobject_cast<CHelpWindow *>(widget)) {
            return found;
        }
    }
    return nullptr;
}

CHelpBrowser *HelpWindowFixture::browser() const
{
    return window()->browser();
}
