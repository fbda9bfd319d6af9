// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "FeatureTree.h"
#include "plugins/camerapool/CDeviceAccess.h"

namespace ParameterCollectionPool {

/// The right to use one feature of a device, for the life of this object, which is short. No signal
/// may be emitted while it lives. See `callFeature` and `CDevice` for the two ways to get one.
class CNodeAccess
{
public:
    /// \a feature and \a access outlive this object.
    CNodeAccess(const CFeature &feature, const CameraPool::CDeviceAccess &access);

    Q_DISABLE_COPY_MOVE(CNodeAccess)

    const CFeature &feature() const
    {
        return m_feature;
    }
    ArvGcFeatureNode *node() const
    {
        return m_node;
    }

    /// Calls \a function, which takes a place for an error, and gives its result.
    /// @throws ParameterCollection::CParameterException with the name of the feature on an error.
    template <class Function>
    auto call(Function function) const
    {
        CameraPool::CGError error;
        const auto result = function(error.out());
        m_access.check(error, m_feature.fullName());
        return result;
    }

    /// As `call`, for a limit: a limit that the description does not name is no error, and Aravis
    /// then gives that of the type.
    template <class Function>
    auto callForLimit(Function function) const
    {
        CameraPool::CGError error;
        const auto result = function(error.out());
        if (!error.is(ARV_GC_ERROR, ARV_GC_ERROR_PROPERTY_NOT_DEFINED)) {
            m_access.check(error, m_feature.fullName());
        }
        return result;
    }

    /// As `call`, for a function without a result.
    template <class Function>
    void run(Function function) const
    {
        CameraPool::CGError error;
        function(error.out());
        m_access.check(error, m_feature.fullName());
    }

    /// Refuses something that was asked of the feature: "@CameraDevice/Width: " and \a reason.
    [[noreturn]] void refuse(const QString &reason) const;

    /// Refuses to read a value that has no text which could be set again: \a problem, which names
    /// the value, and what helps: \a remedy, or, if nobody can set the feature, to wait for another
    /// one.
    [[noreturn]] void refuseValue(const QString &problem, const QString &remedy) const;

    /// This object, for reading the value.
    /// @throws ParameterCollection::CParameterException if the device does not offer the feature.
    const CNodeAccess &offered() const;

    /// False if the device does not offer the feature now.
    bool isOffered() const;
    bool isLocked() const;

private:
    const CFeature &m_feature;
    const CameraPool::CDeviceAccess &m_access;
    ArvGcFeatureNode *const m_node;
};

/// Does \a work, which takes a `const CNodeAccess &`, in the device's thread; see
/// `CDevice::call` for what it may use and what is thrown.
template <class Work>
auto callFeature(const CFeature &feature, Work work)
{
    return feature.device->call([feature, work](const CameraPool::CDeviceAccess &access) {
        return work(CNodeAccess(feature, access));
    });
}

} // namespace ParameterCollectionPool
