// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "ConsentHistory.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTimer>

using namespace Plugin::UsageTracking;

namespace {

/// Numbers the instances from 1 in the order in which they appear: others count at the same time.
QStringList renumbered(const QStringList &calls)
{
    static const QRegularExpression handle(QStringLiteral("\\(#(\\d+)"));
    QMap<QString, int> numbers;
    QStringList result;
    for (QString call : calls) {
        const auto match = handle.match(call);
        if (match.hasMatch()) {
            int &number = numbers[match.captured(1)];
            number = number ? number : numbers.size();
            call.replace(match.capturedStart(1), match.capturedLength(1), QString::number(number));
        }
        result.append(call);
    }
    return result;
}

/// Settings are written through to the disk at each of thousands of ends of the viewer, which takes
/// most of the time: where there is a folder in memory, they are there.
QString settingsTemplate()
{
    const QString inMemory = QStringLiteral("/dev/shm");
    const bool isUsable = QFileInfo(inMemory).isDir() && QFileInfo(inMemory).isWritable();
    return (isUsable ? inMemory : QDir::tempPath()) + QStringLiteral("/ConsentHistory-XXXXXX");
}

QString stateText(bool shown, bool applied, bool selected, bool applyEnabled, bool owes,
                  bool active)
{
    return QStringLiteral("shown %1, applied %2, selected %3, apply %4, owes %5, active %6")
        .arg(shown)
        .arg(applied)
        .arg(selected)
        .arg(applyEnabled)
        .arg(owes)
        .arg(active);
}

} // namespace

ConsentHistory::ConsentHistory(bool storedEnabled, bool storedSelected, const QString &letters)
    : m_letters(letters)
    , m_played(QStringLiteral("stored %1/%2: ").arg(storedEnabled).arg(storedSelected))
    , m_settings(settingsTemplate())
{
    m_model.storedEnabled = storedEnabled;
    m_model.storedSelected = storedSelected;
    useOwnSettings();
    storeKeys(storedEnabled, storedSelected);
}

void ConsentHistory::start()
{
    m_played += QLatin1Char('s');
    useOwnSettings();
    m_viewer = std::make_unique<PluginFixture>();
    m_viewer->plugin->preInitialize(&m_viewer->host);
    listen();
    m_viewer->running = true;
    m_viewer->plugin->initialize();
    Q_EMIT m_viewer->host.initializationDone();
    m_model.start();
}

void ConsentHistory::step(int index)
{
    const QChar letter = m_letters.at(index);
    m_played += letter;
    if (letter == QLatin1Char('r')) {
        shutDown();
        start();
    } else if (letter == QLatin1Char('a')) {
        m_viewer->controller()->onDataPrivacyApplyClicked();
        m_model.apply();
    } else {
        const bool yes = letter == QLatin1Char('y');
        m_viewer->click(yes);
        m_model.click(yes);
    }
}

void ConsentHistory::shutDown()
{
    useOwnSettings();
    m_viewer->shutDown();
    m_callsOfEarlierRuns += m_viewer->analytics.takeCallsIn(
        &UsageTrackingPluginProbe::trackingThread(*m_viewer->plugin));
    m_viewer.reset();
    m_model.shutDown();
}

void ConsentHistory::whenSettled(const std::function<void()> &done) const
{
    auto *sentinel = new QObject;
    sentinel->moveToThread(&UsageTrackingPluginProbe::trackingThread(*m_viewer->plugin));
    QTimer::singleShot(100, sentinel, [sentinel, done] {
        sentinel->deleteLater();
        done();
    });
}

QString ConsentHistory::fault()
{
    QStringList found{withoutConsent()};
    if (calls() != m_model.calls) {
        found.append(QStringLiteral("calls:\n  %1\nexpected:\n  %2")
                         .arg(calls().join("\n  "), m_model.calls.join("\n  ")));
    }
    if (m_notifications != m_model.notifications) {
        found.append(QStringLiteral("signals %1, expected %2")
                         .arg(m_notifications.join(' '), m_model.notifications.join(' ')));
    }
    const QString expected = stateText(m_model.shown, m_model.applied, m_model.selected,
                                       m_model.applyEnabled, m_model.owesAnswer, m_model.active);
    const auto *consent = m_viewer ? m_viewer->controller() : nullptr;
    const QString actual =
        !consent
            ? expected
            : stateText(consent->dataPrivacyOptInEnabled(), consent->appliedOptInEnabled(),
                        consent->dataPrivacyOptInSelected(), consent->dataPrivacyApplyEnabled(),
                        UsageTrackingPluginProbe::tab(*m_viewer->plugin)->isApplyNeeded(),
                        m_viewer->trackingActive());
    if (actual != expected) {
        found.append(actual + QStringLiteral(", expected ") + expected);
    }
    useOwnSettings();
    if (storedKey("OptInEnabled").toBool() != m_model.storedEnabled
        || storedKey("OptInSelected").toBool() != m_model.storedSelected) {
        found.append(QStringLiteral("stored keys differ"));
    }
    found.removeAll(QString());
    return found.isEmpty() ? QString() : m_played + QLatin1Char(' ') + found.join('\n');
}

/// Judged by the calls alone: none may come while consent is neither in force nor just withdrawn.
QString ConsentHistory::withoutConsent()
{
    const QStringList all = calls();
    const int added = all.size() - m_callsSoFar;
    m_callsSoFar = all.size();
    const auto *consent = m_viewer ? m_viewer->controller() : nullptr;
    const bool hasConsent =
        consent && consent->dataPrivacyOptInSelected() && consent->appliedOptInEnabled();
    const bool hadConsent = std::exchange(m_hadConsent, hasConsent);
    if (!hadConsent && !hasConsent && added > 0) {
        return QStringLiteral("%1 calls without consent").arg(added);
    }
    if (m_viewer && hadConsent && !hasConsent && added != 10) {
        return QStringLiteral("%1 calls for a withdrawal").arg(added);
    }
    return QString();
}

void ConsentHistory::useOwnSettings() const
{
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_settings.path());
}

void ConsentHistory::listen()
{
    using C = Internal::CDataPrivacyTabController;
    const C *consent = m_viewer->controller();
    const auto note = [this](const char *signal) {
        return [this, signal] { m_notifications.append(QLatin1String(signal)); };
    };
    QObject::connect(consent, &C::dataPrivacyOptInSelectedChanged, note("selected"));
    QObject::connect(consent, &C::dataPrivacyOptInEnabledChanged, note("enabled"));
    QObject::connect(consent, &C::dataPrivacyApplyEnabledChanged, note("apply"));
    QObject::connect(consent, &C::dataPrivacyApplyClicked, note("clicked"));
}

QStringList ConsentHistory::calls() const
{
    QStringList all = m_callsOfEarlierRuns;
    if (m_viewer) {
        all += m_viewer->analytics.callsIn(
            &UsageTrackingPluginProbe::trackingThread(*m_viewer->plugin));
    }
    return renumbered(all);
}
