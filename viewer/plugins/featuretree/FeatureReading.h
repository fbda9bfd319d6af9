// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "plugins/featuretree/CFeatureDescription.h"
#include "plugins/featuretree/CFeatureState.h"

namespace ParameterCollection {
class IParameter;
}

namespace FeatureTree {

/// @name What a window shows of a feature, asked of the device
/// They may have to wait for the device, so they are not for the GUI thread. They never throw: what
/// cannot be read is told in the result. Nothing is set, so nobody takes notice of them.
/// @{

CFeatureDescription describeFeature(const ParameterCollection::IParameter &parameter);

/// The state of a feature that is no category.
CFeatureState readFeature(const ParameterCollection::IParameter &parameter);

/// @}

} // namespace FeatureTree
