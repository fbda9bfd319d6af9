// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/help/HelpPlugin.h"

#include "plugins/help/IHelpViewService.h"

#include <CHelpHelper.h>
#include <Core/Plugin/ServiceLookup.h>
#include <DocumentationHelper.h>

#include <pluginsystem/CServiceRegistry.h>

#include <QFile>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using Plugin::Help::CHelpPlugin;
using Plugin::Help::IHelpViewService;

class HelpPluginTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void testEachTypeHasItsDocument_data();
    void testEachTypeHasItsDocument();
    void testDocumentThatIsMissingIsOneWarning();
    void testTypeWithoutADocumentIsOneWarning();
    void testWebAddressIsNamedWithoutADisplay();
    void testNobodyShowsHelpOnceThePluginHasEnded();

private:
    QString document(const char *name) const;

    QScopedPointer<QTemporaryDir> m_folder;
    PluginSystem::CServiceRegistry m_registry;
    QScopedPointer<CHelpPlugin> m_plugin;
    QSharedPointer<IHelpViewService> m_service;
};

void HelpPluginTest::init()
{
    m_folder.reset(new QTemporaryDir);
    m_plugin.reset(new CHelpPlugin(m_folder->path()));
    QVERIFY(m_plugin->preInitialize(&m_registry));
    QVERIFY(m_plugin->initialize());
    m_service = Core::Plugin::findService<IHelpViewService>(&m_registry);
    QVERIFY(m_service);
}

void HelpPluginTest::cleanup()
{
    m_service.reset();
    m_plugin->uninitialize(&m_registry);
    m_plugin.reset();
}

QString HelpPluginTest::document(const char *name) const
{
    return m_folder->path() + QLatin1Char('/') + QString::fromLatin1(name);
}

void HelpPluginTest::testEachTypeHasItsDocument_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QByteArray>("fileName");
    QTest::newRow("contents") << 0 << QByteArray("help.md");
    QTest::newRow("cameras") << 1 << QByteArray("cameras.md");
    QTest::newRow("features") << 2 << QByteArray("features.md");
    QTest::newRow("grabbing") << 3 << QByteArray("grabbing.md");
    QTest::newRow("licences") << 4 << QByteArray("licenses.md");
    QTest::newRow("privacy statement") << 5 << QByteArray("privacy.md");
}

void HelpPluginTest::testEachTypeHasItsDocument()
{
    QFETCH(int, type);
    QFETCH(QByteArray, fileName);
    QFile file(document(fileName));
    QVERIFY(file.open(QIODevice::WriteOnly));
    const QSignalSpy shown(m_service.data(), &IHelpViewService::shown);
    QTest::ignoreMessage(QtInfoMsg,
                         qPrintable(QStringLiteral("help document: %1").arg(file.fileName())));
    QVERIFY(CHelpHelper::showHelp(static_cast<CHelpHelper::HelpType>(type)));
    QCOMPARE(m_service->lastShown(), file.fileName());
    QCOMPARE(shown.count(), 1);
}

void HelpPluginTest::testDocumentThatIsMissingIsOneWarning()
{
    const QString warning = QStringLiteral("help document %1 cannot be read: install the viewer's "
                                           "documents again")
                                .arg(document("privacy.md"));
    QTest::ignoreMessage(QtWarningMsg, qPrintable(warning));
    QSignalSpy failed(m_service.data(), &IHelpViewService::failed);
    QVERIFY(!CHelpHelper::showHelp(CHelpHelper::HelpPrivacyStatement));
    QCOMPARE(m_service->lastShown(), QString());
    QCOMPARE(failed.count(), 1);
    QCOMPARE(failed.at(0).at(0).toString(),
             QStringLiteral("The document %1 cannot be read: install the viewer's documents again")
                 .arg(document("privacy.md")));
}

void HelpPluginTest::testTypeWithoutADocumentIsOneWarning()
{
    QTest::ignoreMessage(QtWarningMsg, "there is no help document of type 6");
    QVERIFY(!CHelpHelper::showHelp(static_cast<CHelpHelper::HelpType>(6)));
}

void HelpPluginTest::testWebAddressIsNamedWithoutADisplay()
{
    QTest::ignoreMessage(QtInfoMsg, "web address: https://ostrand.example/faq");
    QVERIFY(DocumentationHelper::OpenUrl(QStringLiteral("https://ostrand.example/faq"), false));
    QCOMPARE(m_service->lastShown(), QStringLiteral("https://ostrand.example/faq"));
}

void HelpPluginTest::testNobodyShowsHelpOnceThePluginHasEnded()
{
    QVERIFY(m_plugin->uninitialize(&m_registry));
    QVERIFY(!CHelpHelper::showHelp(CHelpHelper::HelpPrivacyStatement));
    QVERIFY(!Core::Plugin::findService<IHelpViewService>(&m_registry));
}

QTEST_MAIN(HelpPluginTest)

#include "HelpPluginTest.moc"
