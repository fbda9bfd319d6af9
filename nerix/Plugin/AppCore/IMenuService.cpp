// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include <Plugin/AppCore/IMenuService.h>

namespace Plugin {
namespace AppCore {

IMenuService::IMenuService(QObject *parent)
    : QObject(parent)
{}

IMenuService::~IMenuService() = default;

} // namespace AppCore
} // namespace Plugin
