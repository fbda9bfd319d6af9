// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "CFeatureRig.h"
#include "CReadPipe.h"
#include "CViewerRun.h"
#include "plugins/featurefiles/CLoadReportDialog.h"
#include "plugins/featuretree/CFeatureView.h"
#include "support/CShownTexts.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QFileDialog>
#include <QLoggingCategory>
#include <QMainWindow>
#include <QMenu>
#include <QMessageBox>
#include <QTest>
#include <QToolTip>
#include <QTreeView>

using namespace ParameterCollection;

// All windows of the viewer, with a camera, files and messages whose texts are chosen by somebody
// who means no good.
class ForeignTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void testEveryWindowShowsItAsItIs_data();
    void testEveryWindowShowsItAsItIs();
    void testNoFileThatItNamesIsRead();

private:
    void start(const QString &text);
    void openCamera();
    void showProblems();
    void failToLoadAFile(const QString &name);

    QScopedPointer<CFeatureRig> m_rig;
    QScopedPointer<CViewerRun> m_run;
    QScopedPointer<FeatureFiles::CLoadReportDialog> m_report;
    QString m_text;
};

namespace {

// In every foreign text.
const QString mark = QStringLiteral("Fremd");

const QStringList everyPlace{
    "QTreeView CameraSelector.Cameras", "QTreeView CameraSelector.Cameras, tool tip",
    "FeatureTree::CFeatureView FeatureTree.View",
    "FeatureTree::CFeatureView FeatureTree.View, tool tip", "QLabel FeatureTree.Explanation",
    "ImageView::CElidedLabel name", "ImageView::CElidedLabel name, tool tip",
    "QTreeView NerixViewer.Messages", "QTreeView NerixViewer.Messages, tool tip",
    "QTreeWidget FeatureFiles.Refused", "QTreeWidget FeatureFiles.Refused, tool tip",
    "QLabel qt_msgbox_label",
    // What could not be opened, below the list, and above that of what
    // was refused.
    "Windows::CPlainLabel CameraSelector.Cameras", "Windows::CPlainLabel "};

template <class Widget>
QList<Widget *> all()
{
    QList<Widget *> found;
    const auto widgets = QApplication::allWidgets();
    for (QWidget *widget : widgets) {
        if (auto *one = qobject_cast<Widget *>(widget)) {
            found.append(one);
        }
    }
    return found;
}

QAction *actionNamed(const QString &text)
{
    const auto windows = all<QMainWindow>();
    for (QMainWindow *window : windows) {
        const auto actions = window->findChildren<QAction *>();
        for (QAction *action : actions) {
            if (QString(action->text()).remove('&').startsWith(text)) {
                return action;
            }
        }
    }
    const auto menus = all<QMenu>();
    for (QMenu *menu : menus) {
        const auto actions = menu->actions();
        for (QAction *action : actions) {
            if (QString(action->text()).remove('&').startsWith(text)) {
                return action;
            }
        }
    }
    return nullptr;
}

} // namespace

void ForeignTextTest::cleanup()
{
    m_report.reset();
    m_run->viewer().shutDown();
    m_run.reset();
}

// The services of the rig come before those of the viewer.
void ForeignTextTest::start(const QString &text)
{
    m_rig.reset(new CFeatureRig);
    m_text = text;
    m_rig->control->unplug(m_rig->camera);
    m_rig->control->plugIn("B-1", "XQZ-2000", "An ordinary camera");
    m_rig->camera =
        m_rig->control->plugIn(qPrintable("A-1 " + text), qPrintable(text), qPrintable(text));
    m_rig->parameters->collections.insert(m_rig->camera.data(), m_rig->collection);
    m_rig->addCategory("Control", qPrintable(text));
    m_rig->add<CLiveText>("Label", InterfaceString, qPrintable(text))->change([&](auto &state) {
        state.displayName = text;
        state.toolTip = text;
        state.unit = text;
    });
    m_rig->add<CLiveText>("Broken", InterfaceString, "")->change([&](auto &state) {
        state.readRefusal = text;
    });
    m_rig->add<CLiveEnumeration>("Mode", InterfaceEnumeration, qPrintable(text))
        ->change([&](auto &state) {
            state.entries = QStringList{text, "Ordinary"};
        });

    m_run.reset(new CViewerRun);
    bool isReady = false;
    connect(&m_run->viewer().plugins().registry(),
            &Core::Plugin::IPluginInitializer::initializationDone, this, [&] { isReady = true; });
    m_run->behaviour().services = {m_rig->control, m_rig->status, m_rig->parameters};
    m_run->viewer().start();
    QVERIFY(QTest::qWaitFor([&] { return isReady; }));
}

