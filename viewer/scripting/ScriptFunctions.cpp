// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "scripting/ScriptFunctions.h"

#include <QMetaMethod>
#include <QObject>
#include <QVariantMap>

namespace Scripting {

namespace {

QVariantList parametersOf(const QMetaMethod &method)
{
    const auto names = method.parameterNames();
    const auto types = method.parameterTypes();
    QVariantList parameters;
    for (int index = 0; index < names.size(); ++index) {
        parameters.append(
            QVariantMap{{QStringLiteral("name"), QString::fromLatin1(names.at(index))},
                        {QStringLiteral("type"), QString::fromLatin1(types.at(index))}});
    }
    return parameters;
}

QVariantMap describe(const QMetaMethod &method)
{
    return {{QStringLiteral("name"), QString::fromLatin1(method.name())},
            {QStringLiteral("required"), method.parameterCount()},
            {QStringLiteral("parameters"), parametersOf(method)}};
}

} // namespace

// Behind a function with default arguments stand its clones, each with an argument less.
QVariantList functionsOf(const QMetaObject &type)
{
    QVariantList functions;
    for (int index = QObject::staticMetaObject.methodCount(); index < type.methodCount(); ++index) {
        const QMetaMethod method = type.method(index);
        if (method.methodType() != QMetaMethod::Method) {
            continue;
        }
        QVariantMap function = describe(method);
        if (method.attributes() & QMetaMethod::Cloned) {
            function.insert(QStringLiteral("parameters"),
                            functions.takeLast().toMap().value(QStringLiteral("parameters")));
        }
        functions.append(function);
    }
    return functions;
}

} // namespace Scripting
