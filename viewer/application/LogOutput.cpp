// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "application/LogOutput.h"

#include "windows/ShownText.h"

#include <cstdio>

#include <QString>
#include <QtGlobal>

namespace Application {

namespace {

// What Qt says wherever nobody has logged in to a desktop. The viewer keeps nothing in that folder.
bool isOfNoConcern(const QString &message)
{
    return message.startsWith(QLatin1String("QStandardPaths: XDG_RUNTIME_DIR not set"));
}

// A single call, so that lines of several threads do not mix.
void writeLine(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (isOfNoConcern(message)) {
        return;
    }
    const QString shown = Windows::shownLine(message, message.size());
    const QByteArray line = qFormatLogMessage(type, context, shown).toUtf8() + '\n';
    std::fwrite(line.constData(), 1, static_cast<std::size_t>(line.size()), stderr);
    std::fflush(stderr);
}

} // namespace

void installLogOutput()
{
    qSetMessagePattern(QStringLiteral("%{if-debug}%{category}: %{endif}%{if-warning}warning: "
                                      "%{endif}%{if-critical}error: %{endif}%{message}"));
    qInstallMessageHandler(writeLine);
}

} // namespace Application
