// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "plugins/featuretree/CFeatureState.h"
#include "plugins/featuretree/CNumberEdit.h"

#include <optional>

namespace FeatureTree {

/// An editor for a number with a fraction, without a rounding of its own. A comma that can only be
/// meant as the point is taken as one; separators of groups are not guessed at. A step changes the
/// second digit.
class CFloatEdit : public CNumberEdit
{
    Q_OBJECT

public:
    explicit CFloatEdit(QWidget *parent = nullptr);
    ~CFloatEdit() override;

    /// Without them every number is allowed.
    void setLimits(const std::optional<CFloatLimits> &limits);

protected:
    QString notated(const QString &typed) const override;
    QString stepped(const QString &number, int steps) const override;
    bool isAllowed(const QString &number) const override;

private:
    CFloatLimits m_limits;
};

} // namespace FeatureTree
