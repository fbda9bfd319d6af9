// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include <QObject>
#include <QQmlEngine>
#include <QString>

class QQmlContext;
class QQuickItem;

namespace Plugin {
namespace NerixWelcome {

class CNerixWelcomeController;
class INerixWelcomeTab;

/// Loads the pages of the tabs: an engine that knows the module "NerixWelcome 1.0" and publishes
/// the controller as "_navigationController". It translates the loaded pages anew when the
/// application's catalogues change. GUI thread.
class CWelcomePages : public QObject
{
public:
    /// A page, or the reason why there is none.
    struct Page
    {
        Page();
        Page(Page &&) noexcept;
        Page &operator=(Page &&) noexcept;
        ~Page();

        /// What the page binds to. Outlives the item.
        std::unique_ptr<QQmlContext> context;

        /// Null if the page could not be loaded.
        std::unique_ptr<QQuickItem> item;

        /// What to show in place of the page; empty if there is an item.
        QString error;
    };

    /// \a controller must outlive this object.
    explicit CWelcomePages(CNerixWelcomeController &controller, QObject *parent = nullptr);
    ~CWelcomePages() override;

    /// Loads the page of \a tab, each time a new one. The page must be gone before the tab and
    /// before this object. A failure is also logged.
    Page load(INerixWelcomeTab &tab);

    QQmlEngine &engine();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QQmlEngine m_engine;
};

} // namespace NerixWelcome
} // namespace Plugin
