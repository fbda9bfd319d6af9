// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "GeneratedFeatures.h"

#include "Registers.h"
#include "Resource.h"

#include <array>
#include <cstdio>

namespace Simulator {

namespace {

constexpr int FeaturesPerBank = 20;

// Each is the last word of a feature's name and the name of its template in `generated/`.
constexpr std::array<const char *, 5> Kinds{"Offset", "Scale", "Enable", "Level", "Label"};
constexpr int KindCount = static_cast<int>(Kinds.size());

template <typename... Arguments>
std::string formatted(const char *format, Arguments... arguments)
{
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), format, arguments...);
    return text.data();
}

const std::string &templateOf(int kind)
{
    static const std::array<std::string, Kinds.size()> templates = [] {
        std::array<std::string, Kinds.size()> texts;
        for (std::size_t i = 0; i < Kinds.size(); ++i) {
            texts[i] = resource(std::string("generated/") + Kinds[i] + ".xml");
        }
        return texts;
    }();
    return templates[static_cast<std::size_t>(kind)];
}

// The features of a bank come in groups of one of each kind; the group counts within the bank.
std::string featureName(int index)
{
    const int bank = index / FeaturesPerBank + 1;
    const int group = index % FeaturesPerBank / KindCount + 1;
    return formatted("QmzBank%03d%s%d", bank, Kinds[static_cast<std::size_t>(index % KindCount)],
                     group);
}

std::string featureNode(int index)
{
    const auto slot = static_cast<unsigned>(index) * Registers::GeneratedSlotSize;
    const std::string name = featureName(index);
    std::string node = filledIn(templateOf(index % KindCount), "{name}", name);
    node = filledIn(node, "{title}", name.substr(3));
    return filledIn(node, "{address}", formatted("0x%X", Registers::Generated + slot));
}

std::string bankNode(int bank, int count)
{
    std::string node =
        formatted("<Category Name=\"QmzBank%03d\" NameSpace=\"Custom\">\n", bank + 1);
    const int first = bank * FeaturesPerBank;
    for (int index = first; index < first + FeaturesPerBank && index < count; ++index) {
        node += "<pFeature>" + featureName(index) + "</pFeature>\n";
    }
    return node + "</Category>\n";
}

} // namespace

GeneratedFeatures generateFeatures(int count)
{
    GeneratedFeatures result;
    for (int bank = 0; bank * FeaturesPerBank < count; ++bank) {
        result.categories += formatted("<pFeature>QmzBank%03d</pFeature>\n", bank + 1);
        result.nodes += bankNode(bank, count);
    }
    for (int index = 0; index < count; ++index) {
        result.nodes += featureNode(index);
    }
    return result;
}

} // namespace Simulator
