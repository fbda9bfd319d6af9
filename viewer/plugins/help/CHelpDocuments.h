// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <CHelpHelper.h>

#include <functional>

#include <QString>
#include <QUrl>

namespace Plugin {
namespace Help {

/// The documents of the help: Markdown files in one folder, and their translations under the same
/// names in a folder of each language below it ("ja"). Callable in the threads in which the
/// language can be asked for.
///
/// Everything is in the language of the moment, and in English where it is not translated.
class CHelpDocuments
{
public:
    /// The language to show, as in a locale's name: "ja", "zh_CN", "en_US".
    using Language = std::function<QString()>;

    /// An empty \a language is English.
    explicit CHelpDocuments(const QString &folder, Language language = {});

    /// The path of the document \a type, which may be missing; empty for a type that has none.
    QString path(CHelpHelper::HelpType type) const;

    /// Whether the document \a type can be read.
    bool has(CHelpHelper::HelpType type) const;

    /// The text of the document at \a path without the comments at its top; a null text if it is
    /// none of ours or cannot be read.
    QString text(const QString &path) const;

    /// The path of the document that \a link, found in another one, means. Only its file name
    /// counts, so that a document links to its counterparts in each language. Empty if there is
    /// none.
    QString resolve(const QUrl &link) const;

private:
    QString pathOf(const QString &fileName) const;

    QString m_folder;
    Language m_language;
};

} // namespace Help
} // namespace Plugin
