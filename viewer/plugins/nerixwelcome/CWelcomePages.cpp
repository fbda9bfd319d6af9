// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/nerixwelcome/CWelcomePages.h"

#include "plugins/nerixwelcome/CNerixWelcomeController.h"

#include <Plugin/NerixWelcome/INerixWelcomeTab.h>

#include <utility>

#include <QCoreApplication>
#include <QEvent>
#include <QLoggingCategory>
#include <QQmlComponent>
#include <QQmlContext>
#include <QQuickItem>

// The resource is in a static library, so nothing else asks the linker for it.
static void initResource()
{
    Q_INIT_RESOURCE(nerixwelcome);
}

namespace Plugin {
namespace NerixWelcome {

namespace {

Q_LOGGING_CATEGORY(log, "nerix.welcome", QtInfoMsg)

// The log is in English, what a user sees in the language of the viewer.
CWelcomePages::Page failed(const INerixWelcomeTab &tab, const QString &reason,
                           const QString &translatedReason)
{
    const char *text = QT_TRANSLATE_NOOP("Plugin::NerixWelcome::CWelcomePages",
                                         "The page \"%1\" cannot be shown: %2");
    qCWarning(log).noquote() << QString::fromLatin1(text).arg(tab.tabTitle(), reason);
    CWelcomePages::Page page;
    page.error = QCoreApplication::translate("Plugin::NerixWelcome::CWelcomePages", text)
                     .arg(tab.tabTitle(), translatedReason);
    return page;
}

CWelcomePages::Page failed(const INerixWelcomeTab &tab, const char *reason)
{
    return failed(tab, QString::fromLatin1(reason),
                  QCoreApplication::translate("Plugin::NerixWelcome::CWelcomePages", reason));
}

} // namespace

CWelcomePages::Page::Page() = default;
CWelcomePages::Page::Page(Page &&) noexcept = default;
CWelcomePages::Page &CWelcomePages::Page::operator=(Page &&other) noexcept
{
    // The item first: it still binds to its context.
    item = std::move(other.item);
    context = std::move(other.context);
    error = std::move(other.error);
    return *this;
}
CWelcomePages::Page::~Page() = default;

CWelcomePages::CWelcomePages(CNerixWelcomeController &controller, QObject *parent)
    : QObject(parent)
{
    initResource();
    m_engine.rootContext()->setContextProperty(QStringLiteral("_navigationController"),
                                               &controller);
    QCoreApplication::instance()->installEventFilter(this);
}

CWelcomePages::~CWelcomePages() = default;

CWelcomePages::Page CWelcomePages::load(INerixWelcomeTab &tab)
{
    Page page;
    page.context = std::make_unique<QQmlContext>(m_engine.rootContext());
    if (!tab.setupQmlContext(page.context.get())) {
        return failed(tab, QT_TRANSLATE_NOOP("Plugin::NerixWelcome::CWelcomePages",
                                             "its plug-in did not set it up"));
    }
    QQmlComponent component(&m_engine, tab.tabQmlSource());
    std::unique_ptr<QObject> object(component.create(page.context.get()));
    if (!object) {
        const QString reason = component.errorString().trimmed();
        return failed(tab, reason, reason);
    }
    page.item.reset(qobject_cast<QQuickItem *>(object.get()));
    if (!page.item) {
        const char *text =
            QT_TRANSLATE_NOOP("Plugin::NerixWelcome::CWelcomePages", "%1 is not an Item");
        const QString source = tab.tabQmlSource().toString();
        return failed(
            tab, QString::fromLatin1(text).arg(source),
            QCoreApplication::translate("Plugin::NerixWelcome::CWelcomePages", text).arg(source));
    }
    object.release();
    return page;
}

QQmlEngine &CWelcomePages::engine()
{
    return m_engine;
}

bool CWelcomePages::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::LanguageChange && watched == QCoreApplication::instance()) {
        m_engine.retranslate();
    }
    return QObject::eventFilter(watched, event);
}

} // namespace NerixWelcome
} // namespace Plugin
