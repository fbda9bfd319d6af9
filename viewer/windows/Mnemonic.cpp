// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "windows/Mnemonic.h"

#include <QRegularExpression>

namespace Windows {

QString withoutMnemonic(QString text)
{
    static const QRegularExpression inParentheses(QStringLiteral("\\s*\\(&[A-Za-z0-9]\\)"));
    const QChar keeper = QChar::ReplacementCharacter;
    return text.replace(QStringLiteral("&&"), keeper)
        .remove(inParentheses)
        .remove(QLatin1Char('&'))
        .replace(keeper, QLatin1Char('&'));
}

} // namespace Windows
