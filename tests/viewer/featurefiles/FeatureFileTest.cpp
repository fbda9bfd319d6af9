// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "CFeatureFolder.h"
#include "plugins/featurefiles/CFeatureFile.h"
#include "support/CSmallFiles.h"

#include <FakeParameterCollection.h>

#include <functional>

#include <QDir>
#include <QSignalSpy>
#include <QTest>

using namespace FeatureFiles;
using namespace ParameterCollection;

// Features as a file, saved and loaded without a camera.
class FeatureFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void testSavedFileIsTheFeatureStream();
    void testFileThatCannotBeWrittenIsToldAndNoneIsLeft();
    void testSavingWithoutRoomIsToldAndLeavesTheFileAsItIs();
    void testCameraThatCannotBeReadLeavesTheFileAsItIs();
    void testSavingThatIsNoLongerWantedLeavesTheFileAsItIs();

    void testValuesAreSetInTheOrderOfTheFile();
    void testEachValueIsCounted();
    void testSameNumberInAnotherNotationIsNotSet_data();
    void testSameNumberInAnotherNotationIsNotSet();
    void testValueThatDependsOnALaterOneIsTriedAgain();
    void testRefusalIsToldOnceWhenNothingHelps();
    void testValueThatALaterOneChangesIsSetAgain();
    void testValueThatTheCameraMakesAnotherIsTold();
    void testCameraThatIsGoneIsNotTakenForReadOnly();
    void testCancelledLoadingTellsWhatWasTried();
    void testProgressCountsUpToTheEnd();
    void testFileOfAnotherKindSetsNothing_data();
    void testFileOfAnotherKindSetsNothing();
    void testMissingFileIsTold();
    void testLineEndsOfAnotherSystemAreTaken();

private:
    QSharedPointer<FakeInteger> add(const char *name, const char *value);
    CLoadReport load(const QStringList &lines, const CFeatureLoader::Progress &progress = {}) const;

    CFeatureFolder m_folder;
    FakeParameterCollection m_parameters;
    QStringList m_sets; // "name=value" of every value that was set, in order
};

namespace {

// A parameter whose camera has rules.
class RuledInteger : public FakeInteger
{
public:
    using FakeInteger::FakeInteger;

    void setValueText(const QString &text) override
    {
        const QString refusal = rule(text);
        if (!refusal.isEmpty()) {
            throw CParameterException(refusal);
        }
        FakeInteger::setValueText(text);
        afterSet(*this);
    }

    std::function<QString(const QString &)> rule = [](const QString &) { return QString(); };
    std::function<void(RuledInteger &)> afterSet = [](RuledInteger &) {};
};

QString messageOf(const std::function<void()> &work)
{
    try {
        work();
    } catch (const CParameterException &exception) {
        return exception.message();
    }
    return QStringLiteral("nothing was thrown");
}

} // namespace

void FeatureFileTest::init()
{
    m_parameters.all.clear();
    m_parameters.stream.clear();
    m_parameters.streamThrows = false;
    m_sets.clear();
}

QSharedPointer<FakeInteger> FeatureFileTest::add(const char *name, const char *value)
{
    const auto parameter =
        m_parameters.add<RuledInteger>(("@CameraDevice/" + QByteArray(name)).constData());
    parameter->stateText = value;
    connect(
        parameter.data(), &IParameter::parameterValueAboutToBeSet, this,
        [this, name = QString(name)](const QString &text) { m_sets.append(name + '=' + text); });
    return parameter;
}

CLoadReport FeatureFileTest::load(const QStringList &lines,
                                  const CFeatureLoader::Progress &progress) const
{
    return CFeatureFile(m_folder.write("in", lines)).load(m_parameters, progress);
}

void FeatureFileTest::testSavedFileIsTheFeatureStream()
{
    m_parameters.stream = QString::fromUtf8("# nerix ...\nLabel\tStra\xc3\x9f"
                                            "e\n");
    m_folder.writeRaw("out", "old");
    CFeatureFile(m_folder.path("out")).save(m_parameters);
    QCOMPARE(m_folder.read("out"), QByteArray("# nerix ...\nLabel\tStra\xc3\x9f"
                                              "e\n"));
    QCOMPARE(m_parameters.streamsRead.last(), QString("@CameraDevice"));
}

void FeatureFileTest::testFileThatCannotBeWrittenIsToldAndNoneIsLeft()
{
    const QString path = m_folder.path("no/such/folder");
    const QString message = messageOf([&] { CFeatureFile(path).save(m_parameters); });
    QCOMPARE(message, "file " + path
                          + " cannot be written: No such file or directory; choose another folder");
    QVERIFY(!QFile::exists(path));
}

