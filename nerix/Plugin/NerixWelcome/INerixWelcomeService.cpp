// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include <Plugin/NerixWelcome/INerixWelcomeService.h>

namespace Plugin {
namespace NerixWelcome {

INerixWelcomeService::INerixWelcomeService(QObject *parent)
    : QObject(parent)
{}

INerixWelcomeService::~INerixWelcomeService() = default;

} // namespace NerixWelcome
} // namespace Plugin
