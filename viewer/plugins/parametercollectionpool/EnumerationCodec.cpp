// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CValueCodec.h"

namespace ParameterCollectionPool {
namespace {

ArvGcEnumeration *enumeration(const CNodeAccess &access)
{
    return ARV_GC_ENUMERATION(access.node());
}

[[noreturn]] void refuseNumber(const CNodeAccess &access)
{
    const QString number = QString::number(enumerationValue(access));
    const QString entries = enumerationEntries(access).join(QStringLiteral(", "));
    access.refuseValue(QStringLiteral("its value %1 is no entry").arg(number),
                       QStringLiteral("set it to one of %1").arg(entries));
}

// Aravis owns the text and may drop it at the next read of the same node. For a number without an
// entry it gives none, and no error.
QString read(const CNodeAccess &access)
{
    const char *name = access.call([&](GError **error) {
        return arv_gc_enumeration_get_string_value(enumeration(access), error);
    });
    if (!name) {
        refuseNumber(access);
    }
    return QString::fromUtf8(name);
}

QString check(const CNodeAccess &access, const QString &text)
{
    const QStringList entries = enumerationEntries(access);
    const QString name = text.trimmed();
    if (!entries.contains(name)) {
        access.refuse(QStringLiteral("\"%1\" is no entry: give one of %2")
                          .arg(text, entries.join(QStringLiteral(", "))));
    }
    return name;
}

void write(const CNodeAccess &access, const QString &value)
{
    access.run([&](GError **error) {
        arv_gc_enumeration_set_string_value(enumeration(access), value.toUtf8().constData(), error);
    });
}

} // namespace

const CValueCodec &enumerationCodec()
{
    static const CValueCodec codec{read, check, write};
    return codec;
}

qint64 enumerationValue(const CNodeAccess &access)
{
    return access.call([&](GError **error) {
        return arv_gc_enumeration_get_int_value(enumeration(access), error);
    });
}

QStringList enumerationEntries(const CNodeAccess &access)
{
    guint count = 0;
    const CameraPool::GMemoryPtr<const char *> names(access.call([&](GError **error) {
        return arv_gc_enumeration_dup_available_string_values(enumeration(access), &count, error);
    }));
    QStringList entries;
    for (guint i = 0; i < count; ++i) {
        entries.append(QString::fromUtf8(names.get()[i]));
    }
    return entries;
}

} // namespace ParameterCollectionPool