void FeatureFileTest::testSavingWithoutRoomIsToldAndLeavesTheFileAsItIs()
{
    m_folder.writeRaw("out", "old");
    m_parameters.stream = QString(2000, 'x');
    const CSmallFiles limit(1000);
    QCOMPARE(messageOf([&] { CFeatureFile(m_folder.path("out")).save(m_parameters); }),
             "file " + m_folder.path("out")
                 + " cannot be written: File too large; choose another folder");
    QCOMPARE(m_folder.read("out"), QByteArray("old"));
}

void FeatureFileTest::testCameraThatCannotBeReadLeavesTheFileAsItIs()
{
    m_folder.writeRaw("out", "old");
    m_parameters.streamThrows = true;
    QCOMPARE(messageOf([&] { CFeatureFile(m_folder.path("out")).save(m_parameters); }),
             QString("featureStream failed"));
    QCOMPARE(m_folder.read("out"), QByteArray("old"));
}

void FeatureFileTest::testSavingThatIsNoLongerWantedLeavesTheFileAsItIs()
{
    m_folder.writeRaw("out", "old");
    CFeatureFile(m_folder.path("out")).save(m_parameters, [] { return false; });
    QCOMPARE(m_folder.read("out"), QByteArray("old"));
}

void FeatureFileTest::testValuesAreSetInTheOrderOfTheFile()
{
    add("A", "1");
    add("B", "1");
    add("C", "1");
    load({"C\t2", "A\t3", "B\t4"});
    QCOMPARE(m_sets, (QStringList{"C=2", "A=3", "B=4"}));
}

void FeatureFileTest::testEachValueIsCounted()
{
    add("Changed", "1");
    add("Changed2", "1");
    add("Same", "5");
    add("Serial", "77")->stateUserSettable = false;
    add("Broken", "1")->throwing.insert("setValueText");
    const CLoadReport report =
        load({"Changed\t2", "Changed2\t2", "Same\t5", "Serial\t78", "Broken\t2", "Unknown\t2"});
    QCOMPARE(report.set, 2);
    QCOMPARE(report.unchanged, 1);
    QCOMPARE(report.readOnly, 1);
    QCOMPARE(refusedIn(report),
             (QStringList{"Broken: setValueText failed", "Unknown: setValueText failed"}));
    QCOMPARE(report.summary(), QString("2 set, 1 unchanged, 1 read-only, 2 not set"));
    QCOMPARE(m_sets, (QStringList{"Changed=2", "Changed2=2"}));
}

void FeatureFileTest::testSameNumberInAnotherNotationIsNotSet_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("unchanged");
    QTest::newRow("hexadecimal") << int(InterfaceInteger) << "16"
                                 << "0x10" << 1;
    QTest::newRow("another integer") << int(InterfaceInteger) << "16"
                                     << "0x11" << 0;
    QTest::newRow("zeros of a fraction") << int(InterfaceFloat) << "5"
                                         << "5.00" << 1;
    QTest::newRow("another fraction") << int(InterfaceFloat) << "5"
                                      << "5.01" << 0;
    QTest::newRow("an empty text") << int(InterfaceString) << ""
                                   << "" << 1;
    QTest::newRow("a text is taken to the letter") << int(InterfaceString) << "5"
                                                   << "5.00" << 0;
}

void FeatureFileTest::testSameNumberInAnotherNotationIsNotSet()
{
    QFETCH(int, type);
    QFETCH(QString, value);
    QFETCH(QString, text);
    add("A", value.toLatin1().constData())->stateType = InterfaceType(type);
    QTEST(load({"A\t" + text}).unchanged, "unchanged");
}

void FeatureFileTest::testValueThatDependsOnALaterOneIsTriedAgain()
{
    const auto offset = add("Offset", "0").staticCast<RuledInteger>();
    const auto width = add("Width", "2048");
    offset->rule = [width](const QString &) {
        return width->stateText == "512" ? QString() : "@CameraDevice/Offset: too much";
    };
    const CLoadReport report = load({"Offset\t1024", "Width\t512"});
    QCOMPARE(report.set, 2);
    QCOMPARE(refusedIn(report), QStringList());
    QCOMPARE(m_sets, (QStringList{"Width=512", "Offset=1024"}));
}

void FeatureFileTest::testRefusalIsToldOnceWhenNothingHelps()
{
    const auto locked = add("Locked", "1").staticCast<RuledInteger>();
    int attempts = 0;
    locked->rule = [&](const QString &) {
        ++attempts;
        return QString("@CameraDevice/Locked: it is locked now");
    };
    add("A", "1");
    const CLoadReport report = load({"Locked\t2", "A\t2"});
    QCOMPARE(refusedIn(report), QStringList{"Locked: it is locked now"});
    QCOMPARE(attempts, 2); // once more, since A could be set meanwhile
}

