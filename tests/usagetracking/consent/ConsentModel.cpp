// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "ConsentModel.h"

#include "TrackingFixture.h"

namespace {

QString prepared(int instance)
{
    return QStringLiteral("ruiCreateConfig(#%1 | %2 | 1234567890 | nerixViewer | "
                          "https://analytics.example | 3 |  | 0 | 0)\n"
                          "ruiSetProductData(#%1 | Standard | US English | 7.1.0 | 11271)")
        .arg(QString::number(instance), expectedDirectory());
}

} // namespace

void ConsentModel::start()
{
    selected = storedSelected;
    applied = storedEnabled;
    shown = storedEnabled;
    applyEnabled = false;
    owesAnswer = !selected;
    notifications.append("enabled");
    if (selected) {
        notifications.append("selected");
    }
    active = selected && applied;
    if (active) {
        track();
    }
}

void ConsentModel::click(bool yes)
{
    const bool repeatsTheHeldAnswer = selected && shown == yes;
    if (repeatsTheHeldAnswer) {
        return;
    }
    shown = yes;
    if (!applyEnabled) {
        notifications.append("apply");
    }
    applyEnabled = true;
    notifications.append("enabled");
}

void ConsentModel::apply()
{
    applied = shown;
    applyEnabled = false;
    notifications.append("apply");
    if (!selected) {
        notifications.append("selected");
    }
    selected = true;
    owesAnswer = false;
    notifications.append("clicked");
    if (applied == active) {
        return;
    }
    active = applied;
    if (active) {
        track();
    } else {
        withdraw();
    }
}

void ConsentModel::shutDown()
{
    storedEnabled = applied;
    storedSelected = selected;
    if (sessionOpen) {
        endSession();
    }
    active = false;
}

void ConsentModel::track()
{
    call("ruiCreateInstance(0)");
    ++lastInstance;
    calls.append(prepared(lastInstance).split('\n'));
    call(QStringLiteral("ruiStartSDK(#%1)").arg(lastInstance));
    call(QStringLiteral("ruiTrackEventText(#%1 | GeneralEvent | SessionStarted | "
                        "{\"EventCategory\":\"GeneralEvent\","
                        "\"EventName\":\"SessionStarted\"} | )")
             .arg(lastInstance));
    sessionOpen = true;
}

void ConsentModel::withdraw()
{
    if (!sessionOpen) {
        return;
    }
    endSession();
    call("ruiCreateInstance(0)");
    ++lastInstance;
    calls.append(prepared(lastInstance).split('\n'));
    call(QStringLiteral("ruiOptOut(#%1)").arg(lastInstance));
    call(QStringLiteral("ruiStartSDK(#%1)").arg(lastInstance));
    call(QStringLiteral("ruiStopSDK(#%1 | 0)").arg(lastInstance));
    call(QStringLiteral("ruiDestroyInstance(#%1)").arg(lastInstance));
}

void ConsentModel::endSession()
{
    call(QStringLiteral("ruiTrackEventText(#%1 | GeneralEvent | SessionEnded | "
                        "{\"EventCategory\":\"GeneralEvent\",\"EventName\":\"SessionEnded\","
                        "\"FinalCameraCount\":0,\"TotalUsedCameraCount\":0} | )")
             .arg(lastInstance));
    call(QStringLiteral("ruiStopSDK(#%1 | 0)").arg(lastInstance));
    call(QStringLiteral("ruiDestroyInstance(#%1)").arg(lastInstance));
    sessionOpen = false;
}
