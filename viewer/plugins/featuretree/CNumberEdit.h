// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractSpinBox>

namespace FeatureTree {

/// A line for a number with two arrows. What is typed is marked in colour as long as it cannot be
/// taken; it is the device that refuses it in the end, with the reason.
class CNumberEdit : public QAbstractSpinBox
{
    Q_OBJECT

public:
    explicit CNumberEdit(QWidget *parent);
    ~CNumberEdit() override;

    void setText(const QString &text);

    void stepBy(int steps) override;

protected:
    /// The value that is \a steps away from what \a text says, within the limits.
    virtual QString stepped(const QString &text, int steps) const = 0;

    /// True if \a text is a number within the limits.
    virtual bool isAllowed(const QString &text) const = 0;

    StepEnabled stepEnabled() const override;

    /// To be called when the limits change.
    void markText();
};

} // namespace FeatureTree
