// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// The two functions by which Qt's plug-in loader reaches the plug-in.

#include "CUsageTrackingPlugin.h"
#include "PluginMetadata.h"

#include <exception>

#include <QDebug>
#include <QPointer>
#include <QtPlugin>

/// The metadata block. Static storage, never freed.
extern "C" Q_DECL_EXPORT const char *qt_plugin_query_metadata()
{
    return reinterpret_cast<const char *>(pluginMetadata);
}

/// The one plug-in object, made on the first call and again if it was deleted since. The caller
/// owns it. Null if it could not be made. GUI thread.
extern "C" Q_DECL_EXPORT QObject *qt_plugin_instance()
{
    static QPointer<QObject> instance;
    if (!instance) {
        try {
            instance = new Plugin::UsageTracking::CUsageTrackingPlugin;
        } catch (const std::exception &exception) {
            qCritical("UsageTracking could not be created: %s", exception.what());
        } catch (...) {
            qCritical("UsageTracking could not be created");
        }
    }
    return instance;
}
