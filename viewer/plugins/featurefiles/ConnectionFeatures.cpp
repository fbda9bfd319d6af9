// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/featurefiles/ConnectionFeatures.h"

#include <QRegularExpression>

namespace FeatureFiles {

bool ConnectionFeatures::contains(const QString &feature)
{
    static const QRegularExpression form(QRegularExpression::anchoredPattern(
        QStringLiteral("(GevCCP|Gev(SC|MC)DA|Gev(SC|MC)PHostPort)([0-9]+|\\[[^\\]]*\\])?")));
    return form.match(feature).hasMatch();
}

} // namespace FeatureFiles
