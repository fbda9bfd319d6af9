// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "plugins/featurefiles/CLoadReport.h"
#include "plugins/parametercollectionpool/FeatureStream.h"

#include <ParameterCollection/IParameterCollection.h>

#include <functional>
#include <optional>

namespace FeatureFiles {

/// Sets the features of a camera to given values. It asks the device, so it is not for the GUI
/// thread. Used once, in one thread.
///
/// A value may depend on one that stands after it (an offset on a width, for example), so what is
/// refused is tried again as long as that helps. What a later value has changed again is set a
/// second time. What has its value already is not set. What belongs to one camera alone, see
/// `OwnFeatures`, is set only if the values are of this camera; what belongs to the connection, see
/// `ConnectionFeatures`, is never set.
class CFeatureLoader
{
public:
    using Line = ParameterCollectionPool::FeatureStream::Line;

    /// Told after each feature how many of how many have been tried; false ends the loading.
    using Progress = std::function<bool(int done, int total)>;

    /// \a parameters must outlive the object.
    CFeatureLoader(const ParameterCollection::IParameterCollection &parameters,
                   const QVector<Line> &lines);

    CLoadReport load(const Progress &progress);

private:
    enum class Result { Open, Set, Unchanged, ReadOnly, LeftAlone, Refused };

    struct Item
    {
        QString name;
        QString wanted;
        QSharedPointer<ParameterCollection::IParameter> parameter;
        bool isForeign = false;      // belongs to another camera alone
        bool isOfConnection = false; // belongs to no camera
        Result result = Result::Open;
        std::optional<QString> taken; // what the camera made of it, right after it was set
        QString reason;               // why it was refused
    };

    void tryAsLongAsItHelps(const Progress &progress);
    int tryOpenOnes(const Progress &progress);
    static void tryToSet(Item &item);
    static Result attempt(Item &item);
    bool reopenWhatWasChangedAgain();
    void refuseWhatIsDifferent();
    CLoadReport report() const;

    QVector<Item> m_items;
    bool m_isCancelled = false;
};

} // namespace FeatureFiles