// As a user does, in the list.
void ForeignTextTest::openCamera()
{
    const auto lists = all<QTreeView>();
    QTreeView *cameras = nullptr;
    for (QTreeView *view : lists) {
        cameras = view->parentWidget()->inherits("CameraSelector::CCameraPanel") ? view : cameras;
    }
    QVERIFY(cameras);
    const auto found = cameras->model()->match(cameras->model()->index(0, 0), Qt::DisplayRole, mark,
                                               -1, Qt::MatchStartsWith);
    QVERIFY(!found.isEmpty());
    cameras->setCurrentIndex(found.constLast());
    QVERIFY(m_rig->openCamera());
    QTRY_VERIFY(!all<FeatureTree::CFeatureView>().isEmpty());
    auto *features = all<FeatureTree::CFeatureView>().constFirst();
    QTRY_VERIFY(features->model()->rowCount() > 0);
    const auto rows = [features](const char *name) {
        return features->model()->match(
            features->model()->index(0, 0), FeatureTree::CFeatureModel::FullNameRole,
            QStringLiteral("@CameraDevice/") + name, 1, Qt::MatchExactly | Qt::MatchRecursive);
    };
    QTRY_VERIFY(!rows("Label").isEmpty());
    features->expandAll();
    features->setCurrentIndex(rows("Label").constFirst());
    QTRY_VERIFY(rows("Mode").constFirst().siblingAtColumn(1).data().toString().contains(mark));
    features->edit(rows("Mode").constFirst().siblingAtColumn(1));
    QTRY_VERIFY(
        CShownTexts(mark).places().contains("FeatureTree::CChoiceEdit qt_scrollarea_viewport"));
    const QStringList faults = CShownTexts(mark).faults();
    QVERIFY2(faults.isEmpty(), qPrintable('\n' + faults.join('\n')));
}

void ForeignTextTest::showProblems()
{
    m_rig->control->failToOpen(qPrintable(m_text + ": cannot be opened"));
    m_rig->control->open(m_rig->control->cameras().constLast());
    const QLoggingCategory log("nerix.test");
    qCWarning(log).noquote() << m_text;
    failToLoadAFile(m_run->folder() + '/' + mark
                    + QString(m_text).remove(mark).remove('/').left(100) + ".features");

    FeatureFiles::CLoadReport report;
    report.refused.append({m_text, m_text});
    report.leftAlone.append(m_text);
    m_report.reset(new FeatureFiles::CLoadReportDialog(m_text, report));
    m_report->show();
}

void ForeignTextTest::failToLoadAFile(const QString &name)
{
    QAction *load = actionNamed("Load Features");
    QVERIFY(load);
    QTRY_VERIFY(load->isEnabled());
    load->trigger();
    QTRY_VERIFY(!all<QFileDialog>().isEmpty());
    auto *dialog = all<QFileDialog>().constFirst();
    Q_EMIT dialog->fileSelected(name);
    dialog->close();
    QTRY_VERIFY(!all<QMessageBox>().isEmpty());
}

void ForeignTextTest::testEveryWindowShowsItAsItIs_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("what looks like HTML") << "Fremd <img src=none.png><b>&amp;</b>";
    QTest::newRow("what looks like an entity of HTML") << "Fremd &lt;b&gt;<img>";
    QTest::newRow("control characters") << "Fremd \x1b[2J\a\r\n\t second line";
    QTest::newRow("bidirectional characters")
        << QString::fromUtf8("Fremd \u202egnp.exe\u2066\u200f\u2028");
    QTest::newRow("mnemonics") << "Fremd R&D && more";
    QTest::newRow("a hundred thousand characters")
        << QStringLiteral("Fremd ") + QString(100000, QLatin1Char('x'));
}

void ForeignTextTest::testEveryWindowShowsItAsItIs()
{
    QFETCH(QString, text);
    start(text);
    openCamera();
    showProblems();
    for (const QString &place : everyPlace) {
        QTRY_VERIFY2(CShownTexts(mark).places().contains(place), qPrintable(place));
    }

    const CShownTexts shown(mark);
    QVERIFY2(shown.faults().isEmpty(), qPrintable('\n' + shown.faults().join('\n')));
}

// Each tool tip is really shown, since only then Qt reads it.
void ForeignTextTest::testNoFileThatItNamesIsRead()
{
    const CReadPipe pipe;
    start(QStringLiteral("Fremd <img src=\"%1\">").arg(pipe.path()));
    openCamera();
    showProblems();
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        window->grab();
    }
    const QStringList toolTips = CShownTexts(mark).toolTips();
    for (const QString &text : toolTips) {
        QToolTip::showText(QPoint(), text);
    }
    QVERIFY(!pipe.wasRead());
}

QTEST_MAIN(ForeignTextTest)

#include "ForeignTextTest.moc"
