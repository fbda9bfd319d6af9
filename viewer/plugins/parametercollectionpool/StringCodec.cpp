// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CValueCodec.h"

namespace ParameterCollectionPool {
namespace {

ArvGcString *string(const CNodeAccess &access)
{
    return ARV_GC_STRING(access.node());
}

// Aravis owns the text and may drop it at the next read of the same node.
QString read(const CNodeAccess &access)
{
    return QString::fromUtf8(access.call(
        [&](GError **error) { return arv_gc_string_get_value(string(access), error); }));
}

QString check(const CNodeAccess &access, const QString &text)
{
    const gint64 maximum = access.call(
        [&](GError **error) { return arv_gc_string_get_max_length(string(access), error); });
    const int size = text.toUtf8().size();
    if (maximum > 0 && size > maximum) {
        access.refuse(QStringLiteral("a text of %1 bytes is too long: give one of at most %2 bytes")
                          .arg(size)
                          .arg(maximum));
    }
    if (text.contains(QChar())) {
        access.refuse(QStringLiteral("the text holds a zero character: give one without"));
    }
    return text;
}

void write(const CNodeAccess &access, const QString &value)
{
    access.run([&](GError **error) {
        arv_gc_string_set_value(string(access), value.toUtf8().constData(), error);
    });
}

} // namespace

const CValueCodec &stringCodec()
{
    static const CValueCodec codec{read, check, write};
    return codec;
}

} // namespace ParameterCollectionPool
