// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/featuretree/CFeatureView.h"

#include "plugins/featuretree/CFeatureDelegate.h"
#include "plugins/featuretree/CFeatureModel.h"

#include <utility>

#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QResizeEvent>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTimer>

namespace FeatureTree {

namespace {

int featureOf(const QModelIndex &index)
{
    const QVariant feature = index.data(CFeatureModel::FeatureRole);
    const bool isCategory =
        index.data(CFeatureModel::TypeRole).toInt() == ParameterCollection::InterfaceCategory;
    return feature.isValid() && !isCategory ? feature.toInt() : -1;
}

bool isActivation(const QKeyEvent &event)
{
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
    case Qt::Key_F2:
        return event.modifiers() == Qt::NoModifier || event.modifiers() == Qt::KeypadModifier;
    default:
        return false;
    }
}

} // namespace

CFeatureView::CFeatureView(QWidget *parent)
    : QTreeView(parent)
    , m_sightTimer(new QTimer(this))
{
    auto *delegate = new CFeatureDelegate(this);
    setItemDelegate(delegate);
    connect(delegate, &CFeatureDelegate::notTaken, this, [this](const QModelIndex &index) {
        onceChosen([this, index = QPersistentModelIndex(index)] { refuseToChange(index); });
    });
    connect(delegate, &CFeatureDelegate::notANumber, this,
            [this](int feature, const QString &typed) {
                onceChosen([this, feature, typed] { Q_EMIT notANumber(feature, typed); });
            });
    setEditTriggers(NoEditTriggers); // see `activate`
    setUniformRowHeights(true);
    setAlternatingRowColors(true);
    setAllColumnsShowFocus(true);
    setSelectionBehavior(SelectRows);
    setTabKeyNavigation(false);
    m_sightTimer->setSingleShot(true);
    connect(m_sightTimer, &QTimer::timeout, this, &CFeatureView::sightChanged);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, m_sightTimer,
            QOverload<>::of(&QTimer::start));
    connect(this, &QTreeView::clicked, this, &CFeatureView::onClicked);
    connect(this, &QTreeView::doubleClicked, this, &CFeatureView::refuseToChange);
    connect(this, &QTreeView::expanded, this,
            [this](const QModelIndex &index) { noteOpen(index, true); });
    connect(this, &QTreeView::collapsed, this,
            [this](const QModelIndex &index) { noteOpen(index, false); });
}

CFeatureView::~CFeatureView() = default;

QVector<int> CFeatureView::featuresInSight() const
{
    QVector<int> features;
    if (!isVisible() || !model()) {
        return features;
    }
    const int bottom = viewport()->height();
    for (QModelIndex index = indexAt({0, 0}); index.isValid(); index = indexBelow(index)) {
        if (visualRect(index).top() > bottom) {
            break;
        }
        const int feature = featureOf(index);
        if (feature >= 0) {
            features.append(feature);
        }
    }
    return features;
}

void CFeatureView::quietly(const std::function<void()> &work)
{
    const QScopedValueRollback<bool> quiet(m_isQuiet, true);
    work();
}

void CFeatureView::showRow(const QModelIndex &index)
{
    if (index.isValid() && index.siblingAtColumn(0) != currentIndex().siblingAtColumn(0)) {
        const QScopedValueRollback<bool> quiet(m_isQuiet, true);
        setCurrentIndex(index);
        scrollTo(index);
    }
}

void CFeatureView::fitNames()
{
    const int most = viewport()->width() * 3 / 5;
    header()->resizeSection(0, qMin(sizeHintForColumn(0), most));
    m_areNamesFitted = true;
}

bool CFeatureView::viewportEvent(QEvent *event)
{
    const bool isHandled = QTreeView::viewportEvent(event);
    if (event->type() == QEvent::Resize && m_areNamesFitted) {
        fitNames();
    }
    return isHandled;
}

void CFeatureView::setEverythingOpen(bool open)
{
    m_isEverythingOpen = open;
    applyOpen();
}

void CFeatureView::setModel(QAbstractItemModel *model)
{
    QTreeView::setModel(model);
    header()->setSectionResizeMode(QHeaderView::Interactive);
    header()->setStretchLastSection(true);
    connect(header(), &QHeaderView::sectionResized, this, [this](int section) {
        if (section == 0) {
            m_areNamesFitted = false;
        }
    });
    applyOpen();
}

void CFeatureView::reset()
{
    QTreeView::reset();
    applyOpen();
}

void CFeatureView::applyOpen()
{
    if (!model()) {
        return;
    }
    const QScopedValueRollback<bool> quiet(m_isQuiet, true);
    expandAll();
    forEachCategory([this](const QModelIndex &index) {
        setFirstColumnSpanned(index.row(), index.parent(), true);
        if (!m_isEverythingOpen
            && m_closed.contains(index.data(CFeatureModel::FullNameRole).toString())) {
            collapse(index);
        }
    });
    m_sightTimer->start();
}

