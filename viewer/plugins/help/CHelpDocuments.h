// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <CHelpHelper.h>

#include <QString>
#include <QUrl>

namespace Plugin {
namespace Help {

/// The documents of the help, Markdown files in one folder. Callable in any thread.
class CHelpDocuments
{
public:
    explicit CHelpDocuments(const QString &folder);

    /// The path of the document \a type, which may be missing; empty for a type that has none.
    QString path(CHelpHelper::HelpType type) const;

    /// Whether the document \a type can be read.
    bool has(CHelpHelper::HelpType type) const;

    /// The text of the document at \a path without the comments at its top; a null text if it is
    /// none of ours or cannot be read.
    QString text(const QString &path) const;

    /// The document that \a link, found in another one, means: a path in our folder, since there
    /// all documents stand side by side. Empty if there is none.
    QString resolve(const QUrl &link) const;

private:
    QString m_folder;
};

} // namespace Help
} // namespace Plugin
