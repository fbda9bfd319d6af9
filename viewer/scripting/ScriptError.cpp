// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "scripting/ScriptError.h"

#include <QJSValue>
#include <QStringList>

namespace Scripting {

namespace {

// A frame of the stack reads "function@address:line". What the viewer brings is in "qrc:".
QString lineOfScript(const QString &stack)
{
    const QStringList frames = stack.split(QLatin1Char('\n'));
    for (const QString &frame : frames) {
        if (!frame.contains(QLatin1String("@qrc:"))) {
            return frame.section(QLatin1Char(':'), -1);
        }
    }
    return {};
}

QString messageOf(const QJSValue &error)
{
    const QString name = error.property(QStringLiteral("name")).toString();
    const QString message = error.property(QStringLiteral("message")).toString();
    return name == QLatin1String("Error") ? message : error.toString();
}

} // namespace

QString describeError(const QString &file, const QJSValue &error)
{
    if (!error.isError()) {
        return QStringLiteral("%1: %2 (throw an Error to learn the line)")
            .arg(file, error.toString());
    }
    QString line = lineOfScript(error.property(QStringLiteral("stack")).toString());
    if (line.isEmpty()) {
        line = error.property(QStringLiteral("lineNumber")).toString();
    }
    return QStringLiteral("%1:%2: %3").arg(file, line, messageOf(error));
}

} // namespace Scripting
