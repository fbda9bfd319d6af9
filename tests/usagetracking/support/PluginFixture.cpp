// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "PluginFixture.h"

#include "TestConfiguration.h"

#include <QEventLoop>
#include <QTimer>

using namespace Plugin::UsageTracking;

PluginFixture::PluginFixture()
    : plugin(new CUsageTrackingPlugin)
{
    useTestAnalyticsConfiguration();
    plugin->setObjectName(QStringLiteral("UsageTracking"));
}

PluginFixture::~PluginFixture()
{
    if (running) {
        shutDown();
    }
}

bool PluginFixture::initialize()
{
    plugin->preInitialize(&host);
    running = true;
    return plugin->initialize();
}

void PluginFixture::done()
{
    Q_EMIT host.initializationDone();
    waitForRequests();
}

void PluginFixture::start()
{
    initialize();
    done();
}

void PluginFixture::shutDown()
{
    plugin->uninitialize(&host);
    running = false;
}

void PluginFixture::openSession()
{
    QMetaObject::invokeMethod(UsageTrackingPluginProbe::provider(*plugin), "startTracking",
                              Qt::BlockingQueuedConnection);
    analytics.takeCalls();
}

void PluginFixture::click(bool yes)
{
    controller()->setProperty("dataPrivacyOptInEnabled", yes);
}

void PluginFixture::apply()
{
    controller()->onDataPrivacyApplyClicked();
    waitForRequests();
}

void PluginFixture::waitForRequests()
{
    auto *sentinel = new QObject;
    sentinel->moveToThread(&UsageTrackingPluginProbe::trackingThread(*plugin));
    QEventLoop loop;
    QTimer::singleShot(100, sentinel, [&] {
        sentinel->deleteLater();
        QMetaObject::invokeMethod(&loop, &QEventLoop::quit, Qt::QueuedConnection);
    });
    loop.exec();
}

bool PluginFixture::trackingActive() const
{
    return UsageTrackingPluginProbe::trackingActive(*plugin);
}

Internal::CDataPrivacyTabController *PluginFixture::controller() const
{
    return UsageTrackingPluginProbe::controller(*plugin);
}

QVariant storedKey(const char *key)
{
    return QSettings().value(QStringLiteral("UsageTracking/%1").arg(QLatin1String(key)));
}

void storeKeys(const QVariant &optInEnabled, const QVariant &optInSelected)
{
    QSettings settings;
    settings.clear();
    if (optInEnabled.isValid()) {
        settings.setValue(QStringLiteral("UsageTracking/OptInEnabled"), optInEnabled);
    }
    if (optInSelected.isValid()) {
        settings.setValue(QStringLiteral("UsageTracking/OptInSelected"), optInSelected);
    }
}
