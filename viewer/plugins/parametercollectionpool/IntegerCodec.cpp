// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CValueCodec.h"
#include "ValueText.h"

namespace ParameterCollectionPool {
namespace {

ArvGcInteger *integer(const CNodeAccess &access)
{
    return ARV_GC_INTEGER(access.node());
}

QString read(const CNodeAccess &access)
{
    return ValueText::fromInteger(integerValue(access));
}

QString limits(qint64 minimum, qint64 maximum, qint64 increment)
{
    const QString range = QStringLiteral("from %1 to %2").arg(minimum).arg(maximum);
    return increment > 1 ? QStringLiteral("%1 in steps of %2").arg(range).arg(increment) : range;
}

QString check(const CNodeAccess &access, const QString &text)
{
    const qint64 minimum = integerMinimum(access);
    const qint64 maximum = integerMaximum(access);
    const qint64 increment = integerIncrement(access);
    const auto value = ValueText::toInteger(text);
    if (!value) {
        access.refuse(QStringLiteral("\"%1\" is no whole number: give one %2")
                          .arg(text, limits(minimum, maximum, increment)));
    }
    // The difference fits into 64 bits once the sign is gone, whatever the limits are.
    const bool isOnStep = increment <= 1 || *value < minimum
                          || (quint64(*value) - quint64(minimum)) % quint64(increment) == 0;
    if (*value < minimum || *value > maximum || !isOnStep) {
        access.refuse(QStringLiteral("%1 is out of range: give a number %2")
                          .arg(*value)
                          .arg(limits(minimum, maximum, increment)));
    }
    return ValueText::fromInteger(*value);
}

void write(const CNodeAccess &access, const QString &value)
{
    access.run([&](GError **error) {
        arv_gc_integer_set_value(integer(access), value.toLongLong(), error);
    });
}

} // namespace

const CValueCodec &integerCodec()
{
    static const CValueCodec codec{read, check, write};
    return codec;
}

qint64 integerValue(const CNodeAccess &access)
{
    return access.call(
        [&](GError **error) { return arv_gc_integer_get_value(integer(access), error); });
}

qint64 integerMinimum(const CNodeAccess &access)
{
    return access.callForLimit(
        [&](GError **error) { return arv_gc_integer_get_min(integer(access), error); });
}

qint64 integerMaximum(const CNodeAccess &access)
{
    return access.callForLimit(
        [&](GError **error) { return arv_gc_integer_get_max(integer(access), error); });
}

qint64 integerIncrement(const CNodeAccess &access)
{
    return access.callForLimit(
        [&](GError **error) { return arv_gc_integer_get_inc(integer(access), error); });
}

} // namespace ParameterCollectionPool
