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
    QString stepped(const QString &text, int steps) const override;
    bool isAllowed(const QString &text) const override;
    QValidator::State validate(QString &text, int &position) const override;

private:
    CIntegerLimits m_limits;
};

} // namespace FeatureTree
