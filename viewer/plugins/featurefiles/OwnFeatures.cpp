// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/featurefiles/OwnFeatures.h"

#include <algorithm>
#include <exception>

#include <QStringList>

namespace FeatureFiles {
namespace OwnFeatures {

using ParameterCollection::IParameterCollection;
using ParameterCollectionPool::FeatureStream::Line;

namespace {

// The second is what the serial number is called by older cameras.
const QStringList &serialNumbers()
{
    static const QStringList names{QStringLiteral("DeviceSerialNumber"),
                                   QStringLiteral("DeviceID")};
    return names;
}

const QStringList &identifying()
{
    static const QStringList names =
        QStringList{QStringLiteral("DeviceVendorName"), QStringLiteral("DeviceModelName")}
        + serialNumbers();
    return names;
}

bool isValueOf(const IParameterCollection &parameters, const Line &line)
{
    try {
        return parameters.parameter(QStringLiteral("@CameraDevice/") + line.first)->valueText()
               == line.second;
    } catch (const std::exception &) {
        return false;
    }
}

} // namespace

// With an address goes whether the camera takes it or one that it is given: one that is to take its
// own, and has none, is not found any more.
bool contains(const QString &feature)
{
    static const QStringList names{
        QStringLiteral("DeviceUserID"),
        QStringLiteral("GevPersistentIPAddress"),
        QStringLiteral("GevPersistentSubnetMask"),
        QStringLiteral("GevPersistentDefaultGateway"),
        QStringLiteral("GevCurrentIPConfigurationPersistentIP"),
        QStringLiteral("GevCurrentIPConfigurationDHCP"),
    };
    return names.contains(feature);
}

bool areOf(const IParameterCollection &parameters, const QVector<Line> &lines)
{
    const bool hasSerialNumber = std::any_of(lines.begin(), lines.end(), [](const Line &line) {
        return serialNumbers().contains(line.first) && !line.second.isEmpty();
    });
    return hasSerialNumber
           && std::all_of(lines.begin(), lines.end(), [&parameters](const Line &line) {
                  return !identifying().contains(line.first) || isValueOf(parameters, line);
              });
}

} // namespace OwnFeatures
} // namespace FeatureFiles
