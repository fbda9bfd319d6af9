// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "CEventFollower.h"

#include <QTest>

namespace {

constexpr int WaitLimit = 60000; // ms

} // namespace

CEventFollower::CEventFollower(const QString &libraryFolder)
{
    m_tool.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    connect(&m_tool, &QProcess::readyReadStandardOutput, this, &CEventFollower::onOutput);
    m_tool.start(RUI_EVENTS, {"--raw", "--follow", libraryFolder});
}

CEventFollower::~CEventFollower()
{
    m_tool.disconnect(this);
    m_tool.terminate();
    m_tool.waitForFinished();
}

bool CEventFollower::waitForEvent(const QString &category, const QString &name)
{
    const QString start = category + '\t' + name + '\t';
    int seen = 0;
    return QTest::qWaitFor(
        [&] {
            for (; seen < m_events.size(); ++seen) {
                if (m_events.at(seen).startsWith(start)) {
                    return true;
                }
            }
            return false;
        },
        WaitLimit);
}

QStringList CEventFollower::events() const
{
    return m_events;
}

void CEventFollower::onOutput()
{
    while (m_tool.canReadLine()) {
        m_events.append(QString::fromUtf8(m_tool.readLine()).chopped(1));
    }
}
