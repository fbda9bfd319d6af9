// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace FeatureFiles {

/// What belongs to the connection and not to the camera: who controls it, and to which computer and
/// port it sends images and messages. Who opens the camera or grabs sets it; a value from a file
/// would turn a running stream away, or close it.
///
/// Not among them: the ports that the camera sends from (`GevSCSP`, `GevMCSP`) can only be read,
/// and what says how, not where to (`GevHeartbeatTimeout`, `GevSCPSPacketSize`, `GevSCPD`) is a
/// setting that a user chooses and wants back.
namespace ConnectionFeatures {

/// True if \a feature, a name without the tree, is such a feature, also with the index of a channel
/// behind its name, such as "GevSCDA0" and "GevSCDA[0]".
bool contains(const QString &feature);

} // namespace ConnectionFeatures

} // namespace FeatureFiles