void CFeatureView::noteOpen(const QModelIndex &index, bool isOpen)
{
    m_sightTimer->start();
    if (m_isQuiet || m_isEverythingOpen) {
        return;
    }
    const QString name = index.data(CFeatureModel::FullNameRole).toString();
    if (isOpen) {
        m_closed.remove(name);
    } else {
        m_closed.insert(name);
    }
}

void CFeatureView::forEachCategory(const std::function<void(const QModelIndex &)> &work) const
{
    const std::function<void(const QModelIndex &)> walk = [&](const QModelIndex &parent) {
        for (int row = 0; row < model()->rowCount(parent); ++row) {
            const QModelIndex index = model()->index(row, 0, parent);
            if (model()->hasChildren(index)) {
                walk(index);
                work(index);
            }
        }
    };
    walk(rootIndex());
}

void CFeatureView::onClicked(const QModelIndex &index)
{
    if (index.column() == CFeatureModel::ValueColumn
        && index.flags().testFlag(Qt::ItemIsEditable)) {
        activate(index);
    }
}

void CFeatureView::refuseToChange(const QModelIndex &index)
{
    const int feature = featureOf(index);
    if (feature >= 0) {
        Q_EMIT cannotBeChanged(feature);
    }
}

void CFeatureView::activate(const QModelIndex &row)
{
    const QModelIndex value = row.siblingAtColumn(CFeatureModel::ValueColumn);
    const int feature = featureOf(row);
    if (feature < 0) {
        setExpanded(row.siblingAtColumn(0), !isExpanded(row.siblingAtColumn(0)));
    } else if (value.flags().testFlag(Qt::ItemIsEditable)) {
        edit(value);
    } else if (value.flags().testFlag(Qt::ItemIsUserCheckable)) {
        const bool isOn = value.data(Qt::CheckStateRole).toInt() == Qt::Checked;
        model()->setData(value, isOn ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
    } else if (!model()->setData(value, QStringLiteral("Execute"), Qt::EditRole)) {
        Q_EMIT cannotBeChanged(feature);
    }
}

void CFeatureView::closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint)
{
    QTreeView::closeEditor(editor, hint);
    Q_EMIT editingEnded();
}

// What is told of a row may change the height of the view; no row moves away from under the mouse
// while its button is down.
void CFeatureView::onceReleased(const std::function<void()> &work)
{
    if (m_isHeld) {
        m_onceReleased.append(work);
    } else {
        work();
    }
}

// A click on another row ends an editor before it chooses that row, which would end the message.
void CFeatureView::onceChosen(const std::function<void()> &work)
{
    QMetaObject::invokeMethod(
        this, [this, work] { onceReleased(work); }, Qt::QueuedConnection);
}

void CFeatureView::letGo()
{
    m_isHeld = false;
    const auto all = std::exchange(m_onceReleased, {});
    for (const auto &work : all) {
        work();
    }
}

void CFeatureView::mousePressEvent(QMouseEvent *event)
{
    letGo();
    m_isHeld = event->button() == Qt::LeftButton;
    QTreeView::mousePressEvent(event);
    chooseRow(indexAt(event->pos()));
}

// Qt leaves the current row alone if the delegate takes the click, as for a check box or a button.
void CFeatureView::chooseRow(const QModelIndex &index)
{
    if (!m_isHeld || index.column() != CFeatureModel::ValueColumn
        || index.siblingAtColumn(0) == currentIndex().siblingAtColumn(0)) {
        return;
    }
    setAutoScroll(false);
    setCurrentIndex(index);
    setAutoScroll(true);
}

void CFeatureView::mouseReleaseEvent(QMouseEvent *event)
{
    QTreeView::mouseReleaseEvent(event);
    letGo();
}

// Qt keeps the first row where it is.
void CFeatureView::resizeEvent(QResizeEvent *event)
{
    QTreeView::resizeEvent(event);
    const QRect row = visualRect(currentIndex());
    if (row.isValid() && row.top() < event->oldSize().height()
        && row.bottom() >= viewport()->height()) {
        onceReleased([this] { scrollTo(currentIndex()); });
    }
}

void CFeatureView::keyPressEvent(QKeyEvent *event)
{
    if (state() != EditingState && isActivation(*event) && currentIndex().isValid()) {
        activate(currentIndex());
        event->accept();
        return;
    }
    QTreeView::keyPressEvent(event);
}

void CFeatureView::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    QTreeView::currentChanged(current, previous);
    const int feature = featureOf(current);
    if (!m_isQuiet) {
        onceReleased([this, feature] { Q_EMIT picked(feature); });
    }
}

void CFeatureView::updateGeometries()
{
    QTreeView::updateGeometries();
    m_sightTimer->start();
}

void CFeatureView::showEvent(QShowEvent *event)
{
    QTreeView::showEvent(event);
    m_sightTimer->start();
}

void CFeatureView::hideEvent(QHideEvent *event)
{
    QTreeView::hideEvent(event);
    letGo();
    m_sightTimer->start();
}

void CFeatureView::focusInEvent(QFocusEvent *event)
{
    // Qt makes the first row current if there is none.
    quietly([this, event] { QTreeView::focusInEvent(event); });
}

} // namespace FeatureTree
