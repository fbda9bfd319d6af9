// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include <pluginsystem/CPluginSpec.h>
#include <pluginsystem/LoggingCategory.h>

#include <QDir>
#include <QMetaEnum>

namespace PluginSystem {

namespace {

QString stateName(PluginState state)
{
    return QString::fromLatin1(
        QMetaEnum::fromType<PluginState>().valueToKey(static_cast<int>(state)));
}

} // namespace

CPluginSpec::CPluginSpec(const QString &libraryPath)
    : m_libraryPath(libraryPath)
{}

QString CPluginSpec::name() const
{
    return m_metaData.name.isEmpty() ? QDir::toNativeSeparators(m_libraryPath) : m_metaData.name;
}

const QString &CPluginSpec::libraryPath() const
{
    return m_libraryPath;
}

bool CPluginSpec::isBuiltIn() const
{
    return m_libraryPath.isEmpty();
}

const PluginMetaData &CPluginSpec::metaData() const
{
    return m_metaData;
}

void CPluginSpec::setMetaData(const PluginMetaData &metaData)
{
    m_metaData = metaData;
}

PluginState CPluginSpec::state() const
{
    return m_state;
}

bool CPluginSpec::advance(PluginState state)
{
    if (hasError() || static_cast<int>(state) != static_cast<int>(m_state) + 1) {
        return false;
    }
    qCDebug(pluginSystem).noquote().nospace()
        << '"' << name() << "\": " << stateName(m_state) << " -> " << stateName(state);
    m_state = state;
    return true;
}

bool CPluginSpec::hasError() const
{
    return !m_error.isEmpty();
}

const QString &CPluginSpec::error() const
{
    return m_error;
}

void CPluginSpec::fail(const QString &line)
{
    m_error += m_error.isEmpty() ? line : QLatin1Char('\n') + line;
    if (m_metaData.required) {
        qCCritical(pluginSystem).noquote() << line;
    } else {
        qCWarning(pluginSystem).noquote() << line;
    }
    qCDebug(pluginSystem).noquote().nospace()
        << '"' << name() << "\": stopped in " << stateName(m_state);
}

QString CPluginSpec::remedy() const
{
    return isBuiltIn() ? QStringLiteral("reinstall the viewer")
                       : QStringLiteral("update or remove \"%1\"")
                             .arg(QDir::toNativeSeparators(m_libraryPath));
}

} // namespace PluginSystem
