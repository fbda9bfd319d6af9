// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include <QByteArray>
#include <QString>
#include <QtGlobal>

namespace ParameterCollectionPool {

/// Values as text, in GenICam's notation and independent of the user's language, and back. Pure
/// functions; nothing for a text that is no such value.
namespace ValueText {

QString fromInteger(qint64 value);

/// Decimal, or hexadecimal with "0x" in front, blanks around it ignored.
std::optional<qint64> toInteger(const QString &text);

/// The shortest decimal form that gives \a value again; with a power of ten only where the number
/// would become very long.
QString fromFloat(double value);

/// Finite numbers only.
std::optional<double> toFloat(const QString &text);

/// "true" or "false".
QString fromBoolean(bool value);

/// "true", "false", "1" or "0", in any case of letters.
std::optional<bool> toBoolean(const QString &text);

/// "0x" and two digits a byte.
QString fromBytes(const QByteArray &bytes);
std::optional<QByteArray> toBytes(const QString &text);

} // namespace ValueText
} // namespace ParameterCollectionPool
