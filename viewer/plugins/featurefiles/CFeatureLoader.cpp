// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/featurefiles/CFeatureLoader.h"

#include "plugins/featurefiles/ConnectionFeatures.h"
#include "plugins/featurefiles/OwnFeatures.h"
#include "plugins/parametercollectionpool/ValueText.h"

#include <exception>
#include <optional>

namespace FeatureFiles {

using namespace ParameterCollection;
namespace ValueText = ParameterCollectionPool::ValueText;

namespace {

const QString &tree()
{
    static const QString name = QStringLiteral("@CameraDevice/");
    return name;
}

// The value as text; nothing if it cannot be read.
std::optional<QString> valueOf(const IParameter &parameter)
{
    try {
        return parameter.isReadable() ? std::make_optional(parameter.valueText()) : std::nullopt;
    } catch (const std::exception &) {
        return std::nullopt;
    }
}

// A person may have written 0x10 for 16, and 5.0 for 5.
bool isSame(const IParameter &parameter, const QString &left, const QString &right)
{
    switch (parameter.interfaceType()) {
    case InterfaceInteger:
        return left == right || ValueText::toInteger(left) == ValueText::toInteger(right);
    case InterfaceFloat:
        return left == right || ValueText::toFloat(left) == ValueText::toFloat(right);
    default:
        return left == right;
    }
}

// The reason without the name, which stands beside it.
QString reasonOf(const std::exception &exception, const QString &name)
{
    const QString message = QString::fromUtf8(exception.what());
    const QString prefix = tree() + name + QStringLiteral(": ");
    return message.startsWith(prefix) ? message.mid(prefix.size()) : message;
}

} // namespace

CFeatureLoader::CFeatureLoader(const IParameterCollection &parameters, const QVector<Line> &lines)
{
    const bool isForeign = !OwnFeatures::areOf(parameters, lines);
    for (const Line &line : lines) {
        Item item;
        item.name = line.first;
        item.wanted = line.second;
        item.parameter = parameters.parameter(tree() + line.first);
        item.isForeign = isForeign && OwnFeatures::contains(line.first);
        item.isOfConnection = ConnectionFeatures::contains(line.first);
        m_items.append(item);
    }
}

CLoadReport CFeatureLoader::load(const Progress &progress)
{
    tryAsLongAsItHelps(progress);
    if (!m_isCancelled && reopenWhatWasChangedAgain()) {
        tryAsLongAsItHelps(progress);
    }
    refuseWhatIsDifferent();
    return report();
}

void CFeatureLoader::tryAsLongAsItHelps(const Progress &progress)
{
    int before = m_items.size() + 1;
    int open = m_items.size();
    while (open > 0 && open < before && !m_isCancelled) {
        before = open;
        open = tryOpenOnes(progress);
    }
}

// Gives the number of those that are still open.
int CFeatureLoader::tryOpenOnes(const Progress &progress)
{
    int open = 0;
    for (int i = 0; i < m_items.size() && !m_isCancelled; ++i) {
        Item &item = m_items[i];
        if (item.result == Result::Open) {
            tryToSet(item);
            open += item.result == Result::Open ? 1 : 0;
        }
        m_isCancelled = progress && !progress(i + 1, m_items.size());
    }
    return open;
}

void CFeatureLoader::tryToSet(Item &item)
{
    try {
        item.result = attempt(item);
        item.reason.clear();
    } catch (const std::exception &exception) {
        item.reason = reasonOf(exception, item.name);
    }
}

// Of a camera that is gone nothing can be set either, so only what is there is passed over as
// read-only; the rest gets its reason from the refusal.
CFeatureLoader::Result CFeatureLoader::attempt(Item &item)
{
    IParameter &parameter = *item.parameter;
    if (!parameter.isNull() && !parameter.isUserSettable() && !parameter.isUnavailable()) {
        return Result::ReadOnly;
    }
    const std::optional<QString> now = valueOf(parameter);
    if (now && isSame(parameter, *now, item.wanted)) {
        return Result::Unchanged;
    }
    if ((item.isForeign || item.isOfConnection) && !parameter.isNull()) {
        return Result::LeftAlone;
    }
    parameter.setValueText(item.wanted);
    item.taken = valueOf(parameter);
    return Result::Set;
}

bool CFeatureLoader::reopenWhatWasChangedAgain()
{
    bool isAny = false;
    for (Item &item : m_items) {
        if (item.result == Result::Unchanged) {
            item.taken = item.wanted;
        } else if (item.result != Result::Set) {
            continue;
        }
        const std::optional<QString> now = valueOf(*item.parameter);
        if (now && item.taken && !isSame(*item.parameter, *now, *item.taken)) {
            item.result = Result::Open;
            isAny = true;
        }
    }
    return isAny;
}

void CFeatureLoader::refuseWhatIsDifferent()
{
    for (Item &item : m_items) {
        if (item.result != Result::Set && item.result != Result::Unchanged) {
            continue;
        }
        const std::optional<QString> now = valueOf(*item.parameter);
        if (now && !isSame(*item.parameter, *now, item.wanted)) {
            item.result = Result::Refused;
            item.reason = CLoadReport::tr("the camera made it \"%1\"").arg(*now);
        }
    }
}

CLoadReport CFeatureLoader::report() const
{
    CLoadReport report;
    report.isCancelled = m_isCancelled;
    for (const Item &item : m_items) {
        switch (item.result) {
        case Result::Set:
            ++report.set;
            break;
        case Result::Unchanged:
            ++report.unchanged;
            break;
        case Result::ReadOnly:
            ++report.readOnly;
            break;
        case Result::LeftAlone:
            (item.isOfConnection ? report.ofConnection : report.leftAlone).append(item.name);
            break;
        default:
            // What was not tried has no reason.
            if (!item.reason.isEmpty()) {
                report.refused.append({item.name, item.reason});
            }
        }
    }
    return report;
}

} // namespace FeatureFiles
