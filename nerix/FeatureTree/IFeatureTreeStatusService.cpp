// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include <FeatureTree/IFeatureTreeStatusService.h>

namespace FeatureTree {

IFeatureTreeStatusService::IFeatureTreeStatusService(QObject *parent)
    : QObject(parent)
{}

IFeatureTreeStatusService::~IFeatureTreeStatusService() = default;

} // namespace FeatureTree