void FeatureFileTest::testValueThatALaterOneChangesIsSetAgain()
{
    const auto gain = add("Gain", "0");
    const auto mode = add("Mode", "0").staticCast<RuledInteger>();
    mode->afterSet = [gain](RuledInteger &) { gain->stateText = "0"; };
    const CLoadReport report = load({"Gain\t7", "Mode\t1"});
    QCOMPARE(gain->stateText, QString("7"));
    QCOMPARE(report.set, 2);
    QCOMPARE(refusedIn(report), QStringList());
    QCOMPARE(m_sets, (QStringList{"Gain=7", "Mode=1", "Gain=7"}));
}

void FeatureFileTest::testValueThatTheCameraMakesAnotherIsTold()
{
    const auto exposure = add("Exposure", "10").staticCast<RuledInteger>();
    exposure->afterSet = [](RuledInteger &self) { self.stateText = "100"; };
    const CLoadReport report = load({"Exposure\t99"});
    QCOMPARE(refusedIn(report), QStringList{"Exposure: the camera made it \"100\""});
    QCOMPARE(report.set, 0);
    QCOMPARE(m_sets, QStringList{"Exposure=99"});
}

void FeatureFileTest::testCameraThatIsGoneIsNotTakenForReadOnly()
{
    const auto gone = add("A", "1").staticCast<RuledInteger>();
    gone->stateUserSettable = false;
    gone->stateReadable = false;
    gone->stateUnavailable = true;
    gone->rule = [](const QString &) { return QString("the camera is gone"); };
    const CLoadReport report = load({"A\t2"});
    QCOMPARE(report.readOnly, 0);
    QCOMPARE(refusedIn(report), QStringList{"A: the camera is gone"});
}

void FeatureFileTest::testCancelledLoadingTellsWhatWasTried()
{
    add("A", "1");
    add("B", "1")->throwing.insert("setValueText");
    add("C", "1");
    const CLoadReport report =
        load({"A\t2", "B\t2", "C\t2"}, [](int done, int) { return done < 2; });
    QVERIFY(report.isCancelled);
    QCOMPARE(m_sets, QStringList{"A=2"});
    QCOMPARE(refusedIn(report), QStringList{"B: setValueText failed"});
    QCOMPARE(report.summary(), QString("1 set, 0 unchanged, 0 read-only, 1 not set; cancelled"));
}

void FeatureFileTest::testProgressCountsUpToTheEnd()
{
    add("A", "1");
    add("B", "1");
    QStringList told;
    load({"A\t2", "B\t2"}, [&](int done, int total) {
        told.append(QStringLiteral("%1/%2").arg(done).arg(total));
        return true;
    });
    QCOMPARE(told, (QStringList{"1/2", "2/2"}));
}

void FeatureFileTest::testFileOfAnotherKindSetsNothing_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("reason");
    QTest::newRow("another form") << QByteArray("A=2\n")
                                  << "this is no feature stream of version 1: its first line must "
                                     "begin with \"# nerix feature stream 1:\"";
    QTest::newRow("bytes") << QByteArray("\x89PNG\0\xff", 6)
                           << "this is no feature stream of version 1: its first line must "
                              "begin with \"# nerix feature stream 1:\"";
    QTest::newRow("cut off in the middle")
        << QByteArray("# nerix feature stream 1: 2 features, 0 not readable\nA\t2\n")
        << "the feature stream is not whole: its first line promises 2 features; save the "
           "features again";
    QTest::newRow("a damaged line behind a good one")
        << QByteArray("# nerix feature stream 1: 2 features, 0 not readable\nA\t2\nB\n")
        << "line 3 of the feature stream is damaged: it must be a name, a tab and a value; save "
           "the features again";
}

void FeatureFileTest::testFileOfAnotherKindSetsNothing()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, reason);
    add("A", "1");
    const QString path = m_folder.writeRaw("other", text);
    QCOMPARE(messageOf([&] { CFeatureFile(path).load(m_parameters); }),
             "file " + path + " holds no features: " + reason);
    QCOMPARE(m_sets, QStringList());
}

void FeatureFileTest::testMissingFileIsTold()
{
    const QString path = m_folder.path("missing");
    QCOMPARE(messageOf([&] { CFeatureFile(path).load(m_parameters); }),
             "file " + path + " cannot be read: No such file or directory; choose another file");
}

void FeatureFileTest::testLineEndsOfAnotherSystemAreTaken()
{
    add("A", "1");
    const QString path = m_folder.writeRaw(
        "other", "# nerix feature stream 1: 1 features, 0 not readable\r\nA\t2\r\n");
    QCOMPARE(CFeatureFile(path).load(m_parameters).set, 1);
    QCOMPARE(m_sets, QStringList{"A=2"});
}

QTEST_GUILESS_MAIN(FeatureFileTest)
#include "FeatureFileTest.moc"
