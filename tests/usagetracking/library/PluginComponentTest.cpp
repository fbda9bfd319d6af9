// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// The real plug-in library, loaded by the real loader into a host that does not exist; the
// recording analytics library stands before the real one.

#include "FakeHost.h"
#include "RecordingAnalytics.h"
#include "TestMain.h"

#include <Core/Plugin/ALocalizedPlugin.h>
#include <Plugin/NerixWelcome/INerixWelcomeTab.h>

#include <QPluginLoader>

using Core::Plugin::ALocalizedPlugin;

class PluginComponentTest : public QObject
{
    Q_OBJECT

private:
    static QStringList records()
    {
        QStringList found;
        for (const QString &call : RecordingAnalytics::instance().calls()) {
            if (call.startsWith("ruiTrackEvent")) {
                found.append(call);
            }
        }
        return found;
    }

private Q_SLOTS:
    void init()
    {
        RecordingAnalytics::instance().reset();
        m_host = std::make_unique<FakeHost>();
        m_plugin.reset(qobject_cast<ALocalizedPlugin *>(m_loader.instance()));
        QVERIFY2(m_plugin, qPrintable(m_loader.errorString()));
        m_plugin->setObjectName("UsageTracking");
    }

    void cleanup()
    {
        m_plugin.reset();
        m_host.reset();
    }

    void wholeSessionOverTheRealConnections()
    {
        QSettings settings;
        settings.setValue("UsageTracking/OptInEnabled", true);
        settings.setValue("UsageTracking/OptInSelected", true);
        settings.sync();
        const auto camera = m_host->makeCamera("A", "XQZ-2000");
        m_plugin->preInitialize(m_host.get());
        QVERIFY(m_plugin->initialize());
        Q_EMIT m_host->initializationDone();
        QVERIFY(RecordingAnalytics::instance().waitForCalls(5));
        m_host->inCameraThread([&] {
            Q_EMIT m_host->cameraStatus->deviceConnected(camera);
            Q_EMIT m_host->enumeration->enumerationChanged();
            Q_EMIT m_host->cameraStatus->deviceClosing(camera);
        });
        QVERIFY(m_plugin->uninitialize(m_host.get()));
        QCOMPARE(records(),
                 QStringList(
                     {"ruiTrackEventText(#1 | GeneralEvent | SessionStarted | "
                      "{\"EventCategory\":\"GeneralEvent\",\"EventName\":\"SessionStarted\"} | )",
                      "ruiTrackEvent(#1 | Model | Vendor ***-2000 | )",
                      "ruiTrackEventText(#1 | Camera | Connected | {\"CameraNr\":0,"
                      "\"EventCategory\":\"Camera\",\"EventName\":\"Connected\","
                      "\"Model\":\"Vendor ***-2000\"} | )",
                      "ruiTrackEventText(#1 | GeneralEvent | InitialCameraCount | "
                      "{\"EventCategory\":\"GeneralEvent\",\"EventName\":\"InitialCameraCount\","
                      "\"InitialCameraCount\":1} | )",
                      "ruiTrackEventText(#1 | Camera | Closed | {\"CameraNr\":0,"
                      "\"EventCategory\":\"Camera\",\"EventName\":\"Closed\","
                      "\"FeatureStreamStats\":\"\",\"Model\":\"Vendor ***-2000\"} | )",
                      "ruiTrackEventText(#1 | GeneralEvent | SessionEnded | "
                      "{\"EventCategory\":\"GeneralEvent\",\"EventName\":\"SessionEnded\","
                      "\"FinalCameraCount\":1,\"TotalUsedCameraCount\":1} | )"}));
    }

    void titleAndEntryAreTranslated_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("text");
        QTest::newRow("ja") << "ja"
                            << QStringLiteral(
                                   u"\u30c7\u30fc\u30bf\u30d7\u30e9\u30a4\u30d0\u30b7\u30fc");
        QTest::newRow("ko") << "ko" << QStringLiteral(u"\uac1c\uc778\uc815\ubcf4 \ubcf4\ud638");
        QTest::newRow("zh") << "zh" << QStringLiteral(u"\u6570\u636e\u9690\u79c1");
        QTest::newRow("zh_CN falls back to zh")
            << "zh_CN" << QStringLiteral(u"\u6570\u636e\u9690\u79c1");
        QTest::newRow("the English catalogue is empty") << "en"
                                                        << "Data Privacy";
    }

    void titleAndEntryAreTranslated()
    {
        QFETCH(QString, language);
        QFETCH(QString, text);
        QVERIFY(m_plugin->setLanguage(language));
        m_plugin->preInitialize(m_host.get());
        m_plugin->initialize();
        const QString entry = m_host->menu->registeredAction->text();
        const QString title = m_host->welcome->tabs.at(0)->tabTitle();
        m_plugin->uninitialize(m_host.get());
        QCOMPARE(entry, text);
        QCOMPARE(title, text);
    }

    void entryHasAnIcon()
    {
        m_plugin->preInitialize(m_host.get());
        m_plugin->initialize();
        QVERIFY(!m_host->menu->registeredAction->icon().pixmap(16, 16).isNull());
        m_plugin->uninitialize(m_host.get());
    }

private:
    QPluginLoader m_loader{QStringLiteral(USAGETRACKING_LIBRARY)};
    std::unique_ptr<FakeHost> m_host;
    std::unique_ptr<ALocalizedPlugin> m_plugin;
};

NERIX_TEST_MAIN(PluginComponentTest)
#include "PluginComponentTest.moc"
