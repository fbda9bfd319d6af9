// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include <pluginsystem/FailedDestructor.h>
#include <pluginsystem/LoggingCategory.h>
#include <unistd.h>

namespace PluginSystem {

namespace {

int exitStatus = 0;
QString destroyedPlugin;

QString reasonOf(const std::exception_ptr &exception)
{
    try {
        std::rethrow_exception(exception);
    } catch (const std::exception &known) {
        return QString::fromUtf8(known.what());
    } catch (...) {
        return QStringLiteral("of an unknown type");
    }
}

[[noreturn]] void endInWords()
{
    const std::exception_ptr exception = std::current_exception();
    qCWarning(pluginSystem).noquote().nospace()
        << "Plug-in \"" << destroyedPlugin << "\" failed in its destructor (exception: "
        << (exception ? reasonOf(exception) : QStringLiteral("none")) << "): the viewer ends, and "
        << "nothing is lost; ask the maker of the plug-in for another version";
    ::_exit(exitStatus);
}

} // namespace

void setStatusAfterFailedDestructor(int status)
{
    exitStatus = status;
}

CFailedDestructor::CFailedDestructor(const QString &plugin)
    : m_before(std::set_terminate(endInWords))
{
    destroyedPlugin = plugin;
}

CFailedDestructor::~CFailedDestructor()
{
    std::set_terminate(m_before);
}

} // namespace PluginSystem
