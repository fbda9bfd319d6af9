// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/cameraselector/CCameraPanel.h"

#include "plugins/cameraselector/CCameraCommands.h"
#include "plugins/cameraselector/CCameraListModel.h"
#include "plugins/cameraselector/IDeviceSelectionService.h"
#include "windows/CPlainLabel.h"
#include "windows/OnLanguageChange.h"

#include <utility>

#include <QAction>
#include <QHeaderView>
#include <QKeyEvent>
#include <QTreeView>
#include <QVBoxLayout>

namespace CameraSelector {

CCameraPanel::CCameraPanel(CCameraListModel &model, CCameraCommands &commands,
                           QSharedPointer<IDeviceSelectionService> selection, QWidget *parent)
    : QWidget(parent)
    , m_model(model)
    , m_commands(commands)
    , m_selection(std::move(selection))
    , m_view(new QTreeView(this))
    , m_hint(new Windows::CPlainLabel(this))
    , m_problem(new Windows::CPlainLabel(this))
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_hint);
    layout->addWidget(m_view);
    layout->addWidget(m_problem);
    for (Windows::CPlainLabel *label : {m_hint, m_problem}) {
        label->setWordWrap(true);
        label->setMargin(8);
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    }
    m_problem->hide();
    buildView(commands);
    followSelection();
    connect(&m_model, &QAbstractItemModel::rowsInserted, this, &CCameraPanel::updateHint);
    Windows::onLanguageChange(this, [this] {
        setWindowTitle(tr("Cameras"));
        m_view->setAccessibleName(tr("Cameras"));
        m_hint->setText(tr("Looking for cameras. Plug one in, and check its power and that its "
                           "address is in a network of this computer."));
        m_model.retranslate();
    });
    updateHint();
}

CCameraPanel::~CCameraPanel() = default;

void CCameraPanel::buildView(CCameraCommands &commands)
{
    m_view->setModel(&m_model);
    m_view->setRootIsDecorated(false);
    m_view->setUniformRowHeights(true);
    m_view->setAllColumnsShowFocus(true);
    m_view->header()->setStretchLastSection(false);
    m_view->header()->setResizeContentsPrecision(0); // what is visible: there may be many
    m_view->header()->setSectionResizeMode(CCameraListModel::CameraColumn, QHeaderView::Stretch);
    m_view->header()->setSectionResizeMode(CCameraListModel::StateColumn,
                                           QHeaderView::ResizeToContents);
    m_view->setTextElideMode(Qt::ElideMiddle);
    m_view->setContextMenuPolicy(Qt::ActionsContextMenu);
    m_view->addActions({commands.openAction(), commands.closeAction()});
    m_view->installEventFilter(this);
    connect(m_view, &QTreeView::doubleClicked, this,
            [this](const QModelIndex &index) { m_commands.openOrClose(m_model.cameraAt(index)); });
}

void CCameraPanel::followSelection()
{
    connect(m_view->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &CCameraPanel::select);
    connect(m_selection.data(), &IDeviceSelectorService::selectionChanged, this,
            &CCameraPanel::showSelected);
    connect(&m_model, &QAbstractItemModel::rowsInserted, this, &CCameraPanel::showSelected);
    showSelected();
}

void CCameraPanel::select(const QModelIndex &index)
{
    if (const auto camera = m_model.cameraAt(index)) {
        m_selection->select(camera);
    }
}

void CCameraPanel::showSelected()
{
    using Core::CameraPoolComponents::ICameraInfo;
    const auto camera = qSharedPointerDynamicCast<ICameraInfo>(m_selection->selected());
    const QModelIndex index = m_model.indexOf(camera);
    if (index.row() != m_view->currentIndex().row()) {
        m_view->setCurrentIndex(index);
    }
}

void CCameraPanel::updateHint()
{
    m_hint->setVisible(m_model.rowCount() == 0);
}

void CCameraPanel::setProblem(const QString &text)
{
    m_problem->setText(text);
    m_problem->setVisible(!text.isEmpty());
}

// The view itself would take Enter for editing.
bool CCameraPanel::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_view && event->type() == QEvent::KeyPress) {
        const int key = static_cast<const QKeyEvent *>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            m_commands.openOrClose(m_model.cameraAt(m_view->currentIndex()));
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace CameraSelector
