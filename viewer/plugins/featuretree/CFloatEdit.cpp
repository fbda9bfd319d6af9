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

QString CFloatEdit::stepped(const QString &text, int steps) const
{
    const double value = ValueText::toFloat(text).value_or(m_limits.minimum);
    return ValueText::fromFloat(
        std::clamp(moved(value, steps), m_limits.minimum, m_limits.maximum));
}

bool CFloatEdit::isAllowed(const QString &text) const
{
    const auto value = ValueText::toFloat(text);
    return value && *value >= m_limits.minimum && *value <= m_limits.maximum;
}

QValidator::State CFloatEdit::validate(QString &text, int &) const
{
    static const QRegularExpression begun(
        QStringLiteral("^\\s*[-+]?[0-9]*[.]?[0-9]*([eE][-+]?[0-9]*)?\\s*$"));
    return begun.match(text).hasMatch() ? QValidator::Acceptable : QValidator::Invalid;
}

} // namespace FeatureTree
