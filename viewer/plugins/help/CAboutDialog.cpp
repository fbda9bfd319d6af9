// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/help/CAboutDialog.h"

#include "windows/CPlainLabel.h"

#include <CHelpHelper.h>

#include <arv.h>

#include <QApplication>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QSysInfo>
#include <QVBoxLayout>

namespace Plugin {
namespace Help {

namespace {

constexpr int headingPoints = 6;
constexpr int margin = 24;
constexpr int leastWidth = 460;

QString aravisVersion()
{
    return QStringLiteral("%1.%2.%3")
        .arg(arv_get_major_version())
        .arg(arv_get_minor_version())
        .arg(arv_get_micro_version());
}

QString glibVersion()
{
    return QStringLiteral("%1.%2.%3")
        .arg(glib_major_version)
        .arg(glib_minor_version)
        .arg(glib_micro_version);
}

Windows::CPlainLabel *makeHeading(QWidget *parent)
{
    auto *heading = new Windows::CPlainLabel(QStringLiteral("Nerix Viewer " NERIX_VERSION), parent);
    QFont font = heading->font();
    font.setPointSize(font.pointSize() + headingPoints);
    font.setBold(true);
    heading->setFont(font);
    return heading;
}

Windows::CPlainLabel *makeText(const QString &text, QWidget *parent)
{
    auto *label = new Windows::CPlainLabel(text, parent);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    return label;
}

} // namespace

CAboutDialog::CAboutDialog(QWidget *parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("aboutDialog"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setWindowTitle(tr("About Nerix Viewer"));

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *copy = buttons->addButton(tr("&Copy Versions"), QDialogButtonBox::ActionRole);
    connect(copy, &QPushButton::clicked, this,
            [] { QApplication::clipboard()->setText(versions()); });
    auto *licences = buttons->addButton(tr("&Licences"), QDialogButtonBox::ActionRole);
    connect(licences, &QPushButton::clicked, this,
            [] { CHelpHelper::showHelp(CHelpHelper::HelpLicenses); });

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(margin / 2);
    setMinimumWidth(leastWidth);
    layout->addWidget(makeHeading(this));
    layout->addWidget(
        makeText(tr("Configures industrial cameras and grabs images from them."), this));
    layout->addWidget(makeText(tr("Copyright 2026 Ostrand. Free software under the MIT licence, "
                                  "without warranty of any kind."),
                               this));
    layout->addWidget(makeText(versions(), this));
    layout->addStretch();
    layout->addWidget(buttons);
    buttons->button(QDialogButtonBox::Close)->setDefault(true);
    buttons->button(QDialogButtonBox::Close)->setFocus();
}

CAboutDialog::~CAboutDialog() = default;

QString CAboutDialog::versions()
{
    return QStringLiteral("Nerix Viewer %1\nQt %2\nAravis %3\nGLib %4\n%5 (%6)")
        .arg(QStringLiteral(NERIX_VERSION), QString::fromLatin1(qVersion()), aravisVersion(),
             glibVersion(), QSysInfo::prettyProductName(), QSysInfo::currentCpuArchitecture());
}

} // namespace Help
} // namespace Plugin
