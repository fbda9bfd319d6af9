// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/featuretree/CFloatEdit.h"

#include "plugins/parametercollectionpool/ValueText.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include <QRegularExpression>

namespace FeatureTree {

namespace ValueText = ParameterCollectionPool::ValueText;

namespace {

constexpr CFloatLimits unlimited{std::numeric_limits<double>::lowest(),
                                 std::numeric_limits<double>::max()};

const QLatin1Char comma(',');
const QLatin1Char point('.');

// "1,250" is a thousand and more to some people and little more than one to others.
bool isPerhapsThousand(const QString &text)
{
    static const QRegularExpression group(
        QStringLiteral("^[-+]?[1-9][0-9]{0,2},[0-9]{3}([eE].*)?$"));
    return group.match(text).hasMatch();
}

bool isDecimalComma(const QString &text)
{
    return text.count(comma) == 1 && !text.contains(point) && !isPerhapsThousand(text);
}

// The power of ten of the digit that a step changes.
int stepExponent(double value)
{
    return value == 0.0 ? -1 : int(std::floor(std::log10(std::abs(value)))) - 1;
}

// Counted in whole steps and divided, because a tenth cannot be added without an error.
double moved(double value, int steps)
{
    const int exponent = stepExponent(value);
    const double unit = std::pow(10.0, std::abs(exponent));
    if (exponent < 0) {
        return (std::round(value * unit) + steps) / unit;
    }
    return (std::round(value / unit) + steps) * unit;
}

} // namespace

CFloatEdit::CFloatEdit(QWidget *parent)
    : CNumberEdit(parent)
    , m_limits(unlimited)
{}

CFloatEdit::~CFloatEdit() = default;

void CFloatEdit::setLimits(const std::optional<CFloatLimits> &limits)
{
    m_limits = limits.value_or(unlimited);
    markText();
}

QString CFloatEdit::notated(const QString &typed) const
{
    QString text = typed.trimmed();
    if (isDecimalComma(text)) {
        text.replace(comma, point);
    }
    return ValueText::toFloat(text) ? text : QString();
}

QString CFloatEdit::stepped(const QString &number, int steps) const
{
    const double value = ValueText::toFloat(number).value_or(m_limits.minimum);
    return ValueText::fromFloat(
        std::clamp(moved(value, steps), m_limits.minimum, m_limits.maximum));
}

bool CFloatEdit::isAllowed(const QString &number) const
{
    const auto value = ValueText::toFloat(number);
    return value && *value >= m_limits.minimum && *value <= m_limits.maximum;
}

} // namespace FeatureTree
