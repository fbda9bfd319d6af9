// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <NerixCoreExport.h>

#include <functional>

#include <QtGlobal>

/// Shows the documents of the viewer's help. GUI thread.
class NERIXCORE_EXPORT CHelpHelper
{
public:
    enum HelpType : int {
        HelpContents = 0,
        HelpCameras = 1,
        HelpFeatures = 2,
        HelpGrabbing = 3,
        HelpLicenses = 4,
        HelpPrivacyStatement = 5 ///< what usage data is collected, and how to withdraw
    };

    /// Shows a document; returns whether it was shown.
    using Handler = std::function<bool(HelpType)>;

    /// Shows the document \a type. @return false if nobody can show it.
    static bool showHelp(HelpType type);

    /// Whoever shows the documents says how; an empty function withdraws it.
    static void setHandler(Handler handler);

    CHelpHelper() = delete;
};
