// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/nerixviewer/CApplicationService.h"

namespace Plugin {
namespace NerixViewer {

CApplicationService::CApplicationService(QObject *parent)
    : IApplicationService(parent)
{}

CApplicationService::~CApplicationService() = default;

void CApplicationService::requestQuit()
{
    Q_EMIT quitRequested();
}

} // namespace NerixViewer
} // namespace Plugin
