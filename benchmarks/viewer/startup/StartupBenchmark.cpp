// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// What the plug-in adds to the start of the viewer: from the start of the process to the first line
// of a script, when every plug-in runs and the windows are shown. Runs with and without the plug-in
// take turns, so that both meet the same machine; the medians count.
//
//     benchmark_viewer_startup [PAIRS]

#include <algorithm>
#include <cstdio>
#include <vector>

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

namespace {

constexpr int defaultPairs = 21;

struct Consent
{
    const char *name;
    const char *settings;
};

const Consent consents[] = {
    {"consent given, page not shown", "[UsageTracking]\nOptInEnabled=true\nOptInSelected=true\n"
                                      "[NerixWelcome]\nShowAtStartup=false\n"},
    {"consent refused, page not shown", "[UsageTracking]\nOptInEnabled=false\nOptInSelected=true\n"
                                        "[NerixWelcome]\nShowAtStartup=false\n"},
    {"consent given, page shown", "[UsageTracking]\nOptInEnabled=true\nOptInSelected=true\n"},
};

void write(const QString &fileName, const QByteArray &content)
{
    QFile file(fileName);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        qFatal("%s cannot be written", qPrintable(fileName));
    }
}

// In milliseconds.
double startUp(const QString &plugins, const QByteArray &settings)
{
    const QTemporaryDir folder;
    QDir(folder.path()).mkpath(QStringLiteral("Ostrand"));
    write(folder.filePath(QStringLiteral("Ostrand/nerix-viewer.ini")), settings);
    const QString script = folder.filePath(QStringLiteral("script.js"));
    write(script, "print('up'); quit();");

    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_DATA_HOME"), folder.path());
    QProcess viewer;
    viewer.setProcessEnvironment(environment);
    QElapsedTimer timer;
    timer.start();
    viewer.start(QStringLiteral(NERIX_VIEWER),
                 {QStringLiteral("--plugin-path"), plugins, QStringLiteral("--settings-dir"),
                  folder.path(), QStringLiteral("--show-windows"), QStringLiteral("--script"),
                  script});
    if (!viewer.waitForReadyRead()) {
        qFatal("the viewer does not start: %s, status %d: %s", qPrintable(viewer.errorString()),
               viewer.exitCode(), viewer.readAllStandardError().constData());
    }
    const double milliseconds = double(timer.nsecsElapsed()) / 1e6;
    viewer.waitForFinished();
    return milliseconds;
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

void measure(const Consent &consent, int pairs)
{
    const QTemporaryDir empty;
    const QString with = QStringLiteral(NERIX_PLUGINS);
    startUp(with, consent.settings); // fills the caches of the file system
    std::vector<double> withPlugin;
    std::vector<double> withoutPlugin;
    std::vector<double> differences;
    for (int pair = 0; pair < pairs; ++pair) {
        withoutPlugin.push_back(startUp(empty.path(), consent.settings));
        withPlugin.push_back(startUp(with, consent.settings));
        differences.push_back(withPlugin.back() - withoutPlugin.back());
    }
    std::printf("%-33s %8.1f %8.1f %8.1f %8.2f\n", consent.name, median(withoutPlugin),
                median(withPlugin), median(differences),
                median(withPlugin) / median(withoutPlugin));
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const int asked = argc > 1 ? QByteArray(argv[1]).toInt() : defaultPairs;
    const int pairs = asked > 0 ? asked : defaultPairs;
    std::printf("Start of the viewer, medians of %d pairs, in ms\n"
                "%-33s %8s %8s %8s %8s\n",
                pairs, "", "without", "with", "more", "ratio");
    for (const Consent &consent : consents) {
        measure(consent, pairs);
    }
    return 0;
}
