// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "support/CFakeCamera.h"

CFakeCamera::CFakeCamera(const QString &identity, const QString &displayName, const QString &model)
    : m_identity(identity)
    , m_displayName(displayName)
    , m_model(model)
{}

CFakeCamera::~CFakeCamera() = default;

QString CFakeCamera::identity() const
{
    return m_identity;
}

QString CFakeCamera::displayName() const
{
    return m_displayName;
}

QString CFakeCamera::modelName() const
{
    return m_model;
}

QString CFakeCamera::vendorName() const
{
    return QStringLiteral("Ostrand");
}
