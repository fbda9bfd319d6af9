// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "plugins/featuretree/CFeatureState.h"
#include "plugins/featuretree/CNumberEdit.h"

#include <optional>

namespace FeatureTree {

/// An editor for a number with a fraction, with a point and without a rounding of its own. A step
/// changes the second digit.
class CFloatEdit : public CNumberEdit
{
    Q_OBJECT

public:
    explicit CFloatEdit(QWidget *parent = nullptr);
    ~CFloatEdit() override;

    /// Without them every number is allowed.
    void setLimits(const std::optional<CFloatLimits> &limits);

protected:
    QString stepped(const QString &text, int steps) const override;
    bool isAllowed(const QString &text) const override;
    QValidator::State validate(QString &text, int &position) const override;

private:
    CFloatLimits m_limits;
};

} // namespace FeatureTree
