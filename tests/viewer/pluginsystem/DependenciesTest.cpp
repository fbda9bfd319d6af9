// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "TestMetaData.h"
#include "TestTexts.h"

#include <pluginsystem/Dependencies.h>

#include <memory>
#include <vector>

#include <QTest>

using namespace PluginSystem;

namespace {

/// Plug-ins that exist on paper only, each written as "<name> <versions>: <dependency>, ...".
class PaperPlugins
{
public:
    explicit PaperPlugins(const QStringList &lines)
    {
        for (const QString &line : lines) {
            m_specs.push_back(std::make_unique<CPluginSpec>());
            m_specs.back()->setMetaData(metaData(line));
            m_specs.back()->advance(PluginState::Read);
        }
    }

    QVector<CPluginSpec *> specs() const
    {
        QVector<CPluginSpec *> all;
        for (const auto &spec : m_specs) {
            all.append(spec.get());
        }
        return all;
    }

    CPluginSpec &operator[](size_t index)
    {
        return *m_specs.at(index);
    }

private:
    static PluginMetaData metaData(const QString &line)
    {
        const QStringList head = line.section(QLatin1Char(':'), 0, 0).split(QLatin1Char(' '));
        const QStringList dependencies =
            line.section(QStringLiteral(": "), 1).split(QStringLiteral(", "), Qt::SkipEmptyParts);
        return testMetaData(head.at(0), head.at(1), dependencies);
    }

    std::vector<std::unique_ptr<CPluginSpec>> m_specs;
};

QStringList names(const QVector<CPluginSpec *> &specs)
{
    QStringList names;
    for (const CPluginSpec *spec : specs) {
        names += spec->name();
    }
    return names;
}

} // namespace

class DependenciesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testOrder_data();
    void testOrder();
    void testErrors_data();
    void testErrors();
    void testDependencyOnAPluginThatCouldNotBeRead();
    void testErrorThatComesLaterReachesDependents();
};

void DependenciesTest::testOrder_data()
{
    QTest::addColumn<QStringList>("plugins");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("nothing") << QStringList() << QStringList();
    QTest::newRow("by name, where nothing depends on anything")
        << texts({"C 1.0", "A 1.0", "B 1.0"}) << texts({"A", "B", "C"});
    QTest::newRow("dependencies first, against the names")
        << texts({"A 1.0: B 1.0", "B 1.0: C 1.0", "C 1.0"}) << texts({"C", "B", "A"});
    QTest::newRow("by name as soon as all dependencies are there")
        << texts({"A 1.0: Z 1.0", "Z 1.0", "B 1.0"}) << texts({"B", "Z", "A"});
    QTest::newRow("a diamond") << texts({"Top 1.0: Right 1.0, Left 1.0", "Left 1.0: Under 1.0",
                                         "Right 1.0: Under 1.0", "Under 1.0"})
                               << texts({"Under", "Left", "Right", "Top"});
    QTest::newRow("the same dependency twice")
        << texts({"A 1.0: B 1.0, B 1.0", "B 1.0"}) << texts({"B", "A"});
    QTest::newRow("without those that have an error")
        << texts({"A 1.0: Absent 1.0", "B 1.0"}) << texts({"B"});
}

void DependenciesTest::testOrder()
{
    QFETCH(QStringList, plugins);
    const PaperPlugins paper(plugins);

    const QVector<CPluginSpec *> resolved = resolveDependencies(paper.specs());

    QTEST(names(resolved), "expected");
    for (const CPluginSpec *spec : resolved) {
        QCOMPARE(spec->state(), PluginState::Resolved);
    }
}

