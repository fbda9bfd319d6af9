// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "plugins/featuretree/CFeatureDescription.h"
#include "plugins/featuretree/CFeatureState.h"

#include <QAbstractItemModel>
#include <QHash>
#include <QVector>

namespace FeatureTree {

/// The features of one device as a tree of categories, with their values. It never asks the device:
/// it shows what it is told, and tells what the user wants. GUI thread.
///
/// A feature is meant by its place in the list that was given to `setFeatures`.
class CFeatureModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum Column { NameColumn, ValueColumn, ColumnCount };
    enum Role {
        FeatureRole = Qt::UserRole, ///< the place of the feature; -1 for a category of our own
        NameRole,                   ///< the GenICam name
        FullNameRole,
        TypeRole,       ///< `ParameterCollection::InterfaceType`
        VisibilityRole, ///< `ParameterCollection::Visibility`
        StateRole       ///< `CFeatureState`
    };

    explicit CFeatureModel(QObject *parent = nullptr);
    ~CFeatureModel() override;

    /// Shows \a features, in tree order with the categories before what is in them. Those of
    /// another tree than the camera's get a category of their own.
    void setFeatures(const QVector<CFeatureDescription> &features);

    /// Shows what the feature was found to be.
    void setState(int feature, const CFeatureState &state);

    /// Shows \a text as the value until `setState` after `confirm`, or until `refuse`.
    void expect(int feature, const QString &text);
    void confirm(int feature);
    void refuse(int feature);

    /// Shows for a command whether it was just executed.
    void setExecuted(int feature, bool isExecuted);

    /// Shows its words in the language of the moment.
    void retranslate();

    /// The place of the feature; -1 if there is none with this name.
    int featureNamed(const QString &fullName) const;
    const CFeatureDescription &description(int feature) const;
    const CFeatureState &state(int feature) const;
    QModelIndex indexOf(int feature, Column column) const;

    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    QModelIndex parent(const QModelIndex &child) const override;
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    /// Changes nothing, but emits `changeWanted` if the value is another than that which is shown;
    /// of a command always.
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;

Q_SIGNALS:
    void changeWanted(int feature, const QString &text);

private:
    struct Node
    {
        int feature; // -1 for a category of our own
        QString treeName;
        int parent;
        int row;
        QVector<int> children;
    };
    struct Value
    {
        CFeatureState state;
        QString expected; // null: nothing is expected
        bool isConfirmed = false;
        bool isExecuted = false; // just now
    };

    int addNode(int feature, const QString &treeName, int parent);
    int categoryNode(const CFeatureDescription &feature);
    const Node &nodeOf(const QModelIndex &index) const;
    CFeatureState shownState(int feature) const;
    bool canBeSet(int feature) const;
    bool isGrey(int feature, int column) const;
    QVariant nameData(const Node &node, int role) const;
    QVariant valueData(int feature, int role) const;
    void changed(int feature);

    QVector<CFeatureDescription> m_features;
    QVector<Value> m_values;      // by feature
    QVector<Node> m_nodes;        // the first one is the root
    QVector<int> m_nodeOfFeature; // by feature
    QHash<QString, int> m_named;  // nodes by full name
};

} // namespace FeatureTree
