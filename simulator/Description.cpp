// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "Description.h"

#include "GeneratedFeatures.h"
#include "Registers.h"
#include "Resource.h"

namespace Simulator {

namespace {

// The block in which GigE Vision programs read memory.
constexpr std::size_t BlockSize = 512;

int occurrences(const std::string &text, const std::string &part)
{
    int count = 0;
    for (auto at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) {
        ++count;
    }
    return count;
}

} // namespace

int baseFeatureCount()
{
    // Every category but the root is a child of exactly one other.
    const std::string text = resource("camera.xml");
    return occurrences(text, "<pFeature>") - (occurrences(text, "<Category ") - 1);
}

int maximumFeatureCount()
{
    constexpr auto slots = (Registers::End - Registers::Generated) / Registers::GeneratedSlotSize;
    return baseFeatureCount() + static_cast<int>(slots);
}

std::string description(int featureCount)
{
    const GeneratedFeatures generated = generateFeatures(featureCount - baseFeatureCount());
    std::string text = resource("camera.xml");
    text = filledIn(text, "<!-- generated categories -->", generated.categories);
    text = filledIn(text, "<!-- generated features -->", generated.nodes);
    text.append(BlockSize - text.size() % BlockSize, ' ');
    return text;
}

} // namespace Simulator
