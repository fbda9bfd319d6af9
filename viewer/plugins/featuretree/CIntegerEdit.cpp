// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/featuretree/CIntegerEdit.h"

#include "plugins/parametercollectionpool/ValueText.h"

#include <algorithm>
#include <limits>

namespace FeatureTree {

namespace ValueText = ParameterCollectionPool::ValueText;

namespace {

constexpr CIntegerLimits unlimited{std::numeric_limits<qint64>::min(),
                                   std::numeric_limits<qint64>::max(), 1};

// The distance of two numbers fits into 64 bits once the sign is gone, whatever they are.
quint64 distance(qint64 from, qint64 to)
{
    return quint64(to) - quint64(from);
}

} // namespace

CIntegerEdit::CIntegerEdit(QWidget *parent)
    : CNumberEdit(parent)
    , m_limits(unlimited)
{}

CIntegerEdit::~CIntegerEdit() = default;

void CIntegerEdit::setLimits(const std::optional<CIntegerLimits> &limits)
{
    m_limits = limits.value_or(unlimited);
    m_limits.increment = std::max<qint64>(1, m_limits.increment);
    markText();
}

QString CIntegerEdit::notated(const QString &typed) const
{
    return ValueText::toInteger(typed) ? typed.trimmed() : QString();
}

// From a value between two allowed ones, the first step leads to the next allowed one.
QString CIntegerEdit::stepped(const QString &number, int steps) const
{
    const qint64 typed = ValueText::toInteger(number).value_or(m_limits.minimum);
    const qint64 value = std::clamp(typed, m_limits.minimum, m_limits.maximum);
    const quint64 increment = quint64(m_limits.increment);
    const quint64 last = distance(m_limits.minimum, m_limits.maximum) / increment;
    const quint64 offset = distance(m_limits.minimum, value);
    const bool isBetween = offset % increment != 0;
    const quint64 here = offset / increment + (isBetween && steps < 0 ? 1 : 0);
    const quint64 wanted = quint64(std::abs(qint64(steps)));
    const quint64 there =
        steps < 0 ? here - std::min(wanted, here) : here + std::min(wanted, last - here);
    return ValueText::fromInteger(qint64(quint64(m_limits.minimum) + there * increment));
}

bool CIntegerEdit::isAllowed(const QString &number) const
{
    const auto value = ValueText::toInteger(number);
    return value && *value >= m_limits.minimum && *value <= m_limits.maximum
           && distance(m_limits.minimum, *value) % quint64(m_limits.increment) == 0;
}

} // namespace FeatureTree
