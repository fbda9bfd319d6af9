// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "plugins/help/CHelpDocuments.h"

#include <QTextBrowser>

namespace Plugin {
namespace Help {

/// Shows one document after the other, with a way back. GUI thread.
///
/// Links to documents of ours are followed, all others are handed on by `addressClicked`.
class CHelpBrowser : public QTextBrowser
{
    Q_OBJECT

public:
    explicit CHelpBrowser(const CHelpDocuments &documents, QWidget *parent = nullptr);
    ~CHelpBrowser() override;

    /// Shows the document at \a path; from the heading \a heading on, if it has one of that name,
    /// written as in a link ("how-to-withdraw").
    void showDocument(const QString &path, const QString &heading = {});

    /// Shows the same document once more, in the language of the moment. What stands at the top
    /// stays there.
    void readAnew();

    /// The first heading of the document.
    QString title() const;

    /// Looks for \a text from what is selected on, at the end going on at the other end.
    /// @return whether it is there; it is selected then.
    bool search(const QString &text, QTextDocument::FindFlags flags = {});

    /// The size of the letters in steps from the usual one, within limits. Kept in the settings
    /// under "Help/Zoom".
    int zoom() const;
    void setZoom(int steps);

    QVariant loadResource(int type, const QUrl &name) override;

Q_SIGNALS:
    void addressClicked(const QUrl &address);

private:
    void follow(const QUrl &link);
    void giveTablesRoom();
    void goToHeading(const QString &heading);
    void bringToTheTop(const QTextBlock &block);

    CHelpDocuments m_documents;
    int m_zoom = 0;
};

} // namespace Help
} // namespace Plugin
