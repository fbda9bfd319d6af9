// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// What the plug-in writes at its end, and what it waits for.

#include "MessageLog.h"
#include "PluginFixture.h"
#include "TestMain.h"

#include <atomic>

#include <QSemaphore>

using Probe = Plugin::UsageTracking::UsageTrackingPluginProbe;

namespace {

/// Settings of a format that keeps what is written as it was given, type and all, and no file.
class WrittenSettings
{
public:
    WrittenSettings()
    {
        static const QSettings::Format format =
            QSettings::registerFormat(QStringLiteral("written"), read, write, Qt::CaseSensitive);
        kept().clear();
        writes() = true;
        QSettings::setPath(format, QSettings::UserScope, qEnvironmentVariable("XDG_CONFIG_HOME"));
        QSettings::setDefaultFormat(format);
    }

    ~WrittenSettings()
    {
        QSettings::setDefaultFormat(QSettings::IniFormat);
    }

    Q_DISABLE_COPY_MOVE(WrittenSettings)

    /// Makes every later writing fail.
    void fail()
    {
        writes() = false;
    }

    /// The keys that were written, in their order, each with the type and the text of its value.
    QStringList values() const
    {
        QStringList texts;
        for (auto value = kept().constBegin(); value != kept().constEnd(); ++value) {
            texts.append(
                QStringLiteral("%1 = %2 %3")
                    .arg(value.key(), QLatin1String(value->typeName()), value->toString()));
        }
        return texts;
    }

private:
    static QSettings::SettingsMap &kept()
    {
        static QSettings::SettingsMap map;
        return map;
    }

    static bool &writes()
    {
        static bool possible = true;
        return possible;
    }

    static bool read(QIODevice & /*device*/, QSettings::SettingsMap & /*map*/)
    {
        return true;
    }

    static bool write(QIODevice & /*device*/, const QSettings::SettingsMap &map)
    {
        kept() = map;
        return writes();
    }
};

} // namespace

class ShutDownTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        RecordingAnalytics::instance().reset();
        storeKeys(QVariant(), QVariant());
    }

    void bothKeysAreWrittenAsBools_data()
    {
        QTest::addColumn<bool>("answered");
        QTest::addColumn<bool>("yes");
        QTest::addColumn<QStringList>("written");
        QTest::newRow("no answer") << false << false
                                   << QStringList{"UsageTracking/OptInEnabled = bool false",
                                                  "UsageTracking/OptInSelected = bool false"};
        QTest::newRow("yes") << true << true
                             << QStringList{"UsageTracking/OptInEnabled = bool true",
                                            "UsageTracking/OptInSelected = bool true"};
        QTest::newRow("no") << true << false
                            << QStringList{"UsageTracking/OptInEnabled = bool false",
                                           "UsageTracking/OptInSelected = bool true"};
    }

    void bothKeysAreWrittenAsBools()
    {
        QFETCH(bool, answered);
        QFETCH(bool, yes);
        const WrittenSettings settings;
        PluginFixture f;
        f.start();
        if (answered) {
            f.click(yes);
            f.apply();
        }
        QCOMPARE(settings.values(), QStringList());
        f.shutDown();
        QTEST(settings.values(), "written");
    }

    void settingsThatCannotBeWrittenAreNoWordInTheLog()
    {
        WrittenSettings settings;
        PluginFixture f;
        f.start();
        settings.fail();
        const MessageLog log;
        QCOMPARE(f.plugin->uninitialize(&f.host), true);
        f.running = false;
        QCOMPARE(settings.values().size(), 2);
        QCOMPARE(log.texts(), QStringList());
    }

    void shutDownWaitsForTheEndOfTheSessionHoweverLongItTakes()
    {
        storeKeys(true, true);
        PluginFixture f;
        f.start();
        QSemaphore returned;
        std::atomic<bool> stopped{false};
        // The library takes its time, unless nobody waits for it any more.
        constexpr int patienceMs = 4000;
        f.analytics.setDuring(QStringLiteral("ruiStopSDK"), [&] {
            returned.tryAcquire(1, patienceMs);
            stopped = true;
        });
        f.shutDown();
        const bool waited = stopped;
        returned.release();
        Probe::trackingThread(*f.plugin).wait();
        QVERIFY2(waited, "the shut-down left the tracking thread behind");
    }
};

NERIX_TEST_MAIN(ShutDownTest)
#include "ShutDownTest.moc"
