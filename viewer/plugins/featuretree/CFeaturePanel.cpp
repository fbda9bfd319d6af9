// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/featuretree/CFeaturePanel.h"

#include "plugins/featuretree/CFeatureTexts.h"
#include "plugins/featuretree/CFeatureView.h"
#include "windows/CPlainLabel.h"
#include "windows/OnLanguageChange.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSettings>
#include <QShortcut>
#include <QStackedWidget>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

namespace FeatureTree {

using namespace ParameterCollection;
using Windows::CPlainLabel;

namespace {

constexpr const char *levelKey = "FeatureTree/Level";

// So that the tree does not jump with each row that is explained; most explanations fit.
constexpr int explanationLines = 6;

template <class Label>
Label *createText(const char *name)
{
    auto *label = new Label;
    label->setObjectName(QString::fromLatin1(name));
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

} // namespace

CFeaturePanel::CFeaturePanel(const CFeatureServices &services, QWidget *parent)
    : QWidget(parent)
    , m_controller(services)
{
    m_filter.setSourceModel(&m_controller.model());
    createWidgets();
    connectWidgets();
    Windows::onLanguageChange(this, [this] { setTexts(); });
    restoreLevel();
    showProblem();
}

CFeaturePanel::~CFeaturePanel() = default;

void CFeaturePanel::createWidgets()
{
    m_view = new CFeatureView;
    m_view->setObjectName(QStringLiteral("FeatureTree.View"));
    m_view->setModel(&m_filter);
    m_notice = createText<CPlainLabel>("FeatureTree.Notice");
    m_notice->setAlignment(Qt::AlignCenter);
    m_notice->setMargin(fontMetrics().height());
    m_stack = new QStackedWidget;
    m_stack->addWidget(m_view);
    m_stack->addWidget(m_notice);
    m_explanation = createText<QLabel>("FeatureTree.Explanation");
    m_explanation->setTextFormat(Qt::RichText); // of ours: what is of the camera is escaped
    m_explanation->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    m_explanation->setMargin(fontMetrics().height() / 3);
    m_explanation->setMinimumHeight(fontMetrics().lineSpacing() * explanationLines);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(createSearchRow());
    layout->addWidget(m_stack, 1);
    layout->addWidget(createProblemRow());
    layout->addWidget(m_explanation);
}

QWidget *CFeaturePanel::createSearchRow()
{
    m_search = new QLineEdit;
    m_search->setObjectName(QStringLiteral("FeatureTree.Search"));
    m_search->setClearButtonEnabled(true);
    m_level = new QComboBox;
    m_level->setObjectName(QStringLiteral("FeatureTree.Level"));
    m_level->setSizeAdjustPolicy(QComboBox::AdjustToContents); // of every language
    for (const Visibility level : {VisibilityBeginner, VisibilityExpert, VisibilityGuru}) {
        m_level->addItem(QString(), int(level));
    }
    auto *row = new QWidget;
    auto *layout = new QHBoxLayout(row);
    layout->addWidget(m_search, 1);
    layout->addWidget(m_level);
    return row;
}

QWidget *CFeaturePanel::createProblemRow()
{
    auto *icon = new CPlainLabel;
    const int size = style()->pixelMetric(QStyle::PM_SmallIconSize);
    icon->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(size, size));
    m_problem = createText<CPlainLabel>("FeatureTree.Problem");
    m_dismiss = new QToolButton;
    m_dismiss->setAutoRaise(true);
    m_dismiss->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
    m_problemRow = new QWidget;
    auto *layout = new QHBoxLayout(m_problemRow);
    layout->addWidget(icon);
    layout->addWidget(m_problem, 1);
    layout->addWidget(m_dismiss);
    return m_problemRow;
}

void CFeaturePanel::connectWidgets()
{
    connect(m_search, &QLineEdit::textChanged, this, &CFeaturePanel::search);
    connect(m_level, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &CFeaturePanel::setLevel);
    connect(m_dismiss, &QToolButton::clicked, &m_controller, &CFeatureController::dismissProblem);
    connect(m_view, &CFeatureView::sightChanged, this,
            [this] { m_controller.keepUpToDate(m_view->featuresInSight()); });
    connect(m_view, &CFeatureView::cannotBeChanged, &m_controller,
            &CFeatureController::explainRefusal);
    connect(m_view, &CFeatureView::notANumber, &m_controller, &CFeatureController::refuseNumber);
    connect(m_view, &CFeatureView::editingEnded, &m_controller,
            &CFeatureController::dismissProblem);
    connect(m_view, &CFeatureView::picked, this, [this](int feature) {
        explain(feature);
        m_controller.select(feature);
    });
    connect(&m_controller, &CFeatureController::selected, this, &CFeaturePanel::onSelected);
    connect(&m_controller, &CFeatureController::noticeChanged, this, &CFeaturePanel::showNotice);
    connect(&m_controller, &CFeatureController::problemChanged, this, &CFeaturePanel::showProblem);
    connect(&m_controller.model(), &CFeatureModel::dataChanged, this,
            [this](const QModelIndex &index) {
                if (index.data(CFeatureModel::FeatureRole).toInt() == m_explained) {
                    explain(m_explained);
                }
            });
    connect(&m_controller.model(), &CFeatureModel::modelReset, this, [this] {
        explain(-1);
        if (m_filter.rowCount() > 0) {
            m_view->fitNames();
        }
    });

    m_escape = new QShortcut(QKeySequence::Cancel, this);
    m_escape->setContext(Qt::WidgetWithChildrenShortcut);
    connect(m_escape, &QShortcut::activated, &m_controller, &CFeatureController::dismissProblem);
    auto *find = new QShortcut(QKeySequence::Find, this);
    find->setContext(Qt::WidgetWithChildrenShortcut);
    connect(find, &QShortcut::activated, m_search, QOverload<>::of(&QWidget::setFocus));
}

void CFeaturePanel::setTexts()
{
    setWindowTitle(tr("Features"));
    m_search->setPlaceholderText(tr("Search"));
    m_search->setAccessibleName(tr("Search features"));
    m_search->setToolTip(tr("Words in the name of a feature"));
    m_level->setItemText(0, tr("Beginner"));
    m_level->setItemText(1, tr("Expert"));
    m_level->setItemText(2, tr("Guru"));
    m_level->setAccessibleName(tr("Level of the features"));
    m_level->setToolTip(tr("Which features are shown"));
    m_view->setAccessibleName(tr("Features"));
    m_controller.model().retranslate();
    m_explanation->setAccessibleName(tr("Explanation of the feature"));
    m_dismiss->setToolTip(tr("Dismiss"));
    m_dismiss->setAccessibleName(tr("Dismiss the message"));
    showNotice();
    explain(m_explained);
}

void CFeaturePanel::restoreLevel()
{
    const int level = QSettings().value(QLatin1String(levelKey), int(VisibilityBeginner)).toInt();
    m_level->setCurrentIndex(qBound(int(VisibilityBeginner), level, int(VisibilityGuru)));
    m_filter.setLevel(Visibility(m_level->currentIndex()));
}

void CFeaturePanel::setLevel(int level)
{
    QSettings().setValue(QLatin1String(levelKey), level);
    m_view->quietly([this, level] { m_filter.setLevel(Visibility(level)); });
    m_view->setEverythingOpen(!m_search->text().trimmed().isEmpty());
    showNotice();
}

void CFeaturePanel::search(const QString &text)
{
    m_view->quietly([&] { m_filter.setWords(text); });
    m_view->setEverythingOpen(!text.trimmed().isEmpty());
    m_view->scrollTo(m_view->currentIndex());
    showNotice();
}

void CFeaturePanel::showNotice()
{
    QString notice = m_controller.notice();
    if (notice.isEmpty() && m_filter.rowCount() == 0) {
        notice = m_search->text().trimmed().isEmpty()
                     ? tr("There is no feature at this level.")
                     : tr("No feature at this level has \"%1\" in its name.")
                           .arg(m_search->text().simplified());
    }
    m_notice->setText(notice);
    m_stack->setCurrentWidget(notice.isEmpty() ? static_cast<QWidget *>(m_view) : m_notice);
    m_explanation->setVisible(notice.isEmpty());
}

void CFeaturePanel::showProblem()
{
    m_problem->setText(m_controller.problem());
    m_problemRow->setVisible(!m_controller.problem().isEmpty());
    m_escape->setEnabled(!m_controller.problem().isEmpty());
    layout()->activate(); // the view has its new height now
    m_view->scrollTo(m_filter.mapFromSource(
        m_controller.model().indexOf(m_controller.problemFeature(), CFeatureModel::NameColumn)));
}

void CFeaturePanel::explain(int feature)
{
    m_explained = feature;
    const CFeatureModel &model = m_controller.model();
    m_explanation->setText(
        feature < 0 ? QString()
                    : CFeatureTexts::toolTip(model.description(feature), model.state(feature)));
}

void CFeaturePanel::onSelected(int feature)
{
    m_view->showRow(
        m_filter.mapFromSource(m_controller.model().indexOf(feature, CFeatureModel::NameColumn)));
    explain(feature);
}

} // namespace FeatureTree
