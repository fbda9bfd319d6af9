// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "plugins/cameraselector/CDeviceSelectionService.h"
#include "plugins/featuretree/CFeatureController.h"
#include "plugins/featuretree/CFeatureSelectionService.h"
#include "plugins/nerixviewer/IMessageService.h"
#include "support/CFakeCameraControl.h"
#include "support/CFakeCameraStatus.h"
#include "support/CLiveParameter.h"

#include <FakeParameterCollection.h>
#include <FakeServices.h>

#include <QSharedPointer>
#include <QStringList>

// Keeps what is told to the user.
class CKeptMessages : public Plugin::NerixViewer::IMessageService
{
public:
    void add(Severity, const QString &text) override
    {
        texts.append(text);
    }

    QStringList texts;
};

// The services behind a feature panel, with one camera whose features the test makes.
class CFeatureRig
{
public:
    CFeatureRig();

    // The next feature of the camera, of the kind \a Live, in the category "@CameraDevice/" and
    // \a category.
    template <class Live>
    QSharedPointer<Live> add(const char *name, ParameterCollection::InterfaceType type,
                             const char *text, const char *category = "Control")
    {
        const auto parameter =
            QSharedPointer<Live>::create(QStringLiteral("@CameraDevice/") + QLatin1String(name));
        parameter->change([&](CLiveState &state) {
            state.type = type;
            state.text = QString::fromUtf8(text);
            state.category = QStringLiteral("@CameraDevice/") + QLatin1String(category);
        });
        collection->all.append(parameter);
        return parameter;
    }
    QSharedPointer<CLiveText> addCategory(const char *name, const char *displayName);

    FeatureTree::CFeatureServices services() const;

    // What the camera pool does and tells; false if it did not come to its end.
    bool openCamera();
    bool closeCamera();
    void unplugCamera();

    const QSharedPointer<CameraSelector::CDeviceSelectionService> deviceSelection;
    const QSharedPointer<CFakeCameraControl> control;
    const QSharedPointer<CFakeCameraStatus> status;
    const QSharedPointer<FakeParameterService> parameters;
    const QSharedPointer<FeatureTree::CFeatureSelectionService> featureSelection;
    const QSharedPointer<CKeptMessages> messages;
    const QSharedPointer<FakeParameterCollection> collection;
    CFakeCameraControl::CameraInfoPtr camera;
};
