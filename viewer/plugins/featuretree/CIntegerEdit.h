// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "plugins/featuretree/CFeatureState.h"
#include "plugins/featuretree/CNumberEdit.h"

#include <optional>

namespace FeatureTree {

/// An editor for a whole number of 64 bits, in decimal or, with 0x, hexadecimal digits.
class CIntegerEdit : public CNumberEdit
{
    Q_OBJECT

public:
    explicit CIntegerEdit(QWidget *parent = nullptr);
    ~CIntegerEdit() override;

    /// Without them everything is allowed and a step is 1.
    void setLimits(const std::optional<CIntegerLimits> &limits);

protected:
    QString notated(const QString &typed) const override;
    QString stepped(const QString &number, int steps) const override;
    bool isAllowed(const QString &number) const override;

private:
    CIntegerLimits m_limits;
};

} // namespace FeatureTree
