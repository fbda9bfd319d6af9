// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/featuretree/CFeatureModel.h"

#include "plugins/featuretree/CFeatureTexts.h"
#include "plugins/featuretree/LockIcon.h"
#include "plugins/featuretree/MutedText.h"
#include "windows/ShownText.h"

#include <QFont>
#include <QGuiApplication>
#include <QPalette>

namespace FeatureTree {

using namespace ParameterCollection;

namespace {

const QString &cameraTree()
{
    static const QString name = QStringLiteral("@CameraDevice");
    return name;
}

bool isOn(const CFeatureState &state)
{
    return state.text == QLatin1String("true");
}

} // namespace

CFeatureModel::CFeatureModel(QObject *parent)
    : QAbstractItemModel(parent)
{
    setFeatures({});
}

CFeatureModel::~CFeatureModel() = default;

void CFeatureModel::setFeatures(const QVector<CFeatureDescription> &features)
{
    beginResetModel();
    m_features = features;
    m_values.clear();
    m_values.resize(features.size());
    m_nodes = {Node{-1, QString(), -1, 0, {}}};
    m_nodeOfFeature.clear();
    m_named.clear();
    for (int i = 0; i < features.size(); ++i) {
        m_nodeOfFeature.append(addNode(i, QString(), categoryNode(features.at(i))));
        m_named.insert(features.at(i).fullName, m_nodeOfFeature.last());
    }
    endResetModel();
}

int CFeatureModel::addNode(int feature, const QString &treeName, int parent)
{
    const int node = m_nodes.size();
    m_nodes.append(Node{feature, treeName, parent, m_nodes.at(parent).children.size(), {}});
    m_nodes[parent].children.append(node);
    return node;
}

int CFeatureModel::categoryNode(const CFeatureDescription &feature)
{
    const QString tree = feature.fullName.section(QLatin1Char('/'), 0, 0);
    if (!feature.category.isEmpty() || tree == cameraTree()) {
        return m_named.value(feature.category, 0);
    }
    if (!m_named.contains(tree)) {
        m_named.insert(tree, addNode(-1, tree.mid(1), 0));
    }
    return m_named.value(tree);
}

void CFeatureModel::setState(int feature, const CFeatureState &state)
{
    Value &value = m_values[feature];
    if (value.state == state && !value.isConfirmed) {
        return;
    }
    value.state = state;
    if (value.isConfirmed) {
        value.expected.clear();
        value.isConfirmed = false;
    }
    changed(feature);
}

void CFeatureModel::expect(int feature, const QString &text)
{
    m_values[feature].expected = text.isNull() ? QStringLiteral("") : text;
    m_values[feature].isConfirmed = false;
    changed(feature);
}

void CFeatureModel::confirm(int feature)
{
    m_values[feature].isConfirmed = true;
}

void CFeatureModel::refuse(int feature)
{
    m_values[feature].expected.clear();
    changed(feature);
}

void CFeatureModel::setExecuted(int feature, bool isExecuted)
{
    m_values[feature].isExecuted = isExecuted;
    changed(feature);
}

void CFeatureModel::changed(int feature)
{
    Q_EMIT dataChanged(indexOf(feature, NameColumn), indexOf(feature, ValueColumn));
}

void CFeatureModel::retranslate()
{
    Q_EMIT headerDataChanged(Qt::Horizontal, NameColumn, ValueColumn);
    for (int i = 0; i < m_features.size(); ++i) {
        changed(i);
    }
}

int CFeatureModel::featureNamed(const QString &fullName) const
{
    const int node = m_named.value(fullName, -1);
    return node < 0 ? -1 : m_nodes.at(node).feature;
}

const CFeatureDescription &CFeatureModel::description(int feature) const
{
    return m_features.at(feature);
}

const CFeatureState &CFeatureModel::state(int feature) const
{
    return m_values.at(feature).state;
}

QModelIndex CFeatureModel::indexOf(int feature, Column column) const
{
    const int node = m_nodeOfFeature.value(feature, -1);
    return node < 0 ? QModelIndex() : createIndex(m_nodes.at(node).row, column, quintptr(node));
}

const CFeatureModel::Node &CFeatureModel::nodeOf(const QModelIndex &index) const
{
    return m_nodes.at(index.isValid() ? int(index.internalId()) : 0);
}

QModelIndex CFeatureModel::index(int row, int column, const QModelIndex &parent) const
{
    if (!hasIndex(row, column, parent)) {
        return {};
    }
    return createIndex(row, column, quintptr(nodeOf(parent).children.at(row)));
}

QModelIndex CFeatureModel::parent(const QModelIndex &child) const
{
    const int parent = nodeOf(child).parent;
    return parent <= 0 ? QModelIndex()
                       : createIndex(m_nodes.at(parent).row, NameColumn, quintptr(parent));
}

int CFeatureModel::rowCount(const QModelIndex &parent) const
{
    return parent.column() > 0 ? 0 : nodeOf(parent).children.size();
}

int CFeatureModel::columnCount(const QModelIndex &) const
{
    return ColumnCount;
}

CFeatureState CFeatureModel::shownState(int feature) const
{
    const Value &value = m_values.at(feature);
    CFeatureState state = value.state;
    if (!value.expected.isNull() && m_features.at(feature).type != InterfaceCommand) {
        state.text = value.expected;
        state.failure.clear();
    }
    return state;
}

bool CFeatureModel::canBeSet(int feature) const
{
    // A register is too much for a line; its bytes are only shown.
    const InterfaceType type = m_features.at(feature).type;
    return m_values.at(feature).state.canBeSet() && type != InterfaceCategory
           && type != InterfaceRegister;
}

// What is not there is grey as a whole; of what is locked or can only be read, the value is.
bool CFeatureModel::isGrey(int feature, int column) const
{
    const CFeatureState &state = m_values.at(feature).state;
    if (!state.isKnown || m_features.at(feature).isCategory()) {
        return false;
    }
    return !state.isOffered()
           || (column == ValueColumn && (state.isLocked() || state.isReadOnly()));
}

Qt::ItemFlags CFeatureModel::flags(const QModelIndex &index) const
{
    if (!index.isValid()) {
        return Qt::NoItemFlags;
    }
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    const int feature = nodeOf(index).feature;
    if (index.column() != ValueColumn || feature < 0 || !canBeSet(feature)) {
        return flags;
    }
    switch (m_features.at(feature).type) {
    case InterfaceBoolean:
        return flags | Qt::ItemIsUserCheckable;
    case InterfaceCommand:
        return flags;
    default:
        return flags | Qt::ItemIsEditable;
    }
}

QVariant CFeatureModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    const Node &node = nodeOf(index);
    if (role == FeatureRole) {
        return node.feature;
    }
    if (node.feature < 0) {
        return index.column() == NameColumn ? nameData(node, role) : QVariant();
    }
    switch (role) {
    case NameRole:
        return m_features.at(node.feature).name;
    case FullNameRole:
        return m_features.at(node.feature).fullName;
    case TypeRole:
        return m_features.at(node.feature).type;
    case VisibilityRole:
        return m_features.at(node.feature).visibility;
    case StateRole:
        return QVariant::fromValue(m_values.at(node.feature).state);
    case Qt::ToolTipRole:
        return CFeatureTexts::toolTip(m_features.at(node.feature), m_values.at(node.feature).state);
    case Qt::ForegroundRole:
        return isGrey(node.feature, index.column())
                   ? QVariant(mutedText(QGuiApplication::palette()))
                   : QVariant();
    default:
        return index.column() == NameColumn ? nameData(node, role) : valueData(node.feature, role);
    }
}

