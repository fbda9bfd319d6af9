// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QPersistentModelIndex>
#include <QStyledItemDelegate>

namespace FeatureTree {

/// Draws the values of a `CFeatureModel`, commands as buttons, and makes the editor that fits a
/// feature's kind. An editor that is open learns of new limits and entries, and keeps what the user
/// has typed.
class CFeatureDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit CFeatureDelegate(QObject *parent = nullptr);
    ~CFeatureDelegate() override;

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model,
                      const QModelIndex &index) const override;
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    bool editorEvent(QEvent *event, QAbstractItemModel *model, const QStyleOptionViewItem &option,
                     const QModelIndex &index) override;

    /// Enter and Tab do not end an editor whose text is no number.
    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// \a typed cannot be taken as a number for \a feature, and nothing was set.
    void notANumber(int feature, const QString &typed) const;

    /// What was typed cannot be set any more, because the feature was locked meanwhile.
    void notTaken(const QModelIndex &index) const;

private:
    QWidget *createChoice(QWidget *parent) const;
    void paintFrame(QPainter *painter, const QStyleOptionViewItem &option,
                    const QModelIndex &index) const;
    void tellNoNumber(const QWidget &editor) const;

    QPersistentModelIndex m_pressed; // the command whose button is held down
};

} // namespace FeatureTree
