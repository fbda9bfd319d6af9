// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "plugins/nerixwelcome/CWelcomePages.h"

#include <QScrollArea>

namespace Plugin {
namespace NerixWelcome {

/// The page of one tab, or why there is none. It scrolls where the screen is smaller than the page.
/// GUI thread.
class CWelcomePageView : public QScrollArea
{
    Q_OBJECT

public:
    /// Loads the page. The view must be gone before \a pages and \a tab.
    CWelcomePageView(CWelcomePages &pages, INerixWelcomeTab &tab, QWidget *parent = nullptr);
    ~CWelcomePageView() override;

    /// The size that the page wants.
    QSize sizeHint() const override;

private:
    void showPage(CWelcomePages &pages);
    void showError(const QString &error);
    void nameAfter(const INerixWelcomeTab &tab);

    CWelcomePages::Page m_page;
};

} // namespace NerixWelcome
} // namespace Plugin
