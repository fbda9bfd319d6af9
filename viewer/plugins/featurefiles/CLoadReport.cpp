// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/featurefiles/CLoadReport.h"

namespace FeatureFiles {

QString CLoadReport::summary() const
{
    QString counts = tr("%1 set, %2 unchanged, %3 read-only, %4 not set")
                         .arg(set)
                         .arg(unchanged)
                         .arg(readOnly)
                         .arg(refused.size());
    if (!leftAlone.isEmpty()) {
        counts = tr("%1; left alone: %2 (the file is not known to be of this camera; set them by "
                    "hand in the panel Features)")
                     .arg(counts, leftAlone.join(QLatin1String(", ")));
    }
    return isCancelled ? tr("%1; cancelled").arg(counts) : counts;
}

} // namespace FeatureFiles
