// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "Resource.h"

#include <gio/gio.h>

namespace Simulator {

std::string resource(const std::string &path)
{
    GError *error = nullptr;
    GBytes *bytes = g_resources_lookup_data(("/simulator/" + path).c_str(),
                                            G_RESOURCE_LOOKUP_FLAGS_NONE, &error);
    if (!bytes) {
        g_error("%s", error->message);
    }
    gsize size = 0;
    const auto *data = static_cast<const char *>(g_bytes_get_data(bytes, &size));
    std::string text(data, size);
    g_bytes_unref(bytes);
    return text;
}

std::string filledIn(std::string text, const std::string &mark, const std::string &value)
{
    for (auto at = text.find(mark); at != std::string::npos;
         at = text.find(mark, at + value.size())) {
        text.replace(at, mark.size(), value);
    }
    return text;
}

} // namespace Simulator
