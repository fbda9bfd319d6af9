// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "core/Arguments.h"

#include "core/Failure.h"
#include "core/Limits.h"
#include "core/Utf8.h"

namespace rui {

std::string_view textArgument(const char *text)
{
    if (text == nullptr) {
        throw Failure(RUI_BAD_ARGUMENT, "a text is null");
    }
    const std::string_view view(text);
    if (!isUtf8(view)) {
        throw Failure(RUI_BAD_ARGUMENT, "a text is not UTF-8");
    }
    return view;
}

std::string descriptionArgument(const char *text)
{
    const std::string_view view = textArgument(text);
    if (view.size() > maxDescriptionBytes) {
        throw Failure(RUI_BAD_ARGUMENT, "a text is longer than 1,024 bytes");
    }
    return std::string(view);
}

bool flagArgument(std::int64_t flag)
{
    if (flag != 0 && flag != 1) {
        throw Failure(RUI_BAD_ARGUMENT, "a flag is neither 0 nor 1");
    }
    return flag == 1;
}

} // namespace rui