void DependenciesTest::testErrors_data()
{
    QTest::addColumn<QStringList>("plugins");
    QTest::addColumn<QStringList>("expected"); // of the first plug-in

    QTest::newRow("all is there") << texts({"A 1.0: B 1.0", "B 1.0"}) << QStringList();
    QTest::newRow("not there")
        << texts({"A 1.0: B 1.0"})
        << texts({"Plug-in \"A\" needs \"B\" 1.0, which is not there: install \"B\", or "
                  "reinstall the viewer"});
    QTest::newRow("all that is not there, a line each")
        << texts({"A 1.0: B 1.0, C 2.0"})
        << texts({"Plug-in \"A\" needs \"B\" 1.0, which is not there: install \"B\", or "
                  "reinstall the viewer",
                  "Plug-in \"A\" needs \"C\" 2.0, which is not there: install \"C\", or "
                  "reinstall the viewer"});
    QTest::newRow("names are told apart by case")
        << texts({"A 1.0: b 1.0", "B 1.0"})
        << texts({"Plug-in \"A\" needs \"b\" 1.0, which is not there: install \"b\", or "
                  "reinstall the viewer"});
    QTest::newRow("too new a version is wanted")
        << texts({"A 1.0: B 1.2.1", "B 1.0.0-1.2.0"})
        << texts({"Plug-in \"A\" needs \"B\" 1.2.1, but there is \"B\" 1.2.0, which can stand "
                  "in for 1.0.0 to 1.2.0 only: install a \"B\" that fits, or reinstall the "
                  "viewer"});
    QTest::newRow("too old a version is wanted")
        << texts({"A 1.0: B 0.9", "B 1.0.0-1.2.0"})
        << texts({"Plug-in \"A\" needs \"B\" 0.9, but there is \"B\" 1.2.0, which can stand "
                  "in for 1.0.0 to 1.2.0 only: install a \"B\" that fits, or reinstall the "
                  "viewer"});
    QTest::newRow("a dependency with an error is unmet, with the reason")
        << texts({"A 1.0: B 1.0", "B 1.0: C 1.0"})
        << texts({"Plug-in \"A\" needs \"B\" 1.0, which has an error: Plug-in \"B\" needs "
                  "\"C\" 1.0, which is not there: install \"C\", or reinstall the viewer"});
    QTest::newRow("an error goes up through all dependents")
        << texts({"A 1.0: B 1.0", "B 1.0: C 1.0", "C 1.0: D 1.0"})
        << texts({"Plug-in \"A\" needs \"B\" 1.0, which has an error: Plug-in \"B\" needs "
                  "\"C\" 1.0, which has an error: Plug-in \"C\" needs \"D\" 1.0, which is not "
                  "there: install \"D\", or reinstall the viewer"});
    QTest::newRow("a cycle of one")
        << texts({"A 1.0: A 1.0"})
        << texts({"Plug-in \"A\" depends on itself (A -> A): reinstall the viewer"});
    QTest::newRow("a cycle of two prints its path")
        << texts({"A 1.0: B 1.0", "B 1.0: A 1.0"})
        << texts({"Plug-in \"A\" depends on itself (A -> B -> A): reinstall the viewer"});
    QTest::newRow("a cycle of three, seen from the middle")
        << texts({"B 1.0: C 1.0", "A 1.0: B 1.0", "C 1.0: A 1.0"})
        << texts({"Plug-in \"B\" depends on itself (B -> C -> A -> B): reinstall the viewer"});
    QTest::newRow("the shortest of two cycles")
        << texts({"A 1.0: B 1.0, C 1.0", "B 1.0: C 1.0", "C 1.0: A 1.0"})
        << texts({"Plug-in \"A\" depends on itself (A -> C -> A): reinstall the viewer"});
    QTest::newRow("a cycle and something that is not there")
        << texts({"A 1.0: B 1.0, C 1.0", "B 1.0: A 1.0"})
        << texts({"Plug-in \"A\" depends on itself (A -> B -> A): reinstall the viewer",
                  "Plug-in \"A\" needs \"C\" 1.0, which is not there: install \"C\", or "
                  "reinstall the viewer"});
    QTest::newRow("a cycle and a version that does not fit")
        << texts({"A 1.0: B 2.0", "B 1.0: A 1.0"})
        << texts({"Plug-in \"A\" depends on itself (A -> B -> A): reinstall the viewer",
                  "Plug-in \"A\" needs \"B\" 2.0, but there is \"B\" 1.0, which can stand in "
                  "for 1.0 to 1.0 only: install a \"B\" that fits, or reinstall the viewer"});
    QTest::newRow("who depends on a cycle is not part of it")
        << texts({"Z 1.0: A 1.0", "A 1.0: B 1.0", "B 1.0: A 1.0"})
        << texts({"Plug-in \"Z\" needs \"A\" 1.0, which has an error: Plug-in \"A\" depends on "
                  "itself (A -> B -> A): reinstall the viewer"});
    QTest::newRow("what a cycle depends on is not part of it")
        << texts({"C 1.0", "A 1.0: B 1.0", "B 1.0: A 1.0, C 1.0"}) << QStringList();
}

void DependenciesTest::testErrors()
{
    QFETCH(QStringList, plugins);
    QFETCH(QStringList, expected);
    PaperPlugins paper(plugins);

    resolveDependencies(paper.specs());

    QCOMPARE(paper[0].error(), expected.join(QLatin1Char('\n')));
    QCOMPARE(paper[0].state(), expected.isEmpty() ? PluginState::Resolved : PluginState::Read);
}

void DependenciesTest::testDependencyOnAPluginThatCouldNotBeRead()
{
    CPluginSpec unread(QStringLiteral("/opt/libB.so"));
    unread.setMetaData(testMetaData(QStringLiteral("B"), QStringLiteral("1.0")));
    unread.fail(QStringLiteral("\"/opt/libB.so\" is not good: update it"));
    PaperPlugins paper({QStringLiteral("A 1.0: B 1.0")});

    QCOMPARE(resolveDependencies({&paper[0], &unread}).size(), 0);

    QCOMPARE(paper[0].error(), QStringLiteral("Plug-in \"A\" needs \"B\" 1.0, which has an error: "
                                              "\"/opt/libB.so\" is not good: update it"));
    QCOMPARE(unread.state(), PluginState::Found);
}

void DependenciesTest::testErrorThatComesLaterReachesDependents()
{
    PaperPlugins paper(
        {QStringLiteral("A 1.0: B 1.0, C 1.0"), QStringLiteral("B 1.0"), QStringLiteral("C 1.0")});
    QCOMPARE(resolveDependencies(paper.specs()).size(), 3);
    failWithDependencies(paper[0], paper.specs());
    QCOMPARE(paper[0].error(), QString());

    paper[2].fail(QStringLiteral("C is broken: mend it"));
    paper[2].fail(QStringLiteral("C is lost: find it"));
    failWithDependencies(paper[0], paper.specs());

    QCOMPARE(paper[0].error(), QStringLiteral("Plug-in \"A\" needs \"C\" 1.0, which has an error: "
                                              "C is broken: mend it"));
}

QTEST_GUILESS_MAIN(DependenciesTest)
#include "DependenciesTest.moc"
