// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QComboBox>
#include <QStringList>

namespace FeatureTree {

/// An editor for one of several entries: a list that opens at once and ends with a choice, or
/// without one.
class CChoiceEdit : public QComboBox
{
    Q_OBJECT

public:
    explicit CChoiceEdit(QWidget *parent = nullptr);
    ~CChoiceEdit() override;

    /// Offers \a entries, as long as they are others than before.
    void setEntries(const QStringList &entries);

    /// The chosen one as it was offered, which may be shown otherwise; null if none is chosen.
    QString entry() const;

    void hidePopup() override;

Q_SIGNALS:
    /// An entry was picked, or the list was closed without.
    void picked();
    void dismissed();

private:
    void onHidden();

    bool m_isPicked = false;
};

} // namespace FeatureTree
