// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "plugins/nerixviewer/CMessageModel.h"
#include "plugins/nerixviewer/IMessageService.h"

namespace Plugin {
namespace NerixViewer {

/// Takes messages from any thread to the model in the GUI thread, in which it lives. While it lives
/// it listens to the log. There is one at a time.
class CMessageService : public IMessageService
{
    Q_OBJECT

public:
    explicit CMessageService(QObject *parent = nullptr);
    ~CMessageService() override;

    void add(Severity severity, const QString &text) override;

    /// GUI thread.
    CMessageModel &model();

private:
    CMessageModel m_model;
};

} // namespace NerixViewer
} // namespace Plugin
