// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/featurefiles/CFeatureFileEntries.h"

#include "plugins/featurefiles/CLoadReportDialog.h"
#include "windows/CPlainLabel.h"
#include "windows/MenuEntry.h"
#include "windows/MessageBox.h"

#include <Plugin/AppCore/IMenuService.h>

#include <QAction>
#include <QDir>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QProgressDialog>
#include <QRegularExpression>
#include <QSettings>

namespace FeatureFiles {

using FeatureTree::CShownDevice;

namespace {

Q_LOGGING_CATEGORY(log, "nerix.featurefiles")

constexpr const char *folderKey = "FeatureFiles/Folder";

// The suffix of the files; it is added when the user gives none.
constexpr const char *suffix = "features";

// In characters: a file system that takes names of 255 bytes takes this in any script.
constexpr int longestProposal = 60;

// The name of the camera as far as a file may be called so.
QString proposedName(const QString &cameraName)
{
    static const QRegularExpression unwanted(QStringLiteral("[^\\w.-]+"));
    return QString(cameraName.left(longestProposal)).replace(unwanted, QStringLiteral("_"))
           + QLatin1Char('.') + QLatin1String(suffix);
}

} // namespace

CFeatureFileEntries::CFeatureFileEntries(Plugin::AppCore::IMenuService &menus,
                                         const Services &services)
    : m_services(services)
    , m_device(services.selection, services.control, services.status)
    , m_task(services.parameters)
{
    createActions(menus);
    connectTask();
    connect(&m_device, &CShownDevice::changed, this, &CFeatureFileEntries::enable);
    enable();
}

CFeatureFileEntries::~CFeatureFileEntries()
{
    delete m_progress;
}

void CFeatureFileEntries::createActions(Plugin::AppCore::IMenuService &menus)
{
    constexpr const char *menu = "NerixViewer.Menu.File";
    constexpr const char *group = "NerixViewer.Group.File.Features";
    m_save = Windows::addMenuEntry(
        menus, {"FeatureFiles.Action.Save", menu, group}, [] { return tr("Save &Features..."); },
        this);
    m_load = Windows::addMenuEntry(
        menus, {"FeatureFiles.Action.Load", menu, group}, [] { return tr("&Load Features..."); },
        this);
    connect(m_save, &QAction::triggered, this, &CFeatureFileEntries::chooseFileToSave);
    connect(m_load, &QAction::triggered, this, &CFeatureFileEntries::chooseFileToLoad);
}

void CFeatureFileEntries::connectTask()
{
    connect(&m_task, &CFeatureFileTask::runningChanged, this, [this](bool isRunning) {
        enable();
        if (!isRunning) {
            delete m_progress;
        }
    });
    connect(&m_task, &CFeatureFileTask::progressed, this, [this](int done, int total) {
        if (m_progress) {
            m_progress->setMaximum(total);
            m_progress->setValue(done);
        }
    });
    connect(&m_task, &CFeatureFileTask::saved, this, [this] {
        tell(Severity::Information,
             tr("The features of %1 are saved in %2").arg(m_cameraName, m_fileName));
    });
    connect(&m_task, &CFeatureFileTask::loaded, this, &CFeatureFileEntries::onLoaded);
    connect(&m_task, &CFeatureFileTask::failed, this, [this](const QString &reason) {
        tell(Severity::Error, reason);
        Windows::newMessageBox(QMessageBox::Critical, tr("Features"), reason, QMessageBox::Close,
                               m_services.window)
            ->open();
    });
}

void CFeatureFileEntries::enable()
{
    const bool isPossible =
        m_device.condition() == CShownDevice::Condition::Open && !m_task.isRunning();
    m_save->setEnabled(isPossible);
    m_load->setEnabled(isPossible);
}

void CFeatureFileEntries::chooseFileToSave()
{
    if (QFileDialog *dialog = createFileDialog(QFileDialog::AcceptSave)) {
        dialog->setWindowTitle(tr("Save Features"));
        dialog->setFileMode(QFileDialog::AnyFile);
        dialog->selectFile(proposedName(m_device.camera()->displayName()));
        connect(dialog, &QFileDialog::fileSelected, this,
                [this](const QString &fileName) { begin(fileName, true); });
        dialog->open();
    }
}

void CFeatureFileEntries::chooseFileToLoad()
{
    if (QFileDialog *dialog = createFileDialog(QFileDialog::AcceptOpen)) {
        dialog->setWindowTitle(tr("Load Features"));
        dialog->setFileMode(QFileDialog::ExistingFile);
        connect(dialog, &QFileDialog::fileSelected, this,
                [this](const QString &fileName) { begin(fileName, false); });
        dialog->open();
    }
}

QFileDialog *CFeatureFileEntries::createFileDialog(QFileDialog::AcceptMode mode)
{
    if (!m_services.hasWindows) {
        qCWarning(log) << "a file is chosen in a window, and there is none: use features.save or "
                          "features.load in the script";
        return nullptr;
    }
    auto *dialog = new QFileDialog(m_services.window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(mode);
    dialog->setDefaultSuffix(QLatin1String(suffix));
    dialog->setNameFilters({tr("Features (*.%1)").arg(QLatin1String(suffix)), tr("All files (*)")});
    const QString folder = QSettings().value(QLatin1String(folderKey)).toString();
    dialog->setDirectory(QFileInfo(folder).isDir() ? folder : QDir::homePath());
    return dialog;
}

// The camera may have been closed while the dialog was open; the task then says so.
void CFeatureFileEntries::begin(const QString &fileName, bool isSaving)
{
    const auto camera = m_device.camera();
    if (!camera || m_task.isRunning()) {
        return;
    }
    QSettings().setValue(QLatin1String(folderKey), QFileInfo(fileName).absolutePath());
    m_fileName = QDir::toNativeSeparators(fileName);
    m_cameraName = camera->displayName();
    if (isSaving) {
        m_task.save(camera, fileName);
        showProgress(tr("Saving the features of %1").arg(m_cameraName));
    } else {
        m_task.load(camera, fileName);
        showProgress(tr("Loading the features of %1").arg(m_cameraName));
    }
}

void CFeatureFileEntries::showProgress(const QString &text)
{
    m_progress = new QProgressDialog(QString(), tr("Cancel"), 0, 0, m_services.window);
    m_progress->setLabel(new Windows::CPlainLabel(text));
    m_progress->setWindowTitle(tr("Features"));
    m_progress->setWindowModality(Qt::WindowModal);
    m_progress->setAutoClose(false);
    m_progress->setAutoReset(false);
    connect(m_progress.data(), &QProgressDialog::canceled, &m_task, &CFeatureFileTask::cancel);
}

void CFeatureFileEntries::onLoaded(const CLoadReport &report)
{
    const bool isWhole = report.refused.isEmpty() && !report.isCancelled;
    tell(isWhole ? Severity::Information : Severity::Warning,
         tr("%1, features from %2: %3").arg(m_cameraName, m_fileName, report.summary()));
    // A line of its own, which a long path does not push out of sight.
    if (!report.leftAlone.isEmpty()) {
        tell(Severity::Warning, m_cameraName + QStringLiteral(", ") + report.leftAloneHint());
    }
    if (!report.ofConnection.isEmpty()) {
        tell(Severity::Information, m_cameraName + QStringLiteral(", ") + report.connectionHint());
    }
    if (!report.refused.isEmpty()) {
        auto *dialog = new CLoadReportDialog(m_cameraName, report, m_services.window);
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        dialog->open();
    }
}

void CFeatureFileEntries::tell(Severity severity, const QString &text)
{
    if (m_services.messages) {
        m_services.messages->add(severity, text);
    }
}

} // namespace FeatureFiles
