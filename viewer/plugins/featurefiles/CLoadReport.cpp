// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/featurefiles/CLoadReport.h"

namespace FeatureFiles {

QString CLoadReport::summary() const
{
    const QString counts = tr("%1 set, %2 unchanged, %3 read-only, %4 not set")
                               .arg(set)
                               .arg(unchanged)
                               .arg(readOnly)
                               .arg(refused.size());
    return isCancelled ? tr("%1; cancelled").arg(counts) : counts;
}

QString CLoadReport::leftAloneHint() const
{
    return leftAlone.isEmpty()
               ? QString()
               : tr("left alone: %1; the file is not from this camera, so set them by hand")
                     .arg(leftAlone.join(QLatin1String(", ")));
}

QString CLoadReport::connectionHint() const
{
    return ofConnection.isEmpty()
               ? QString()
               : tr("left alone: %1; what belongs to the connection is never loaded")
                     .arg(ofConnection.join(QLatin1String(", ")));
}

} // namespace FeatureFiles
