// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CValueCodec.h"
#include "RegisterLength.h"
#include "ValueText.h"

namespace ParameterCollectionPool {
namespace {

ArvGcRegister *asRegister(const CNodeAccess &access)
{
    return ARV_GC_REGISTER(access.node());
}

QString read(const CNodeAccess &access)
{
    QByteArray bytes(registerLength(access), '\0');
    access.run([&](GError **error) {
        arv_gc_register_get(asRegister(access), bytes.data(), guint64(bytes.size()), error);
    });
    return ValueText::fromBytes(bytes);
}

QString check(const CNodeAccess &access, const QString &text)
{
    const int size = registerLength(access);
    const auto bytes = ValueText::toBytes(text);
    if (!bytes || bytes->size() != size) {
        access.refuse(QStringLiteral("these are not %1 bytes: give 0x and %2 hexadecimal digits")
                          .arg(size)
                          .arg(2 * size));
    }
    return ValueText::fromBytes(*bytes);
}

void write(const CNodeAccess &access, const QString &value)
{
    const QByteArray bytes = ValueText::toBytes(value).value_or(QByteArray());
    access.run([&](GError **error) {
        arv_gc_register_set(asRegister(access), bytes.constData(), guint64(bytes.size()), error);
    });
}

} // namespace

const CValueCodec &registerCodec()
{
    static const CValueCodec codec{read, check, write};
    return codec;
}

} // namespace ParameterCollectionPool
