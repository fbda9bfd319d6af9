// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "CDesktop.h"

#include "CViewerProcess.h"

#include <QTest>

namespace {

QByteArray printedBy(const QString &command, const QStringList &arguments)
{
    QProcess program;
    program.start(command, arguments);
    program.waitForFinished();
    return program.readAllStandardOutput();
}

} // namespace

CDesktop::~CDesktop()
{
    m_windowManager.terminate();
    m_windowManager.waitForFinished();
}

bool CDesktop::start()
{
    m_windowManager.start("openbox", {"--sm-disable"});
    return m_windowManager.waitForStarted() && QTest::qWaitFor([] {
               return printedBy("xprop", {"-root", "_NET_SUPPORTING_WM_CHECK"}).contains("0x");
           });
}

bool CDesktop::showFirstWindows(CViewerProcess &viewer)
{
    viewer.setOptions({"--show-windows"});
    viewer.start("while (!welcome.visible()) { sleep(10); }\n"
                 "print(\"shown\");\n"
                 "for (;;) { sleep(10); }\n");
    return viewer.waitForLine("shown");
}

QRect CDesktop::placeOf(const QString &title)
{
    const QByteArray lines = printedBy("xwininfo", {"-name", title});
    const auto value = [&lines](const char *name) {
        const int begin = lines.indexOf(name) + int(qstrlen(name));
        return lines.mid(begin, lines.indexOf('\n', begin) - begin).trimmed().toInt();
    };
    return lines.contains("IsViewable")
               ? QRect(value("Absolute upper-left X:"), value("Absolute upper-left Y:"),
                       value("Width:"), value("Height:"))
               : QRect();
}
