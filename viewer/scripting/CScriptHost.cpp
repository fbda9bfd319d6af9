// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "scripting/CScriptHost.h"

#include "scripting/CScriptWait.h"

#include <utility>

namespace Scripting {

CScriptHost::CScriptHost(CScriptWait &wait, Printer printer, QObject *parent)
    : QObject(parent)
    , m_wait(wait)
    , m_printer(std::move(printer))
{
    m_elapsed.start();
}

void CScriptHost::printLine(const QString &line)
{
    m_printer(line);
}

void CScriptHost::sleep(int milliseconds)
{
    m_wait.until([] { return false; }, std::chrono::milliseconds(milliseconds));
}

double CScriptHost::milliseconds() const
{
    return static_cast<double>(m_elapsed.elapsed());
}

void CScriptHost::quit()
{
    Q_EMIT quitRequested();
}

void CScriptHost::endReached()
{
    Q_EMIT lastLineReached();
}

} // namespace Scripting
