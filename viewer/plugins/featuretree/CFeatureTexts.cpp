// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/featuretree/CFeatureTexts.h"

#include "plugins/parametercollectionpool/ValueText.h"
#include "windows/ShownText.h"

namespace FeatureTree {
using namespace ParameterCollection;
using ParameterCollectionPool::ValueText::fromFloat;
using Windows::shownLine;
using Windows::shownText;

namespace {

QString withUnit(const QString &text, const CFeatureDescription &description)
{
    return description.unit.isEmpty() ? text
                                      : text + QLatin1Char(' ') + shownLine(description.unit);
}

QString range(const QString &minimum, const QString &maximum,
              const CFeatureDescription &description)
{
    return withUnit(CFeatureTexts::tr("%1 to %2").arg(minimum, maximum), description);
}

QString line(const QString &text)
{
    return QStringLiteral("<br>") + shownText(text).toHtmlEscaped();
}

QString onOrOff(const CFeatureState &state)
{
    return state.text == QLatin1String("true") ? CFeatureTexts::tr("on") : CFeatureTexts::tr("off");
}

} // namespace

QString CFeatureTexts::value(const CFeatureDescription &description, const CFeatureState &state)
{
    if (description.isCategory() || !state.isKnown) {
        return {};
    }
    if (!state.isOffered()) {
        return tr("not available");
    }
    if (description.type == InterfaceCommand) {
        return tr("Execute");
    }
    if (!state.failure.isEmpty()) {
        return tr("not readable");
    }
    if (state.text.isNull()) {
        return tr("can only be set");
    }
    return description.type == InterfaceBoolean ? QString()
                                                : withUnit(shownLine(state.text), description);
}

QString CFeatureTexts::limits(const CFeatureDescription &description, const CFeatureState &state)
{
    if (state.floatLimits) {
        return range(fromFloat(state.floatLimits->minimum), fromFloat(state.floatLimits->maximum),
                     description);
    }
    if (!state.integerLimits) {
        return {};
    }
    const CIntegerLimits &limits = *state.integerLimits;
    const QString fromTo =
        range(QString::number(limits.minimum), QString::number(limits.maximum), description);
    return limits.increment > 1 ? tr("%1 in steps of %2").arg(fromTo).arg(limits.increment)
                                : fromTo;
}

QString CFeatureTexts::toolTip(const CFeatureDescription &description, const CFeatureState &state)
{
    QString text =
        QStringLiteral("<b>%1</b>").arg(shownLine(description.displayName).toHtmlEscaped());
    if (!description.toolTip.isEmpty()) {
        text += line(description.toolTip);
    }
    const QString allowed = limits(description, state);
    if (!allowed.isEmpty()) {
        text += line(tr("Allowed: %1").arg(allowed));
    }
    if (state.isLocked()) {
        text += line(tr("It is locked now."));
    }
    if (state.isReadOnly() && !description.isCategory()) {
        text += line(tr("It can only be read."));
    }
    if (!state.failure.isEmpty()) {
        text += line(withoutTree(state.failure));
    }
    return text + line(tr("Name: %1").arg(description.name));
}

QString CFeatureTexts::spoken(const CFeatureDescription &description, const CFeatureState &state)
{
    const bool isSwitch = description.type == InterfaceBoolean && !state.text.isNull();
    const QString text = isSwitch ? onOrOff(state) : value(description, state);
    if (state.isLocked()) {
        return tr("%1, locked").arg(text);
    }
    return state.isReadOnly() && !state.text.isNull() && !description.isCategory()
               ? tr("%1, read-only").arg(text)
               : text;
}

QString CFeatureTexts::executed()
{
    return tr("Executed");
}

QString CFeatureTexts::noNumber(const CFeatureDescription &description, const CFeatureState &state,
                                const QString &typed)
{
    const QString reason =
        description.type == InterfaceInteger
            ? tr("%1: \"%2\" is no whole number; give one without points, commas and spaces")
            : tr("%1: \"%2\" cannot be read as a number; give one with a point for decimals and no "
                 "other separators");
    const QString allowed = limits(description, state);
    return reason.arg(shownLine(description.displayName), shownLine(typed))
           + (allowed.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(allowed));
}

QString CFeatureTexts::withoutTree(QString message)
{
    return message.remove(QStringLiteral("@CameraDevice/"));
}

} // namespace FeatureTree
