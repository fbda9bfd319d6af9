// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "plugins/parametercollectionpool/FeatureStream.h"

#include <ParameterCollection/IParameterCollection.h>

#include <QString>
#include <QVector>

namespace FeatureFiles {

/// What belongs to one camera alone: its name and its address in the network. Two cameras with the
/// same cannot be told apart, or not be reached.
namespace OwnFeatures {

/// True if \a feature, a name without the tree, is such a feature.
bool contains(const QString &feature);

/// True if \a lines were saved from the camera of \a parameters: if maker, model and serial number,
/// as far as they stand there, are those of the camera, and the serial number stands there. Asks
/// the device, so it is not for the GUI thread.
bool areOf(const ParameterCollection::IParameterCollection &parameters,
           const QVector<ParameterCollectionPool::FeatureStream::Line> &lines);

} // namespace OwnFeatures

} // namespace FeatureFiles
