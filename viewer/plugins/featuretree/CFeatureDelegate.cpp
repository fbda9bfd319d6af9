// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/featuretree/CFeatureDelegate.h"

#include "plugins/featuretree/CChoiceEdit.h"
#include "plugins/featuretree/CFeatureModel.h"
#include "plugins/featuretree/CFloatEdit.h"
#include "plugins/featuretree/CIntegerEdit.h"
#include "plugins/featuretree/MutedText.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>

namespace FeatureTree {

using namespace ParameterCollection;

namespace {

// What the editor held at first: null until it is filled.
constexpr const char *firstText = "firstText";

// The feature that is edited.
constexpr const char *editedFeature = "editedFeature";

// Room for the frame of a button around the text.
constexpr int verticalRoom = 8;

int typeOf(const QModelIndex &index)
{
    return index.data(CFeatureModel::TypeRole).toInt();
}

CFeatureState stateOf(const QModelIndex &index)
{
    return index.data(CFeatureModel::StateRole).value<CFeatureState>();
}

bool isButton(const QModelIndex &index)
{
    return index.column() == CFeatureModel::ValueColumn && typeOf(index) == InterfaceCommand
           && stateOf(index).isOffered();
}

QString textOf(const QWidget *editor)
{
    if (const auto *number = qobject_cast<const CNumberEdit *>(editor)) {
        return number->number();
    }
    if (const auto *choice = qobject_cast<const CChoiceEdit *>(editor)) {
        return choice->entry();
    }
    return qobject_cast<const QLineEdit *>(editor)->text();
}

void setText(QWidget *editor, const QString &text)
{
    if (auto *number = qobject_cast<CNumberEdit *>(editor)) {
        number->setText(text);
    } else if (auto *choice = qobject_cast<CChoiceEdit *>(editor)) {
        choice->setCurrentIndex(choice->findData(text)); // none is better than the first one
    } else if (auto *line = qobject_cast<QLineEdit *>(editor)) {
        line->setText(text);
        line->selectAll();
    }
}

void setLimits(QWidget *editor, const CFeatureState &state)
{
    if (auto *integer = qobject_cast<CIntegerEdit *>(editor)) {
        integer->setLimits(state.integerLimits);
    } else if (auto *number = qobject_cast<CFloatEdit *>(editor)) {
        number->setLimits(state.floatLimits);
    } else if (auto *choice = qobject_cast<CChoiceEdit *>(editor)) {
        choice->setEntries(state.entries);
    }
}

bool isNoNumber(const QWidget *editor)
{
    const auto *number = qobject_cast<const CNumberEdit *>(editor);
    return number && number->number().isNull();
}

// The value at first may be no entry, or none that can be read.
bool isNothingChosen(const QWidget *editor)
{
    const auto *choice = qobject_cast<const CChoiceEdit *>(editor);
    return choice && choice->currentIndex() < 0;
}

bool isEnd(const QEvent &event)
{
    if (event.type() != QEvent::KeyPress) {
        return false;
    }
    switch (static_cast<const QKeyEvent &>(event).key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        return true;
    default:
        return false;
    }
}

QWidget *createLine(QWidget *parent, int type)
{
    if (type == InterfaceInteger) {
        return new CIntegerEdit(parent);
    }
    if (type == InterfaceFloat) {
        return new CFloatEdit(parent);
    }
    auto *line = new QLineEdit(parent);
    line->setFrame(false);
    return line;
}

} // namespace

CFeatureDelegate::CFeatureDelegate(QObject *parent)
    : QStyledItemDelegate(parent)
{}

CFeatureDelegate::~CFeatureDelegate() = default;

QWidget *CFeatureDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &,
                                        const QModelIndex &index) const
{
    const int type = typeOf(index);
    QWidget *editor =
        type == InterfaceEnumeration ? createChoice(parent) : createLine(parent, type);
    editor->setAutoFillBackground(true);
    editor->setProperty(editedFeature, index.data(CFeatureModel::FeatureRole));
    editor->setAccessibleName(
        index.siblingAtColumn(CFeatureModel::NameColumn).data(Qt::DisplayRole).toString());
    return editor;
}

QWidget *CFeatureDelegate::createChoice(QWidget *parent) const
{
    auto *choice = new CChoiceEdit(parent);
    auto *self = const_cast<CFeatureDelegate *>(this); // Qt's operation is const, its signals not
    connect(choice, &CChoiceEdit::picked, self, [self, choice] {
        Q_EMIT self->commitData(choice);
        Q_EMIT self->closeEditor(choice);
    });
    connect(choice, &CChoiceEdit::dismissed, self,
            [self, choice] { Q_EMIT self->closeEditor(choice, RevertModelCache); });
    return choice;
}

void CFeatureDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    const CFeatureState state = stateOf(index);
    setLimits(editor, state);
    editor->setToolTip(index.data(Qt::ToolTipRole).toString()); // safe as the model gives it
    if (!editor->property(firstText).isValid()) {
        const QString text = index.data(Qt::EditRole).toString();
        setText(editor, text);
        editor->setProperty(firstText, text);
    }
}

// What the user left as it was is not set again.
void CFeatureDelegate::setModelData(QWidget *editor, QAbstractItemModel *model,
                                    const QModelIndex &index) const
{
    if (isNoNumber(editor)) {
        tellNoNumber(*editor);
        return;
    }
    if (isNothingChosen(editor)) {
        return;
    }
    const QString text = textOf(editor);
    if (text != editor->property(firstText).toString()
        && !model->setData(index, text, Qt::EditRole)) {
        Q_EMIT notTaken(index);
    }
}

void CFeatureDelegate::tellNoNumber(const QWidget &editor) const
{
    Q_EMIT notANumber(editor.property(editedFeature).toInt(),
                      qobject_cast<const CNumberEdit *>(&editor)->text());
}

bool CFeatureDelegate::eventFilter(QObject *watched, QEvent *event)
{
    const auto *editor = qobject_cast<QWidget *>(watched);
    if (isEnd(*event) && isNoNumber(editor)) {
        tellNoNumber(*editor);
        return true;
    }
    return QStyledItemDelegate::eventFilter(watched, event);
}

void CFeatureDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                             const QModelIndex &index) const
{
    if (!isButton(index)) {
        QStyledItemDelegate::paint(painter, option, index);
        paintFrame(painter, option, index);
        return;
    }
    QStyleOptionViewItem ground = option;
    initStyleOption(&ground, index);
    QStyleOptionButton button;
    button.rect = option.rect.adjusted(1, 1, -1, -1);
    button.text = ground.text;
    button.palette = option.palette;
    button.fontMetrics = option.fontMetrics;
    button.direction = option.direction;
    button.state = m_pressed == index ? QStyle::State_Sunken : QStyle::State_Raised;
    if (stateOf(index).canBeSet()) {
        button.state |= QStyle::State_Enabled;
    } else {
        button.palette.setCurrentColorGroup(QPalette::Disabled);
    }
    button.icon = index.data(Qt::DecorationRole).value<QIcon>();
    button.iconSize = ground.decorationSize;

    ground.text.clear();
    ground.icon = QIcon();
    const QStyle *style = option.widget ? option.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &ground, painter, option.widget);
    style->drawControl(QStyle::CE_PushButton, &button, painter, option.widget);
}

// Qt's own frame of a check box is darker than the window, which does not show on a dark one.
void CFeatureDelegate::paintFrame(QPainter *painter, const QStyleOptionViewItem &option,
                                  const QModelIndex &index) const
{
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    if (!item.features.testFlag(QStyleOptionViewItem::HasCheckIndicator)) {
        return;
    }
    const QStyle *style = item.widget ? item.widget->style() : QApplication::style();
    const QRectF box =
        style->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &item, item.widget);
    painter->save();
    painter->setBrush(Qt::NoBrush);
    painter->setPen(item.state.testFlag(QStyle::State_Selected)
                        ? item.palette.color(QPalette::HighlightedText)
                        : mutedText(QApplication::palette()));
    painter->drawRect(box.adjusted(0.5, 0.5, -0.5, -0.5));
    painter->restore();
}

QSize CFeatureDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const QSize size = QStyledItemDelegate::sizeHint(option, index);
    return {size.width(), qMax(size.height(), option.fontMetrics.height() + verticalRoom)};
}

// A button is pressed when the mouse goes down and up on it.
bool CFeatureDelegate::editorEvent(QEvent *event, QAbstractItemModel *model,
                                   const QStyleOptionViewItem &option, const QModelIndex &index)
{
    const bool isPress = event->type() == QEvent::MouseButtonPress;
    const bool isRelease = event->type() == QEvent::MouseButtonRelease;
    if (!isButton(index) || !(isPress || isRelease)) {
        return QStyledItemDelegate::editorEvent(event, model, option, index);
    }
    const auto *mouse = static_cast<QMouseEvent *>(event);
    if (mouse->button() != Qt::LeftButton) {
        return false;
    }
    if (isRelease && m_pressed == index && option.rect.contains(mouse->pos())) {
        model->setData(index, QStringLiteral("Execute"), Qt::EditRole);
    }
    m_pressed = isPress && stateOf(index).canBeSet() ? QPersistentModelIndex(index)
                                                     : QPersistentModelIndex();
    return true;
}

} // namespace FeatureTree
