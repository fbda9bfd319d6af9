// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "ConsentPage.h"

#include <QtTest>

ConsentPage::ConsentPage()
{
    fixture.initialize();
    welcome.addTab(fixture.host.welcome->tabs.at(0));
    welcome.start();
    reload();
    window.show();
    if (!QTest::qWaitForWindowExposed(&window)) {
        qFatal("the window of the page does not come up");
    }
}

ConsentPage::~ConsentPage()
{
    // What Qt would otherwise not free at the end of the program: the cached images, and the timer
    // of a request that the plug-in made when it is shut down at once.
    m_page = {};
    window.releaseResources();
    fixture.waitForRequests();
}

void ConsentPage::reload()
{
    m_page = pages.load(*welcome.currentTab());
    if (!m_page.item) {
        qFatal("%s", qPrintable(m_page.error));
    }
    m_page.item->setParentItem(window.contentItem());
    window.resize(int(m_page.item->width()), int(m_page.item->height()));
}

QQuickItem *ConsentPage::item(const char *name) const
{
    const QString objectName = QString::fromLatin1(name);
    auto *found = m_page.item->objectName() == objectName
                      ? m_page.item.get()
                      : m_page.item->findChild<QQuickItem *>(objectName);
    if (!found) {
        qFatal("the page has no item \"%s\"", name);
    }
    return found;
}

QVariant ConsentPage::of(const char *name, const char *property) const
{
    return item(name)->property(property);
}

QPoint ConsentPage::middleOf(const char *name) const
{
    const QQuickItem *target = item(name);
    return target->mapToScene({target->width() / 2, target->height() / 2}).toPoint();
}

void ConsentPage::click(const char *name)
{
    QTest::mouseClick(&window, Qt::LeftButton, {}, middleOf(name));
}

void ConsentPage::hover(const char *name)
{
    QTest::mouseMove(&window, middleOf(name));
}

void ConsentPage::hoverNothing()
{
    QTest::mouseMove(&window, {2, 2});
}

QPoint ConsentPage::linkPosition(const char *name, const QString &target) const
{
    QQuickItem *text = item(name);
    constexpr qreal step = 3;
    for (qreal y = 0; y < text->height(); y += step) {
        for (qreal x = 0; x < text->width(); x += step) {
            QString link;
            QMetaObject::invokeMethod(text, "linkAt", Q_RETURN_ARG(QString, link), Q_ARG(qreal, x),
                                      Q_ARG(qreal, y));
            if (link == target) {
                // One step further in: not on the very edge of the first letter.
                return text->mapToScene({x + 1, y + step}).toPoint();
            }
        }
    }
    return {};
}
