// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "ValueText.h"

#include <cmath>

#include <QLocale>

namespace ParameterCollectionPool {
namespace ValueText {
namespace {

// Between these, a number is written out without a power of ten.
constexpr double SmallestPlain = 1e-5;
constexpr double LargestPlain = 1e15;

const QString &hexPrefix()
{
    static const QString prefix = QStringLiteral("0x");
    return prefix;
}

bool isHexDigits(const QString &text)
{
    for (const QChar c : text) {
        const char16_t code = c.toLower().unicode();
        if (!((code >= u'0' && code <= u'9') || (code >= u'a' && code <= u'f'))) {
            return false;
        }
    }
    return true;
}

} // namespace

QString fromInteger(qint64 value)
{
    return QString::number(value);
}

std::optional<qint64> toInteger(const QString &text)
{
    const QString trimmed = text.trimmed();
    const bool isHex = trimmed.startsWith(hexPrefix(), Qt::CaseInsensitive);
    const QString digits = isHex ? trimmed.mid(2) : trimmed;
    if (isHex && !isHexDigits(digits)) {
        return std::nullopt;
    }
    bool ok = false;
    const qint64 value = digits.toLongLong(&ok, isHex ? 16 : 10);
    return ok ? std::make_optional(value) : std::nullopt;
}

QString fromFloat(double value)
{
    const double size = std::abs(value);
    const bool isPlain = value == 0.0 || (size >= SmallestPlain && size < LargestPlain);
    return QString::number(value, isPlain ? 'f' : 'g', QLocale::FloatingPointShortest);
}

std::optional<double> toFloat(const QString &text)
{
    bool ok = false;
    const double value = text.trimmed().toDouble(&ok);
    return ok && std::isfinite(value) ? std::make_optional(value) : std::nullopt;
}

QString fromBoolean(bool value)
{
    return value ? QStringLiteral("true") : QStringLiteral("false");
}

std::optional<bool> toBoolean(const QString &text)
{
    const QString word = text.trimmed().toLower();
    if (word == QLatin1String("true") || word == QLatin1String("1")) {
        return true;
    }
    if (word == QLatin1String("false") || word == QLatin1String("0")) {
        return false;
    }
    return std::nullopt;
}

QString fromBytes(const QByteArray &bytes)
{
    return hexPrefix() + QString::fromLatin1(bytes.toHex());
}

std::optional<QByteArray> toBytes(const QString &text)
{
    const QString trimmed = text.trimmed();
    const QString digits = trimmed.mid(2);
    if (!trimmed.startsWith(hexPrefix(), Qt::CaseInsensitive) || digits.size() % 2 != 0
        || !isHexDigits(digits)) {
        return std::nullopt;
    }
    return QByteArray::fromHex(digits.toLatin1());
}

} // namespace ValueText
} // namespace ParameterCollectionPool
