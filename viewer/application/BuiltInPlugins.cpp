// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "application/BuiltInPlugins.h"

#include "application/CommandLine.h"
#include "application/Folders.h"
#include "plugins/appcore/AppCorePlugin.h"
#include "plugins/camerapool/CameraPoolPlugin.h"
#include "plugins/cameraselector/CameraSelectorPlugin.h"
#include "plugins/featurefiles/FeatureFilesPlugin.h"
#include "plugins/featuretree/FeatureTreePlugin.h"
#include "plugins/grabbing/GrabbingPlugin.h"
#include "plugins/help/HelpPlugin.h"
#include "plugins/imageview/ImageViewPlugin.h"
#include "plugins/localization/LocalizationPlugin.h"
#include "plugins/nerixviewer/NerixViewerPlugin.h"
#include "plugins/nerixwelcome/NerixWelcomePlugin.h"
#include "plugins/parametercollectionpool/ParameterCollectionPoolPlugin.h"
#include "plugins/settings/SettingsPlugin.h"
#include "plugins/usagedatalog/UsageDataLogPlugin.h"
#include "policy/CUsagePolicy.h"

#include <pluginsystem/CPluginManager.h>

#include <initializer_list>
#include <memory>

namespace Application {

namespace {

using PluginSystem::CPluginManager;
using PluginSystem::PluginMetaData;

const QVersionNumber pluginVersion(7, 1, 0);
const QVersionNumber oldestCompatibleVersion(7, 0, 0);

PluginMetaData metaData(const char *name, const char *description,
                        std::initializer_list<const char *> dependencies)
{
    PluginMetaData data;
    data.name = QString::fromLatin1(name);
    data.version = pluginVersion;
    data.compatVersion = oldestCompatibleVersion;
    data.vendor = QStringLiteral("Ostrand");
    data.description = QString::fromLatin1(description);
    data.required = true;
    for (const char *dependency : dependencies) {
        data.dependencies.append({QString::fromLatin1(dependency), pluginVersion});
    }
    return data;
}

template <class Type, class... Arguments>
PluginSystem::PluginFactory factory(const Arguments &...arguments)
{
    return [=] { return std::make_unique<Type>(arguments...); };
}

void addFoundations(CPluginManager &manager, const CommandLine &commandLine)
{
    using namespace Plugin;
    const auto setLanguage = [&manager](const QString &language) { manager.setLanguage(language); };

    manager.addBuiltIn(metaData("Settings", "Where the settings are kept.", {}),
                       factory<Settings::CSettingsPlugin>(commandLine.settingsFolder));
    manager.addBuiltIn(metaData("Localization", "The language of all plug-ins.", {"Settings"}),
                       factory<Localization::CLocalizationPlugin>(
                           Localization::CLanguageService::Switch(setLanguage)));
    manager.addBuiltIn(metaData("AppCore", "Menus and actions.", {"Localization"}),
                       factory<AppCore::CAppCorePlugin>());
}

void addApplication(CPluginManager &manager, const CommandLine &commandLine)
{
    using namespace Plugin;
    const auto mode = commandLine.showsWindows ? NerixViewer::WindowMode::WithWindows
                                               : NerixViewer::WindowMode::WithoutWindows;
    const auto policy = Policy::CUsagePolicy::read();
    manager.addBuiltIn(metaData("NerixViewer", "The application and its menus.", {"AppCore"}),
                       factory<NerixViewer::CNerixViewerPlugin>(mode));
    manager.addBuiltIn(metaData("NerixWelcome", "The welcome screen.", {"NerixViewer"}),
                       factory<NerixWelcome::CNerixWelcomePlugin>(policy));
    manager.addBuiltIn(metaData("Help", "Documents and web addresses.", {"NerixViewer"}),
                       factory<Help::CHelpPlugin>(documentFolder()));
    manager.addBuiltIn(
        metaData("UsageDataLog", "What is recorded of how the viewer is used.", {"NerixWelcome"}),
        factory<UsageDataLog::CUsageDataLogPlugin>(eventsTool(), policy));
}

void addCameras(CPluginManager &manager)
{
    manager.addBuiltIn(metaData("CameraPool", "Finds, opens and closes cameras.", {"Settings"}),
                       factory<CameraPool::CCameraPoolPlugin>());
    manager.addBuiltIn(
        metaData("ParameterCollectionPool", "The parameters of open cameras.", {"CameraPool"}),
        factory<ParameterCollectionPool::CParameterCollectionPoolPlugin>());
    manager.addBuiltIn(
        metaData("CameraSelector", "Which device is selected.", {"CameraPool", "NerixViewer"}),
        factory<CameraSelector::CCameraSelectorPlugin>());
    manager.addBuiltIn(metaData("FeatureTree", "The features of the selected camera.",
                                {"ParameterCollectionPool", "CameraSelector", "NerixViewer"}),
                       factory<FeatureTree::CFeatureTreePlugin>());
    manager.addBuiltIn(
        metaData("FeatureFiles", "Saves and loads the features of a camera.", {"FeatureTree"}),
        factory<FeatureFiles::CFeatureFilesPlugin>());
}

void addImages(CPluginManager &manager)
{
    manager.addBuiltIn(
        metaData("Grabbing", "Grabs with the selected camera.", {"CameraSelector", "NerixViewer"}),
        factory<Grabbing::CGrabbingPlugin>());
    manager.addBuiltIn(
        metaData("ImageView", "The images of open cameras.", {"CameraSelector", "NerixViewer"}),
        factory<ImageView::CImageViewPlugin>());
}

} // namespace

void addBuiltInPlugins(CPluginManager &manager, const CommandLine &commandLine)
{
    addFoundations(manager, commandLine);
    addApplication(manager, commandLine);
    addCameras(manager);
    addImages(manager);
}

} // namespace Application
