// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "ConsentWindow.h"

#include <Plugin/NerixWelcome/INerixWelcomeTab.h>

#include <QApplication>
#include <QQuickWidget>
#include <QQuickWindow>
#include <QtTest>

ConsentWindow::ConsentWindow()
    : window(std::make_unique<Plugin::NerixWelcome::CWelcomeWindow>(welcome))
{
    fixture.initialize();
    welcome.addTab(fixture.host.welcome->tabs.at(0));
    welcome.show();
    if (!QTest::qWaitForWindowActive(window.get())) {
        qFatal("the window of the welcome screen does not come up");
    }
}

ConsentWindow::~ConsentWindow()
{
    page()->quickWindow()->releaseResources();
    window.reset();
    fixture.waitForRequests();
}

void ConsentWindow::press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
}

QString ConsentWindow::focus() const
{
    if (!page()->hasFocus()) {
        return QApplication::focusWidget()->objectName();
    }
    const QQuickItem *current = page()->quickWindow()->activeFocusItem();
    const QVariant link = current->property("target");
    const bool shows = link.isValid()
                           ? current->findChild<QQuickItem *>() || !current->childItems().isEmpty()
                           : current->property("visualFocus").toBool();
    if (!shows) {
        return {};
    }
    return link.isValid() ? link.toString() : current->objectName();
}

bool ConsentWindow::walkTo(const QString &name, Qt::Key key)
{
    constexpr int enough = 20;
    for (int steps = 0; steps < enough && focus() != name; ++steps) {
        press(key);
    }
    return focus() == name;
}

QQuickItem *ConsentWindow::item(const char *name) const
{
    const QQuickItem *root = page()->quickWindow()->contentItem()->childItems().at(0);
    auto *found = root->findChild<QQuickItem *>(QString::fromLatin1(name));
    if (!found) {
        qFatal("the page has no item \"%s\"", name);
    }
    return found;
}

QVariant ConsentWindow::of(const char *name, const char *property) const
{
    return item(name)->property(property);
}

QQuickWidget *ConsentWindow::page() const
{
    return window->findChild<QQuickWidget *>(QStringLiteral("page"));
}
