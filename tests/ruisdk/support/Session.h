// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <ruiSDK.h>

#include <string>

namespace rui::test {

// One instance of the library, used through the C header alone.
class Session
{
public:
    Session();
    ~Session();
    Session(const Session &) = delete;
    Session &operator=(const Session &) = delete;

    ruiInstance handle() const
    {
        return m_handle;
    }

    // Each returns the library's result.
    int32_t config(const std::string &directory, const std::string &host = "");
    int32_t product();
    int32_t start();
    int32_t stop(int32_t flag = 0);
    int32_t optOut();
    int32_t destroy();
    int32_t track(const std::string &text, const std::string &name = "Name",
                  const std::string &category = "Category");

    // config, product and start; the result of the first one that fails.
    int32_t open(const std::string &directory, const std::string &host = "");

private:
    ruiInstance m_handle;
};

} // namespace rui::test
