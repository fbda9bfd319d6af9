// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/featuretree/FeatureReading.h"

#include <ParameterCollection/IEnumerationParameter.h>
#include <ParameterCollection/IFloatParameter.h>
#include <ParameterCollection/IIntegerParameter.h>

#include <exception>

namespace FeatureTree {

using namespace ParameterCollection;

namespace {

// Gives what \a question gives; what cannot be asked is left as it is.
template <class Answer, class Question>
void ask(Answer &answer, Question question)
{
    try {
        answer = question();
    } catch (const std::exception &) { // NOLINT(bugprone-empty-catch)
    }
}

// A command can be executed without there being a value to read.
bool hasValue(const IParameter &parameter)
{
    return parameter.interfaceType() != InterfaceCommand && parameter.isReadable();
}

void readValue(const IParameter &parameter, CFeatureState &state)
{
    try {
        if (hasValue(parameter)) {
            state.text = QStringLiteral("") + parameter.valueText(); // empty, but never null
        }
    } catch (const std::exception &exception) {
        state.failure = QString::fromUtf8(exception.what());
    }
}

CIntegerLimits limitsOf(const IIntegerParameter &number)
{
    return {number.minimum(), number.maximum(), number.increment()};
}

CFloatLimits limitsOf(const IFloatParameter &number)
{
    return {number.minimum(), number.maximum()};
}

// Only an editor needs to know what can be chosen.
void readChoices(const IParameter &parameter, CFeatureState &state)
{
    if (!state.canBeSet()) {
        return;
    }
    if (const auto *integer = dynamic_cast<const IIntegerParameter *>(&parameter)) {
        ask(state.integerLimits, [integer] { return limitsOf(*integer); });
    } else if (const auto *number = dynamic_cast<const IFloatParameter *>(&parameter)) {
        ask(state.floatLimits, [number] { return limitsOf(*number); });
    } else if (const auto *choice = dynamic_cast<const IEnumerationParameter *>(&parameter)) {
        ask(state.entries, [choice] { return choice->entries(); });
    }
}

} // namespace

CFeatureDescription describeFeature(const IParameter &parameter)
{
    CFeatureDescription description;
    description.fullName = parameter.fullName();
    ask(description.name, [&] { return parameter.name(); });
    description.displayName = description.name;
    ask(description.displayName, [&] { return parameter.displayName(); });
    ask(description.toolTip, [&] { return parameter.toolTip(); });
    ask(description.unit, [&] { return parameter.unit(); });
    ask(description.category, [&] { return parameter.category(); });
    ask(description.type, [&] { return parameter.interfaceType(); });
    ask(description.visibility, [&] { return parameter.visibility(); });
    return description;
}

CFeatureState readFeature(const IParameter &parameter)
{
    CFeatureState state;
    state.isKnown = true;
    ask(state.mode, [&] { return parameter.accessMode(); });
    ask(state.isUserSettable, [&] { return parameter.isUserSettable(); });
    if (state.isOffered()) {
        readValue(parameter, state);
        readChoices(parameter, state);
    }
    return state;
}

} // namespace FeatureTree
