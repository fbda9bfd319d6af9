// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractSpinBox>

namespace FeatureTree {

/// A line for a number with two arrows. Everything can be typed and nothing is left out: what is
/// typed is marked in colour as long as it cannot be taken. It is the device that refuses a number
/// in the end, with the reason; what is no number never reaches it.
class CNumberEdit : public QAbstractSpinBox
{
    Q_OBJECT

public:
    explicit CNumberEdit(QWidget *parent);
    ~CNumberEdit() override;

    void setText(const QString &text);

    /// What is typed in GenICam's notation, for example "0.5" for "0,5"; null if it is no number of
    /// this kind.
    QString number() const
    {
        return notated(text());
    }

    /// Does nothing to a text that is no number, so that the user can mend it.
    void stepBy(int steps) override;

protected:
    /// What `number` gives for \a typed.
    virtual QString notated(const QString &typed) const = 0;

    /// The value that is \a steps away from \a number, within the limits; from the minimum if it is
    /// null.
    virtual QString stepped(const QString &number, int steps) const = 0;

    /// True if \a number is within the limits; false if it is null.
    virtual bool isAllowed(const QString &number) const = 0;

    StepEnabled stepEnabled() const override;

    /// To be called when the limits change.
    void markText();
};

} // namespace FeatureTree
