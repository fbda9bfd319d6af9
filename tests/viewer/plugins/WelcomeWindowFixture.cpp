// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "WelcomeWindowFixture.h"

#include <QLabel>
#include <QQuickItem>
#include <QQuickWindow>
#include <QStackedWidget>
#include <QTabBar>

using Plugin::NerixWelcome::CPageWidget;
using Plugin::NerixWelcome::CWelcomeWindow;

const QString WelcomeWindowFixture::emptyPage =
    QStringLiteral("import QtQuick 2.12\nItem { implicitWidth: 400; "
                   "implicitHeight: 300 }");

const QString WelcomeWindowFixture::pageOfThree =
    QStringLiteral("import QtQuick 2.12\n"
                   "Item {\n"
                   "    implicitWidth: 400; implicitHeight: 300\n"
                   "    Item { objectName: \"a\"; activeFocusOnTab: true }\n"
                   "    Item { objectName: \"b\"; activeFocusOnTab: true }\n"
                   "    Item { objectName: \"c\"; activeFocusOnTab: true }\n"
                   "}");

WelcomeWindowFixture::WelcomeWindowFixture() = default;

WelcomeWindowFixture::~WelcomeWindowFixture() = default;

void WelcomeWindowFixture::makeWindow(QWidget *parent)
{
    window = std::make_unique<CWelcomeWindow>(controller, parent);
}

QTabBar *WelcomeWindowFixture::tabBar() const
{
    return window->findChild<QTabBar *>(QStringLiteral("tabs"));
}

QLabel *WelcomeWindowFixture::notice() const
{
    return window->findChild<QLabel *>(QStringLiteral("notice"));
}

// The one that is seen.
CPageWidget *WelcomeWindowFixture::page() const
{
    const auto *views = window->findChild<QStackedWidget *>();
    const QWidget *view = views->currentWidget();
    return view ? view->findChild<CPageWidget *>() : nullptr;
}

QString WelcomeWindowFixture::stop() const
{
    if (tabBar()->hasFocus()) {
        return QStringLiteral("tabs");
    }
    const QQuickItem *item = page()->quickWindow()->activeFocusItem();
    return item ? item->objectName() : QString();
}
