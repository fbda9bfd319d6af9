// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "CFeatureRig.h"

#include <QTest>

CFeatureRig::CFeatureRig()
    : deviceSelection(QSharedPointer<CameraSelector::CDeviceSelectionService>::create())
    , control(QSharedPointer<CFakeCameraControl>::create())
    , status(QSharedPointer<CFakeCameraStatus>::create())
    , parameters(QSharedPointer<FakeParameterService>::create())
    , featureSelection(QSharedPointer<FeatureTree::CFeatureSelectionService>::create())
    , messages(QSharedPointer<CKeptMessages>::create())
    , collection(QSharedPointer<FakeParameterCollection>::create())
    , camera(control->plugIn("A-1"))
{
    parameters->collections.insert(camera.data(), collection);
}

QSharedPointer<CLiveText> CFeatureRig::addCategory(const char *name, const char *displayName)
{
    const auto category = add<CLiveText>(name, ParameterCollection::InterfaceCategory, "");
    category->change([&](CLiveState &state) {
        state.category = QString();
        state.displayName = QString::fromUtf8(displayName);
        state.mode = ParameterCollection::AccessReadOnly;
        state.isUserSettable = false;
    });
    return category;
}

FeatureTree::CFeatureServices CFeatureRig::services() const
{
    return {deviceSelection, control, status, parameters, featureSelection, messages};
}

bool CFeatureRig::openCamera()
{
    control->open(camera);
    const bool isOpen =
        QTest::qWaitFor([this] { return control->state(camera) == CFakeCameraControl::Open; });
    Q_EMIT status->deviceOpened(camera);
    return isOpen;
}

bool CFeatureRig::closeCamera()
{
    Q_EMIT status->deviceClosing(camera);
    control->close(camera);
    return QTest::qWaitFor([this] { return control->state(camera) == CFakeCameraControl::Free; });
}

void CFeatureRig::unplugCamera()
{
    Q_EMIT status->deviceClosing(camera);
    control->unplug(camera);
    Q_EMIT status->deviceDisconnected(camera);
}
