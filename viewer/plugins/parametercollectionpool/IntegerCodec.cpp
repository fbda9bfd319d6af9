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

// The difference fits into 64 bits once the sign is gone, whatever the limits are.
quint64 offStep(qint64 value, qint64 minimum, qint64 increment)
{
    return increment <= 1 ? 0 : (quint64(value) - quint64(minimum)) % quint64(increment);
}

QString neighbours(qint64 lower, qint64 maximum, qint64 increment)
{
    const bool isLast = quint64(maximum) - quint64(lower) < quint64(increment);
    return isLast ? QString::number(lower)
                  : QStringLiteral("%1 or %2").arg(lower).arg(lower + increment);
}

// Of a value within the limits; the steps count from the minimum.
QString betweenSteps(qint64 value, qint64 minimum, qint64 maximum, qint64 increment)
{
    const qint64 lower = value - qint64(offStep(value, minimum, increment));
    const QString near = neighbours(lower, maximum, increment);
    return minimum % increment == 0
               ? QStringLiteral("%1 is no multiple of %2: give one from %3 to %4, such as %5")
                     .arg(QString::number(value), QString::number(increment),
                          QString::number(minimum), QString::number(maximum), near)
               : QStringLiteral("%1 is between two steps: give a number %2, such as %3")
                     .arg(QString::number(value), limits(minimum, maximum, increment), near);
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
    if (*value < minimum || *value > maximum) {
        access.refuse(QStringLiteral("%1 is out of range: give a number %2")
                          .arg(*value)
                          .arg(limits(minimum, maximum, increment)));
    }
    if (offStep(*value, minimum, increment) != 0) {
        access.refuse(betweenSteps(*value, minimum, maximum, increment));
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
