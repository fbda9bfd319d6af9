// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "CSimulatorProcess.h"
#include "CViewerProcess.h"

#include <QTest>

// Grabbing with a real camera by the entries of the Camera menu, which a script may trigger as a
// user chooses them.
class GrabbingEntriesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testEntriesGrabWithTheSelectedCamera();
    void testEntriesAreDisabledWithoutASelectedCamera();
};

namespace {

const char prepare[] = "var camera = cameras.waitFor(1, 60000)[0];\n"
                       "cameras.open(camera);\n"
                       "function entry(id) {\n"
                       "    return menu.list().filter(function (e) { return e.id == id; })[0];\n"
                       "}\n"
                       "function choose(id) {\n"
                       "    waitUntil(function () { return entry(id).enabled; }, 60000, id);\n"
                       "    menu.trigger(id);\n"
                       "}\n";

} // namespace

void GrabbingEntriesTest::testEntriesGrabWithTheSelectedCamera()
{
    CSimulatorProcess camera;
    QVERIFY2(camera.start(), qPrintable(camera.errorText()));
    CViewerProcess viewer;
    const QString script =
        QLatin1String(prepare)
        + "cameras.select(camera);\n"
          "choose('Grabbing.Action.GrabContinuous');\n"
          "waitUntil(function () { return grab.figures(camera).isGrabbing; }, 60000, 'begun');\n"
          "grab.waitFor(camera, 5, 60000);\n"
          "print(entry('Grabbing.Action.GrabSingle').enabled);\n"
          "choose('Grabbing.Action.Stop');\n"
          "choose('Grabbing.Action.GrabSingle');\n"
          "waitUntil(function () { return grab.figures(camera).images == 1; }, 60000, 'one');\n"
          "waitUntil(function () { return !grab.figures(camera).isGrabbing; }, 60000, 'end');\n"
          "print(grab.figures(camera).images, grab.figures(camera).failures);\n";
    QVERIFY2(viewer.run(script) == 0, qPrintable(viewer.logged().join('\n')));
    QCOMPARE(viewer.printed(), (QStringList{"false", "1 0"}));
}

void GrabbingEntriesTest::testEntriesAreDisabledWithoutASelectedCamera()
{
    CSimulatorProcess camera;
    QVERIFY2(camera.start(), qPrintable(camera.errorText()));
    CViewerProcess viewer;
    const QString script = QLatin1String(prepare)
                           + "print(entry('Grabbing.Action.GrabSingle').enabled);\n"
                             "cameras.select(camera);\n"
                             "choose('Grabbing.Action.GrabSingle');\n"
                             "cameras.select(null);\n"
                             "print(entry('Grabbing.Action.GrabSingle').enabled);\n"
                             "print(entry('ImageView.Action.SaveImage').enabled);\n";
    QVERIFY2(viewer.run(script) == 0, qPrintable(viewer.logged().join('\n')));
    QCOMPARE(viewer.printed(), (QStringList{"false", "false", "false"}));
}

QTEST_GUILESS_MAIN(GrabbingEntriesTest)
#include "GrabbingEntriesTest.moc"
