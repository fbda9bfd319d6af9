// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/nerixviewer/CMessageService.h"

#include <cstring>
#include <mutex>

#include <QtGlobal>

namespace Plugin {
namespace NerixViewer {

namespace {

std::mutex receiverMutex;
CMessageService *receiver = nullptr;  // guarded by receiverMutex
QtMessageHandler logOutput = nullptr; // set before receive is installed

bool isOurs(const QMessageLogContext &context)
{
    return context.category && std::strncmp(context.category, "nerix.", 6) == 0;
}

void receive(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    logOutput(type, context, text);
    if (type == QtDebugMsg || type == QtInfoMsg || !isOurs(context)) {
        return;
    }
    const std::lock_guard<std::mutex> lock(receiverMutex);
    if (receiver) {
        receiver->add(type == QtWarningMsg ? IMessageService::Severity::Warning
                                           : IMessageService::Severity::Error,
                      text);
    }
}

void setReceiver(CMessageService *service)
{
    const std::lock_guard<std::mutex> lock(receiverMutex);
    receiver = service;
}

} // namespace

CMessageService::CMessageService(QObject *parent)
    : IMessageService(parent)
{
    setReceiver(this);
    const QtMessageHandler before = qInstallMessageHandler(nullptr);
    logOutput = before == receive ? logOutput : before;
    qInstallMessageHandler(receive);
}

CMessageService::~CMessageService()
{
    setReceiver(nullptr);
    const QtMessageHandler current = qInstallMessageHandler(logOutput);
    if (current != receive) {
        qInstallMessageHandler(current); // somebody listens in front of us
    }
}

void CMessageService::add(Severity severity, const QString &text)
{
    // Always later: who logs may be in the middle of anything.
    QMetaObject::invokeMethod(
        this, [this, severity, text] { m_model.add(severity, text); }, Qt::QueuedConnection);
}

CMessageModel &CMessageService::model()
{
    return m_model;
}

} // namespace NerixViewer
} // namespace Plugin
