// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CValueCodec.h"
#include "ValueText.h"

namespace ParameterCollectionPool {
namespace {

QString read(const CNodeAccess &access)
{
    return ValueText::fromBoolean(booleanValue(access));
}

QString check(const CNodeAccess &access, const QString &text)
{
    const auto value = ValueText::toBoolean(text);
    if (!value) {
        access.refuse(QStringLiteral("\"%1\" is no switch: give true or false").arg(text));
    }
    return ValueText::fromBoolean(*value);
}

void write(const CNodeAccess &access, const QString &value)
{
    access.run([&](GError **error) {
        arv_gc_boolean_set_value(ARV_GC_BOOLEAN(access.node()),
                                 value == ValueText::fromBoolean(true), error);
    });
}

} // namespace

const CValueCodec &booleanCodec()
{
    static const CValueCodec codec{read, check, write};
    return codec;
}

bool booleanValue(const CNodeAccess &access)
{
    return access.call([&](GError **error) {
        return arv_gc_boolean_get_value(ARV_GC_BOOLEAN(access.node()), error) != FALSE;
    });
}

} // namespace ParameterCollectionPool
