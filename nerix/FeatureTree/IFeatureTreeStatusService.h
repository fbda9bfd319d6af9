// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <NerixCoreExport.h>
#include <ParameterCollection/IParameter.h>

#include <QObject>
#include <QSharedPointer>

namespace FeatureTree {

/// The feature that the user has picked in a tree of features. The viewer may show several trees,
/// each with a service of its own.
class NERIXCORE_EXPORT IFeatureTreeStatusService : public QObject
{
    Q_OBJECT

public:
    ~IFeatureTreeStatusService() override;

Q_SIGNALS:
    /// Another feature is current. Never null. Emitted in the GUI thread.
    void currentChanged(QSharedPointer<ParameterCollection::IParameter> ptrParameter);

protected:
    explicit IFeatureTreeStatusService(QObject *parent = nullptr);
};

} // namespace FeatureTree
