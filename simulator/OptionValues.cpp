// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "OptionValues.h"

#include "Address.h"
#include "Description.h"
#include "Numbers.h"
#include "Registers.h"

#include <algorithm>
#include <stdexcept>

namespace Simulator {

std::string checkedText(const std::string &option, const std::string &value, std::size_t size)
{
    const auto isPrintable = [](char c) { return c >= ' ' && c <= '~'; };
    const std::size_t limit = size - 1;
    if (value.empty() || value.size() > limit
        || !std::all_of(value.begin(), value.end(), isPrintable)) {
        throw std::invalid_argument(option + " \"" + value + "\" does not fit: give 1 to "
                                    + std::to_string(limit) + " printable ASCII characters");
    }
    return value;
}

std::string checkedSerial(const std::string &value)
{
    const auto isFitting = [](char c) {
        return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z')
               || c == '-' || c == '_' || c == '.';
    };
    if (!std::all_of(value.begin(), value.end(), isFitting)) {
        throw std::invalid_argument("--serial \"" + value
                                    + "\" does not fit: give letters, digits, - _ and . only");
    }
    return checkedText("--serial", value, Registers::SerialSize);
}

std::string checkedAddress(const std::string &value)
{
    if (!isLoopbackAddress(value)) {
        throw std::invalid_argument("--address \"" + value
                                    + "\" is no loopback address: give one within 127.0.0.0/8,"
                                      " such as 127.0.0.1, so that nothing is served to a network");
    }
    return value;
}

double checkedLoss(const std::string &value)
{
    const auto loss = parsedRatio(value);
    if (!loss) {
        throw std::invalid_argument("--loss \"" + value
                                    + "\" is no ratio: give a number from 0 to 1, such as 0.05");
    }
    return *loss;
}

int checkedFeatureCount(const std::string &value)
{
    const auto count = parsedCount(value);
    if (!count || *count < baseFeatureCount() || *count > maximumFeatureCount()) {
        throw std::invalid_argument(
            "--features \"" + value + "\" is out of range: give a whole number from "
            + std::to_string(baseFeatureCount()) + " to " + std::to_string(maximumFeatureCount()));
    }
    return *count;
}

} // namespace Simulator
