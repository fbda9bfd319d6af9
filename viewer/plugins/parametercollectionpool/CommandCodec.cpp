// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CValueCodec.h"

namespace ParameterCollectionPool {
namespace {

// A command has nothing that could be read; setting it to this word executes it.
const QString &execute()
{
    static const QString word = QStringLiteral("Execute");
    return word;
}

QString read(const CNodeAccess &access)
{
    access.refuse(QStringLiteral("a command has no value"));
}

QString check(const CNodeAccess &access, const QString &text)
{
    if (text.trimmed() != execute()) {
        access.refuse(QStringLiteral("\"%1\" is no order for a command: give Execute").arg(text));
    }
    return execute();
}

void write(const CNodeAccess &access, const QString &)
{
    access.run(
        [&](GError **error) { arv_gc_command_execute(ARV_GC_COMMAND(access.node()), error); });
}

} // namespace

const CValueCodec &commandCodec()
{
    static const CValueCodec codec{read, check, write};
    return codec;
}

} // namespace ParameterCollectionPool
