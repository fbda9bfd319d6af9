// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CCameraInfo.h"

#include <utility>

namespace CameraPool {

CCameraInfo::CCameraInfo(CFoundCamera found)
    : m_found(std::move(found))
{}

CCameraInfo::~CCameraInfo() = default;

QString CCameraInfo::identity() const
{
    return m_found.identity();
}

QString CCameraInfo::displayName() const
{
    return m_found.displayName();
}

QString CCameraInfo::modelName() const
{
    return m_found.model;
}

QString CCameraInfo::vendorName() const
{
    return m_found.vendor;
}

} // namespace CameraPool
