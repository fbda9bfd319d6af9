// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "Session.h"

namespace rui::test {

Session::Session()
    : m_handle(ruiCreateInstance(0))
{}

Session::~Session()
{
    destroy();
}

int32_t Session::config(const std::string &directory, const std::string &host)
{
    return ruiCreateConfig(m_handle, directory.c_str(), "2026110001", "nerixViewer", host.c_str(),
                           3, "", 0, 0);
}

int32_t Session::product()
{
    return ruiSetProductData(m_handle, "Standard", "US English", "7.1.0", "11271");
}

int32_t Session::start()
{
    return ruiStartSDK(m_handle);
}

int32_t Session::stop(int32_t flag)
{
    return ruiStopSDK(m_handle, flag);
}

int32_t Session::optOut()
{
    return ruiOptOut(m_handle);
}

int32_t Session::destroy()
{
    return ruiDestroyInstance(m_handle);
}

int32_t Session::track(const std::string &text, const std::string &name,
                       const std::string &category)
{
    return ruiTrackEventText(m_handle, category.c_str(), name.c_str(), text.c_str(), "");
}

int32_t Session::open(const std::string &directory, const std::string &host)
{
    int32_t result = config(directory, host);
    result = result == RUI_OK ? product() : result;
    return result == RUI_OK ? start() : result;
}

} // namespace rui::test
