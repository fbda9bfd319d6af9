// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/nerixwelcome/PageAccessibility.h"

#include "plugins/nerixwelcome/CPageWidget.h"

#include <QAccessibleWidget>
#include <QQuickItem>
#include <QQuickWindow>

namespace Plugin {
namespace NerixWelcome {

namespace {

// The page as the only child, instead of the widget's own children.
class CAccessiblePage : public QAccessibleWidget
{
public:
    explicit CAccessiblePage(CPageWidget *widget)
        : QAccessibleWidget(widget, QAccessible::Client)
    {}

    int childCount() const override
    {
        return page() ? 1 : 0;
    }

    QAccessibleInterface *child(int index) const override
    {
        return index == 0 ? page() : nullptr;
    }

    int indexOfChild(const QAccessibleInterface *child) const override
    {
        return child && child == page() ? 0 : -1;
    }

    QAccessibleInterface *childAt(int, int) const override
    {
        return page();
    }

    QAccessibleInterface *focusChild() const override
    {
        return QAccessible::queryAccessibleInterface(
            pageWidget()->quickWindow()->activeFocusItem());
    }

private:
    const CPageWidget *pageWidget() const
    {
        return static_cast<const CPageWidget *>(widget());
    }

    QAccessibleInterface *page() const
    {
        return QAccessible::queryAccessibleInterface(pageWidget()->page());
    }
};

QAccessibleInterface *makeInterface(const QString &, QObject *object)
{
    auto *widget = qobject_cast<CPageWidget *>(object);
    return widget ? new CAccessiblePage(widget) : nullptr;
}

} // namespace

void installPageAccessibility()
{
    QAccessible::installFactory(makeInterface); // which ignores one that is there already
}

} // namespace NerixWelcome
} // namespace Plugin
