// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "scripting/CScriptConsent.h"

#include "plugins/help/IHelpViewService.h"
#include "plugins/nerixwelcome/CNerixWelcomeController.h"

#include <Plugin/NerixWelcome/INerixWelcomeTab.h>

#include <QQmlContext>
#include <QQmlEngine>

namespace Scripting {

namespace {

constexpr char answered[] = "dataPrivacyOptInSelected";
constexpr char answerIsYes[] = "dataPrivacyOptInEnabled";
constexpr char applyEnabled[] = "dataPrivacyApplyEnabled";

} // namespace

CScriptConsent::CScriptConsent(const Core::Plugin::IPluginInitializer &services, QObject *parent)
    : CScriptObject(services, parent)
    , m_engine(std::make_unique<QQmlEngine>())
{}

CScriptConsent::~CScriptConsent() = default;

void CScriptConsent::answer(const QString &yesOrNo)
{
    const bool isYes = yesOrNo == QLatin1String("yes");
    if (!isYes && yesOrNo != QLatin1String("no")) {
        fail(QStringLiteral("the answer is \"%1\": give \"yes\" or \"no\"").arg(yesOrNo));
    } else if (QObject *page = controller()) {
        page->setProperty(answerIsYes, isYes);
    }
}

void CScriptConsent::apply()
{
    QObject *page = controller();
    if (!page) {
        return;
    }
    if (!page->property(applyEnabled).toBool()) {
        fail(QStringLiteral("Apply is disabled: choose an answer first"));
        return;
    }
    QMetaObject::invokeMethod(page, "onDataPrivacyApplyClicked");
}

QVariantMap CScriptConsent::state()
{
    const QObject *page = controller();
    if (!page) {
        return {};
    }
    const QLatin1String answer(page->property(answerIsYes).toBool() ? "yes" : "no");
    return {{QStringLiteral("answered"), page->property(answered)},
            {QStringLiteral("answer"), QString(answer)},
            {QStringLiteral("applyEnabled"), page->property(applyEnabled)}};
}

void CScriptConsent::openLink(const QString &address)
{
    using Plugin::Help::IHelpViewService;
    QObject *page = controller();
    const auto help = page ? service<IHelpViewService>("Help") : nullptr;
    if (!help) {
        return;
    }
    bool isShown = false;
    const QObject context;
    connect(help.data(), &IHelpViewService::shown, &context, [&isShown] { isShown = true; });
    QMetaObject::invokeMethod(page, "onDataPrivacyLinkClicked", Q_ARG(QString, address));
    if (!isShown) {
        fail(
            QStringLiteral("link \"%1\" was not opened, the log says why: give DataPrivacy.txt, or "
                           "an http, https or mailto address")
                .arg(address));
    }
}

QObject *CScriptConsent::controller()
{
    using Plugin::NerixWelcome::CNerixWelcomeController;
    const auto screen = service<CNerixWelcomeController>("NerixWelcome");
    if (!screen) {
        return nullptr;
    }
    const auto tabs = screen->tabs();
    for (auto *tab : tabs) {
        if (QObject *found = controllerOf(tab)) {
            return found;
        }
    }
    fail(QStringLiteral("the welcome screen has no consent page: plugins.list() says whether "
                        "UsageTracking is running, and Help > Data Privacy whether usage tracking "
                        "is switched off on this computer"));
    return nullptr;
}

QObject *CScriptConsent::controllerOf(Plugin::NerixWelcome::INerixWelcomeTab *tab)
{
    m_context = std::make_unique<QQmlContext>(m_engine.get());
    if (!tab->setupQmlContext(m_context.get())) {
        return nullptr;
    }
    return m_context->contextProperty(QStringLiteral("_dataPrivacyController")).value<QObject *>();
}

} // namespace Scripting
