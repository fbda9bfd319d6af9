// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/featurefiles/ConnectionFeatures.h"

#include "CFeatureFolder.h"
#include "plugins/featurefiles/CFeatureFile.h"

#include <FakeParameterCollection.h>

#include <QTest>

using namespace FeatureFiles;
using namespace ParameterCollection;

// What belongs to the connection stays as it is, whatever a file says.
class ConnectionFeaturesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void testNameTellsWhatBelongsToTheConnection_data();
    void testNameTellsWhatBelongsToTheConnection();
    void testStreamOfARunningGrabStaysWhereItIs();
    void testConnectionIsNotSetAtTheVeryCameraOfTheFileEither();
    void testWhatComesToDifferWhileItIsLoadedIsLeftAlone();
    void testSameValueIsUnchangedAndAMissingFeatureIsRefused();

private:
    QSharedPointer<FakeInteger> add(const QString &name, const char *value);
    CLoadReport load(const QStringList &lines) const;

    CFeatureFolder m_folder;
    FakeParameterCollection m_parameters;
    QStringList m_sets; // "name=value" of every value that was set, in order
};

void ConnectionFeaturesTest::init()
{
    m_parameters.all.clear();
    m_sets.clear();
}

QSharedPointer<FakeInteger> ConnectionFeaturesTest::add(const QString &name, const char *value)
{
    const auto parameter =
        m_parameters.add<FakeInteger>(("@CameraDevice/" + name.toLatin1()).constData());
    parameter->stateText = value;
    connect(parameter.data(), &IParameter::parameterValueAboutToBeSet, this,
            [this, name](const QString &text) { m_sets.append(name + '=' + text); });
    return parameter;
}

CLoadReport ConnectionFeaturesTest::load(const QStringList &lines) const
{
    return CFeatureFile(m_folder.write("in", lines)).load(m_parameters);
}

void ConnectionFeaturesTest::testNameTellsWhatBelongsToTheConnection_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isOfConnection");
    QTest::newRow("control") << "GevCCP" << true;
    QTest::newRow("computer of the images") << "GevSCDA" << true;
    QTest::newRow("computer of the messages") << "GevMCDA" << true;
    QTest::newRow("port of the images") << "GevSCPHostPort" << true;
    QTest::newRow("port of the messages") << "GevMCPHostPort" << true;
    QTest::newRow("a channel's number behind it") << "GevSCDA1" << true;
    QTest::newRow("a channel in brackets") << "GevSCPHostPort[0]" << true;
    QTest::newRow("a selector in brackets") << "GevSCDA[GevStreamChannelSelector=1]" << true;
    QTest::newRow("the channel that is meant") << "GevStreamChannelSelector" << false;
    QTest::newRow("how long without a sign of life") << "GevHeartbeatTimeout" << false;
    QTest::newRow("how large a packet is") << "GevSCPSPacketSize" << false;
    QTest::newRow("how far apart packets are") << "GevSCPD" << false;
    QTest::newRow("another name that begins alike") << "GevSCDAPolicy" << false;
    QTest::newRow("another name that ends alike") << "QmzGevCCP" << false;
}

void ConnectionFeaturesTest::testNameTellsWhatBelongsToTheConnection()
{
    QFETCH(QString, name);
    QTEST(ConnectionFeatures::contains(name), "isOfConnection");
}

void ConnectionFeaturesTest::testStreamOfARunningGrabStaysWhereItIs()
{
    add("GevSCPHostPort", "50123");
    add("GevSCDA", "2130706433");
    add("Gain", "1");
    const CLoadReport report = load({"GevSCPHostPort\t0", "GevSCDA\t0", "Gain\t2"});
    QCOMPARE(m_sets, QStringList{"Gain=2"});
    QCOMPARE(report.ofConnection, (QStringList{"GevSCPHostPort", "GevSCDA"}));
    QCOMPARE(report.leftAlone, QStringList());
    QCOMPARE(report.leftAloneHint(), QString());
    QCOMPARE(report.connectionHint(), QString("left alone: GevSCPHostPort, GevSCDA; what belongs "
                                              "to the connection is never loaded"));
    QCOMPARE(report.summary(), QString("1 set, 0 unchanged, 0 read-only, 0 not set"));
}

void ConnectionFeaturesTest::testConnectionIsNotSetAtTheVeryCameraOfTheFileEither()
{
    const QStringList names{"GevCCP", "GevMCPHostPort", "GevMCDA", "GevSCDA[1]"};
    add("DeviceID", "A1")->stateUserSettable = false;
    QStringList lines{"DeviceID\tA1"};
    for (const QString &name : names) {
        add(name, "1");
        lines.append(name + "\t2");
    }
    const CLoadReport report = load(lines);
    QCOMPARE(m_sets, QStringList());
    QCOMPARE(report.ofConnection, names);
}

// A grab that begins meanwhile sets the port, after it was found to be the same.
void ConnectionFeaturesTest::testWhatComesToDifferWhileItIsLoadedIsLeftAlone()
{
    const auto port = add("GevSCPHostPort", "0");
    const auto gain = add("Gain", "1");
    connect(gain.data(), &IParameter::parameterValueAboutToBeSet, port.data(),
            [port = port.data()] { port->stateText = "50123"; });
    const CLoadReport report = load({"GevSCPHostPort\t0", "Gain\t2"});
    QCOMPARE(m_sets, QStringList{"Gain=2"});
    QCOMPARE(report.ofConnection, QStringList{"GevSCPHostPort"});
    QCOMPARE(refusedIn(report), QStringList());
}

void ConnectionFeaturesTest::testSameValueIsUnchangedAndAMissingFeatureIsRefused()
{
    add("GevSCDA", "0");
    const CLoadReport report = load({"GevSCDA\t0", "GevMCDA\t0"});
    QCOMPARE(report.ofConnection, QStringList());
    QCOMPARE(report.connectionHint(), QString());
    QCOMPARE(report.unchanged, 1);
    QCOMPARE(refusedIn(report), QStringList{"GevMCDA: setValueText failed"});
}

QTEST_GUILESS_MAIN(ConnectionFeaturesTest)
#include "ConnectionFeaturesTest.moc"
