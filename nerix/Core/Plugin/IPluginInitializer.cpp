// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include <Core/Plugin/IPluginInitializer.h>

namespace Core {
namespace Plugin {

IPluginInitializer::IPluginInitializer(QObject *parent)
    : QObject(parent)
{}

IPluginInitializer::~IPluginInitializer() = default;

} // namespace Plugin
} // namespace Core
