// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include <DocumentationHelper.h>

#include <QDesktopServices>
#include <QTest>

class DocumentationHelperTest : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void openInsteadOfTheBrowser(const QUrl &url);

private Q_SLOTS:
    void init();
    void cleanup();
    void testAddress_data();
    void testAddress();
    void testHandlerDecides_data();
    void testHandlerDecides();
    void testBrowserOpensWithoutHandler();
    void testHandlerThatReplacesItself();

private:
    QStringList m_opened;
};

void DocumentationHelperTest::init()
{
    m_opened.clear();
}

void DocumentationHelperTest::cleanup()
{
    DocumentationHelper::setHandler(nullptr);
    QDesktopServices::unsetUrlHandler(QStringLiteral("https"));
}

void DocumentationHelperTest::openInsteadOfTheBrowser(const QUrl &url)
{
    m_opened += url.toString();
}

void DocumentationHelperTest::testAddress_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<bool>("isAccepted");

    QTest::newRow("https") << "https://www.example.com/privacy?x=1#top" << true;
    QTest::newRow("http") << "http://www.example.com/" << true;
    QTest::newRow("mailto") << "mailto:privacy@example.com" << true;
    QTest::newRow("a scheme is not told apart by case") << "HTTPS://www.example.com/" << true;
    QTest::newRow("a file") << "file:///etc/passwd" << false;
    QTest::newRow("a script") << "javascript:alert(1)" << false;
    QTest::newRow("ftp") << "ftp://www.example.com/x" << false;
    QTest::newRow("data") << "data:text/html,x" << false;
    QTest::newRow("a resource of the program") << "qrc:///page.qml" << false;
    QTest::newRow("another program") << "ssh://root@example.com" << false;
    QTest::newRow("a scheme that only begins like one") << "httpsx://www.example.com/" << false;
    QTest::newRow("no scheme") << "www.example.com" << false;
    QTest::newRow("a path") << "/usr/bin/true" << false;
    QTest::newRow("nothing") << "" << false;
    QTest::newRow("a space before it") << " https://www.example.com/" << false;
    QTest::newRow("a space inside") << "https://www.example.com/a b" << false;
    QTest::newRow("a port that is none") << "https://www.example.com:port/" << false;
    QTest::newRow("no server") << "https://" << false;
    QTest::newRow("no server but a path") << "https:/etc/passwd" << false;
    QTest::newRow("no recipient") << "mailto:" << false;
}

void DocumentationHelperTest::testAddress()
{
    QFETCH(QString, address);
    QFETCH(bool, isAccepted);
    DocumentationHelper::setHandler([this](const QUrl &url, bool) {
        m_opened += url.toString();
        return true;
    });

    if (!isAccepted) {
        const QString warning = QStringLiteral("not opened: %1 (only http, https and mailto "
                                               "addresses are)")
                                    .arg(address);
        QTest::ignoreMessage(QtWarningMsg, qPrintable(warning));
    }
    QCOMPARE(DocumentationHelper::OpenUrl(address, false), isAccepted);

    QCOMPARE(m_opened.size(), isAccepted ? 1 : 0);
    if (isAccepted) {
        QCOMPARE(m_opened.first().compare(address, Qt::CaseInsensitive), 0);
    }
}

void DocumentationHelperTest::testHandlerDecides_data()
{
    QTest::addColumn<bool>("inViewer");
    QTest::addColumn<bool>("isOpened");

    QTest::newRow("in the viewer, opened") << true << true;
    QTest::newRow("in the viewer, not opened") << true << false;
    QTest::newRow("in the browser, opened") << false << true;
    QTest::newRow("in the browser, not opened") << false << false;
}

void DocumentationHelperTest::testHandlerDecides()
{
    QFETCH(bool, inViewer);
    QFETCH(bool, isOpened);
    bool given = !inViewer;
    DocumentationHelper::setHandler([&](const QUrl &, bool askedInViewer) {
        given = askedInViewer;
        return isOpened;
    });

    QCOMPARE(DocumentationHelper::OpenUrl(QStringLiteral("https://www.example.com/"), inViewer),
             isOpened);
    QCOMPARE(given, inViewer);
}

void DocumentationHelperTest::testBrowserOpensWithoutHandler()
{
    QDesktopServices::setUrlHandler(QStringLiteral("https"), this, "openInsteadOfTheBrowser");
    DocumentationHelper::setHandler([](const QUrl &, bool) { return false; });
    DocumentationHelper::setHandler(nullptr);

    QVERIFY(DocumentationHelper::OpenUrl(QStringLiteral("https://www.example.com/"), true));
    QCOMPARE(m_opened, QStringList(QStringLiteral("https://www.example.com/")));
}

void DocumentationHelperTest::testHandlerThatReplacesItself()
{
    const QString inside = QStringLiteral("a text that the function holds");
    DocumentationHelper::setHandler([this, inside](const QUrl &, bool) {
        DocumentationHelper::setHandler(nullptr);
        m_opened += inside;
        return true;
    });

    QVERIFY(DocumentationHelper::OpenUrl(QStringLiteral("https://www.example.com/"), true));
    QCOMPARE(m_opened, QStringList(QStringLiteral("a text that the function holds")));
}

QTEST_GUILESS_MAIN(DocumentationHelperTest)
#include "DocumentationHelperTest.moc"
