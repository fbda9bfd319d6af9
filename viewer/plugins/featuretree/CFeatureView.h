// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include <QSet>
#include <QString>
#include <QTreeView>
#include <QVector>

class QTimer;

namespace FeatureTree {

/// The tree of the features. The current row is edited, switched or executed by Enter, F2 or the
/// space bar, or by a click on its value. GUI thread.
class CFeatureView : public QTreeView
{
    Q_OBJECT

public:
    explicit CFeatureView(QWidget *parent = nullptr);
    ~CFeatureView() override;

    /// The features whose rows are in sight; none while the view is not shown.
    QVector<int> featuresInSight() const;

    /// Does \a work, after which another row may be current, without anyone having picked it.
    void quietly(const std::function<void()> &work);

    /// Makes the row current, quietly, and brings it into sight; an invalid index does nothing.
    void showRow(const QModelIndex &index);

    /// Makes the names as wide as they need, as long as that leaves room for the values, and keeps
    /// them so while the view gets another width, until the user gives them one.
    void fitNames();

    /// Opens all categories; the user's own choice of open ones comes back with `false`.
    void setEverythingOpen(bool open);

    void setModel(QAbstractItemModel *model) override;
    void reset() override;

Q_SIGNALS:
    /// Other rows came into sight, or went out of it.
    void sightChanged();

    /// The user made the row of \a feature, or of a category (-1), the current one.
    void picked(int feature);

    /// The user wanted to change \a feature, which cannot be changed now.
    void cannotBeChanged(int feature);

    /// The user typed \a typed for \a feature, which is no number.
    void notANumber(int feature, const QString &typed);

    /// An editor was closed, whatever became of what was typed.
    void editingEnded();

protected:
    bool viewportEvent(QEvent *event) override;
    void closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    void updateGeometries() override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;

private:
    void onceReleased(const std::function<void()> &work);
    void onceChosen(const std::function<void()> &work);
    void letGo();
    void chooseRow(const QModelIndex &index);
    void onClicked(const QModelIndex &index);
    void refuseToChange(const QModelIndex &index);
    void activate(const QModelIndex &index);
    void applyOpen();
    void noteOpen(const QModelIndex &index, bool isOpen);
    void forEachCategory(const std::function<void(const QModelIndex &)> &work) const;

    QTimer *m_sightTimer;   // several causes in a row lead to one signal
    QSet<QString> m_closed; // full names of the categories that the user closed
    QVector<std::function<void()>> m_onceReleased;
    bool m_isHeld = false; // a button of the mouse is down on a row
    bool m_isEverythingOpen = false;
    bool m_isQuiet = false;
    bool m_areNamesFitted = false; // and the user gave them no width since
};

} // namespace FeatureTree
