// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "CPanelRig.h"

#include <QTest>

using FeatureTree::CFeatureModel;

CPanelRig::CPanelRig() = default;

CPanelRig::~CPanelRig() = default;

bool CPanelRig::show()
{
    return show(features.services());
}

bool CPanelRig::show(const FeatureTree::CFeatureServices &services)
{
    m_panel = std::make_unique<FeatureTree::CFeaturePanel>(services);
    m_panel->resize(480, 640);
    m_panel->show();
    m_panel->activateWindow();
    return QTest::qWaitForWindowActive(m_panel.get());
}

bool CPanelRig::open()
{
    const bool isOpen = show() && features.openCamera();
    features.deviceSelection->select(features.camera);
    return isOpen && QTest::qWaitFor([this] { return view().isVisible(); });
}

FeatureTree::CFeatureView &CPanelRig::view() const
{
    return *m_panel->findChild<FeatureTree::CFeatureView *>();
}

QLineEdit &CPanelRig::search() const
{
    return *m_panel->findChild<QLineEdit *>(QStringLiteral("FeatureTree.Search"));
}

QComboBox &CPanelRig::level() const
{
    return *m_panel->findChild<QComboBox *>(QStringLiteral("FeatureTree.Level"));
}

QString CPanelRig::notice() const
{
    const auto *label = m_panel->findChild<QLabel *>(QStringLiteral("FeatureTree.Notice"));
    return label->isVisible() ? label->text() : QString();
}

QString CPanelRig::problem() const
{
    const auto *label = m_panel->findChild<QLabel *>(QStringLiteral("FeatureTree.Problem"));
    return label->isVisible() ? label->text() : QString();
}

QModelIndex CPanelRig::row(const char *name) const
{
    const QAbstractItemModel *model = view().model();
    return model
        ->match(model->index(0, 0), CFeatureModel::FullNameRole,
                QStringLiteral("@CameraDevice/") + QLatin1String(name), 1,
                Qt::MatchExactly | Qt::MatchRecursive)
        .value(0);
}

QString CPanelRig::value(const char *name) const
{
    return row(name).siblingAtColumn(CFeatureModel::ValueColumn).data().toString();
}

QRect CPanelRig::checkBox(const char *name) const
{
    QStyleOptionViewItem option;
    option.initFrom(&view());
    option.rect = view().visualRect(row(name).siblingAtColumn(CFeatureModel::ValueColumn));
    option.features = QStyleOptionViewItem::HasCheckIndicator;
    return view().style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option);
}

bool CPanelRig::goTo(const char *name)
{
    view().setFocus();
    view().setCurrentIndex(row(name));
    return QTest::qWaitFor([&] {
        const auto state = row(name).data(CFeatureModel::StateRole);
        return state.value<FeatureTree::CFeatureState>().isKnown;
    });
}

QWidget *CPanelRig::editor() const
{
    const auto children =
        view().viewport()->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget *child : children) {
        if (child->isVisible()) {
            return child;
        }
    }
    return nullptr;
}

bool CPanelRig::edit(const char *name, const char *typed, Qt::Key end)
{
    if (!goTo(name)) {
        return false;
    }
    QTest::keyClick(&view(), Qt::Key_F2);
    QWidget *open = editor();
    if (!open) {
        return false;
    }
    QTest::keyClicks(open, QString::fromUtf8(typed));
    QTest::keyClick(open, end);
    return QTest::qWaitFor([this] { return !editor(); });
}
