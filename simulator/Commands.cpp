// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "Commands.h"

#include "Numbers.h"

#include <optional>
#include <sstream>
#include <stdexcept>
#include <vector>

namespace Simulator {

namespace {

using Words = std::vector<std::string>;

Answer refused(const std::string &reason)
{
    return {"error: " + reason, false};
}

Answer loss(const Words &words, ICamera &camera)
{
    const auto ratio = words.size() == 2 ? parsedRatio(words[1]) : std::nullopt;
    if (!ratio) {
        return refused("loss needs a ratio from 0 to 1, such as: loss 0.05");
    }
    camera.setLoss(*ratio);
    return {"loss " + words[1], false};
}

Answer vanish(ICamera &camera)
{
    if (!camera.isPluggedIn()) {
        return refused("the camera has vanished already: bring it back with return");
    }
    camera.unplug();
    return {"vanished", false};
}

Answer comeBack(ICamera &camera)
{
    if (camera.isPluggedIn()) {
        return refused("the camera is there: make it vanish first");
    }
    camera.plugIn();
    return {"returned", false};
}

Words wordsOf(const std::string &line)
{
    std::istringstream stream(line);
    Words words;
    for (std::string word; stream >> word;) {
        words.push_back(word);
    }
    return words;
}

Answer dispatched(const Words &words, ICamera &camera)
{
    const std::string name = words.empty() ? "" : words[0];
    if (name == "loss") {
        return loss(words, camera);
    }
    if (words.size() == 1 && name == "vanish") {
        return vanish(camera);
    }
    if (words.size() == 1 && name == "return") {
        return comeBack(camera);
    }
    if (words.size() == 1 && name == "quit") {
        return {"bye", true};
    }
    return refused("unknown command \"" + name
                   + "\": the commands are loss RATIO, vanish, return, quit");
}

} // namespace

Answer execute(const std::string &line, ICamera &camera)
{
    try {
        return dispatched(wordsOf(line), camera);
    } catch (const std::runtime_error &failure) {
        return refused(failure.what());
    }
}

} // namespace Simulator
