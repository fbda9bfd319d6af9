// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "plugins/nerixviewer/IApplicationService.h"

namespace Plugin {
namespace NerixViewer {

/// Passes requests on to whoever runs the application. GUI thread.
class CApplicationService : public IApplicationService
{
    Q_OBJECT

public:
    explicit CApplicationService(QObject *parent = nullptr);
    ~CApplicationService() override;

    void requestQuit() override;
};

} // namespace NerixViewer
} // namespace Plugin
