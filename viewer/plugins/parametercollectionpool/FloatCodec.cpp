// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CValueCodec.h"
#include "ValueText.h"

#include <cmath>

namespace ParameterCollectionPool {
namespace {

ArvGcFloat *asFloat(const CNodeAccess &access)
{
    return ARV_GC_FLOAT(access.node());
}

QString read(const CNodeAccess &access)
{
    const double value = floatValue(access);
    if (!std::isfinite(value)) {
        access.refuseValue(QStringLiteral("its value %1 is no number").arg(value),
                           QStringLiteral("set it to one"));
    }
    return ValueText::fromFloat(value);
}

QString check(const CNodeAccess &access, const QString &text)
{
    const double minimum = floatMinimum(access);
    const double maximum = floatMaximum(access);
    const QString limits = QStringLiteral("from %1 to %2")
                               .arg(ValueText::fromFloat(minimum), ValueText::fromFloat(maximum));
    const auto value = ValueText::toFloat(text);
    if (!value) {
        access.refuse(QStringLiteral("\"%1\" is no number: give one %2").arg(text, limits));
    }
    if (*value < minimum || *value > maximum) {
        access.refuse(QStringLiteral("%1 is out of range: give a number %2")
                          .arg(ValueText::fromFloat(*value), limits));
    }
    return ValueText::fromFloat(*value);
}

void write(const CNodeAccess &access, const QString &value)
{
    access.run(
        [&](GError **error) { arv_gc_float_set_value(asFloat(access), value.toDouble(), error); });
}

} // namespace

const CValueCodec &floatCodec()
{
    static const CValueCodec codec{read, check, write};
    return codec;
}

double floatValue(const CNodeAccess &access)
{
    return access.call(
        [&](GError **error) { return arv_gc_float_get_value(asFloat(access), error); });
}

double floatMinimum(const CNodeAccess &access)
{
    return access.callForLimit(
        [&](GError **error) { return arv_gc_float_get_min(asFloat(access), error); });
}

double floatMaximum(const CNodeAccess &access)
{
    return access.callForLimit(
        [&](GError **error) { return arv_gc_float_get_max(asFloat(access), error); });
}

} // namespace ParameterCollectionPool
