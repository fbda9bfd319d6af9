// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "CScriptRun.h"

#include <QFile>

CScriptRun::CScriptRun()
    : m_runner(std::make_unique<Scripting::CScriptRunner>(m_plugins))
{
    m_runner->setPrinter([this](const QString &line) { m_printed.append(line); });
}

CScriptRun::~CScriptRun() = default;

void CScriptRun::addService(const QSharedPointer<QObject> &service)
{
    m_plugins.registry().addService(service);
}

Scripting::CScriptRunner &CScriptRun::runner()
{
    return *m_runner;
}

QString CScriptRun::run(const QByteArray &script)
{
    QFile file(m_folder.filePath(QStringLiteral("test.js")));
    if (!file.open(QIODevice::WriteOnly) || file.write(script) < 0) {
        return QStringLiteral("no script file");
    }
    file.close();
    return m_runner->run(file.fileName()).remove(m_folder.path() + QLatin1Char('/'));
}

const QStringList &CScriptRun::printed() const
{
    return m_printed;
}
