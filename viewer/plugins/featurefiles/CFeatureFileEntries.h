// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "plugins/featurefiles/CFeatureFileTask.h"
#include "plugins/featuretree/CShownDevice.h"
#include "plugins/nerixviewer/IMessageService.h"

#include <QFileDialog>
#include <QObject>
#include <QPointer>
#include <QSharedPointer>

class QAction;
class QProgressDialog;

namespace Plugin {
namespace AppCore {
class IMenuService;
}
} // namespace Plugin

namespace FeatureFiles {

/// "Save Features..." and "Load Features..." of the File menu, with their dialogs. They can be
/// chosen while the selected camera is open. GUI thread.
class CFeatureFileEntries : public QObject
{
    Q_OBJECT

public:
    struct Services
    {
        QSharedPointer<CameraSelector::IDeviceSelectionService> selection;
        QSharedPointer<CameraPool::ICameraControlService> control;
        QSharedPointer<CameraPool::ICameraStatusService> status;
        QSharedPointer<ParameterCollectionPool::IParameterService> parameters;
        QSharedPointer<Plugin::NerixViewer::IMessageService> messages; ///< null: nobody is told
        bool hasWindows = false;
        QPointer<QWidget> window; ///< the parent of the dialogs
    };

    CFeatureFileEntries(Plugin::AppCore::IMenuService &menus, const Services &services);
    ~CFeatureFileEntries() override;

private:
    using Severity = Plugin::NerixViewer::IMessageService::Severity;

    void createActions(Plugin::AppCore::IMenuService &menus);
    void connectTask();
    void enable();
    void chooseFileToSave();
    void chooseFileToLoad();
    QFileDialog *createFileDialog(QFileDialog::AcceptMode mode);
    void begin(const QString &fileName, bool isSaving);
    void showProgress(const QString &text);
    void onLoaded(const CLoadReport &report);
    void tell(Severity severity, const QString &text);

    const Services m_services;
    FeatureTree::CShownDevice m_device;
    CFeatureFileTask m_task;
    QAction *m_save = nullptr;
    QAction *m_load = nullptr;
    QPointer<QProgressDialog> m_progress;
    QString m_fileName;   // of the one that runs
    QString m_cameraName; // likewise
};

} // namespace FeatureFiles
