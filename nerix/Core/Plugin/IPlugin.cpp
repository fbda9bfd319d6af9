// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include <Core/Plugin/IPlugin.h>

namespace Core {
namespace Plugin {

IPlugin::IPlugin(QObject *parent)
    : QObject(parent)
{}

IPlugin::~IPlugin() = default;

bool IPlugin::checkPluginClosability()
{
    return true;
}

void IPlugin::aboutToUninitialize() {}

} // namespace Plugin
} // namespace Core