QVariant CFeatureModel::nameData(const Node &node, int role) const
{
    if (role == FullNameRole && node.feature < 0) {
        return QLatin1Char('@') + node.treeName;
    }
    if (role == Qt::DisplayRole) {
        return Windows::shownLine(node.feature < 0 ? node.treeName
                                                   : m_features.at(node.feature).displayName);
    }
    const bool isCategory = node.feature < 0 || m_features.at(node.feature).isCategory();
    if (role == Qt::FontRole && isCategory) {
        QFont font;
        font.setBold(true);
        return font;
    }
    return {};
}

QVariant CFeatureModel::valueData(int feature, int role) const
{
    const CFeatureDescription &description = m_features.at(feature);
    const CFeatureState state = shownState(feature);
    if (m_values.at(feature).isExecuted
        && (role == Qt::DisplayRole || role == Qt::AccessibleTextRole)) {
        return CFeatureTexts::executed();
    }
    switch (role) {
    case Qt::DisplayRole:
        return CFeatureTexts::value(description, state);
    case Qt::EditRole:
        return state.text;
    case Qt::AccessibleTextRole:
        return CFeatureTexts::spoken(description, state);
    case Qt::DecorationRole:
        return state.isLocked() ? QVariant(lockIcon()) : QVariant();
    case Qt::CheckStateRole:
        return description.type == InterfaceBoolean && !state.text.isNull()
                   ? QVariant(isOn(state) ? Qt::Checked : Qt::Unchecked)
                   : QVariant();
    case Qt::FontRole:
        if (!m_values.at(feature).expected.isNull()) {
            QFont font;
            font.setItalic(true);
            return font;
        }
        return {};
    default:
        return {};
    }
}

QVariant CFeatureModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    return section == NameColumn ? tr("Feature") : tr("Value");
}

bool CFeatureModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    const int feature = index.isValid() ? nodeOf(index).feature : -1;
    if (feature < 0 || index.column() != ValueColumn || !canBeSet(feature)) {
        return false;
    }
    const bool isCheck = role == Qt::CheckStateRole;
    const QString text = !isCheck                       ? value.toString()
                         : value.toInt() == Qt::Checked ? QStringLiteral("true")
                                                        : QStringLiteral("false");
    const bool isCommand = m_features.at(feature).type == InterfaceCommand;
    const CFeatureState shown = shownState(feature);
    if (!isCommand && !shown.text.isNull() && text == shown.text) {
        return true;
    }
    Q_EMIT changeWanted(feature, text);
    return true;
}

} // namespace FeatureTree
