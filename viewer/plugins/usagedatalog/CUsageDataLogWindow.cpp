// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/usagedatalog/CUsageDataLogWindow.h"

#include "plugins/usagedatalog/CConsentWatch.h"
#include "plugins/usagedatalog/CEventFilter.h"
#include "plugins/usagedatalog/CEventModel.h"
#include "plugins/usagedatalog/CEventStore.h"
#include "windows/CPlainLabel.h"
#include "windows/OnLanguageChange.h"
#include "windows/ShownText.h"

#include <chrono>

#include <QFontDatabase>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QShortcut>
#include <QSplitter>
#include <QTableView>
#include <QVBoxLayout>

namespace Plugin {
namespace UsageDataLog {

namespace {

using namespace std::chrono_literals;

constexpr QSize firstSize(980, 640);
constexpr auto searchDelay = 200ms;
constexpr auto stateDelay = 0ms;

bool isAtEnd(const QScrollBar &bar)
{
    return bar.value() == bar.maximum();
}

} // namespace

CUsageDataLogWindow::CUsageDataLogWindow(CEventStore &store, CConsentWatch &consent,
                                         Policy::CUsagePolicy policy, QWidget *parent)
    : QDialog(parent)
    , m_store(store)
    , m_consent(consent)
    , m_policy(policy)
    , m_filter(new CEventFilter(this))
    , m_consentText(new Windows::CPlainLabel(this))
    , m_consentButton(new QPushButton(this))
    , m_identityText(new Windows::CPlainLabel(this))
    , m_search(new QLineEdit(this))
    , m_table(new QTableView(this))
    , m_record(new QPlainTextEdit(this))
    , m_stateText(new Windows::CPlainLabel(this))
    , m_notice(new Windows::CPlainLabel(this))
    , m_exportButton(new QPushButton(this))
    , m_handOverButton(new QPushButton(this))
    , m_deleteButton(new QPushButton(this))
    , m_closeButton(new QPushButton(this))
{
    setObjectName(QStringLiteral("usageDataLogWindow"));
    setWindowFlags(Qt::Window);
    makeTable();
    makeButtons();
    layOut();
    m_stateTimer.setSingleShot(true);
    m_stateTimer.setInterval(stateDelay);
    connect(&m_stateTimer, &QTimer::timeout, this, &CUsageDataLogWindow::updateState);
    connect(&m_store, &CEventStore::changed, &m_stateTimer, QOverload<>::of(&QTimer::start));
    connect(&m_consent, &CConsentWatch::changed, this, &CUsageDataLogWindow::updateConsent);
    connect(&m_store, &CEventStore::failed, this, &CUsageDataLogWindow::say);
    connect(&m_store, &CEventStore::exported, this,
            [this](const QString &file) { say(tr("All events are written to %1").arg(file)); });
    connect(&m_store, &CEventStore::handedOver, this, [this](const QString &file) {
        say(tr("The events that waited are written to %1, and will not be sent.").arg(file));
    });
    Windows::onLanguageChange(this, [this] { setTexts(); });
    resize(firstSize);
}

CUsageDataLogWindow::~CUsageDataLogWindow() = default;

void CUsageDataLogWindow::exportTo(const QString &file)
{
    const bool isCsv = file.endsWith(QLatin1String(".csv"), Qt::CaseInsensitive);
    m_store.exportTo(file, isCsv ? CEventStore::Format::Csv : CEventStore::Format::JsonLines);
}

void CUsageDataLogWindow::handOverTo(const QString &file)
{
    m_store.handOverTo(file);
}

void CUsageDataLogWindow::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    m_notice->clear();
    m_store.watch();
}

void CUsageDataLogWindow::hideEvent(QHideEvent *event)
{
    if (!event->spontaneous()) {
        m_store.stopWatching();
    }
    QDialog::hideEvent(event);
}

void CUsageDataLogWindow::makeTable()
{
    m_filter->setSourceModel(&m_store.model());
    m_table->setObjectName(QStringLiteral("events"));
    m_table->setModel(m_filter);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setTabKeyNavigation(false);
    m_table->setWordWrap(false);
    m_table->verticalHeader()->hide();
    m_table->horizontalHeader()->setHighlightSections(false);
    m_table->horizontalHeader()->setSectionResizeMode(CEventModel::RecordColumn,
                                                      QHeaderView::Stretch);
    const QFontMetrics letters = m_table->fontMetrics();
    m_table->setColumnWidth(CEventModel::TimeColumn,
                            letters.horizontalAdvance(QStringLiteral("0000-00-00 00:00:00MM")));
    m_table->setColumnWidth(CEventModel::NameColumn,
                            letters.horizontalAdvance(QStringLiteral("MMMMMMMMMMMM")));
    m_record->setObjectName(QStringLiteral("record"));
    m_record->setReadOnly(true);
    m_record->setTabChangesFocus(true);
    m_record->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &CUsageDataLogWindow::updateRecord);

    // The newest are followed as long as a user has not scrolled up to read.
    QScrollBar *bar = m_table->verticalScrollBar();
    connect(m_filter, &QAbstractItemModel::rowsAboutToBeInserted, this, [this, bar] {
        if (isAtEnd(*bar)) {
            QMetaObject::invokeMethod(m_table, &QTableView::scrollToBottom, Qt::QueuedConnection);
        }
    });
}

void CUsageDataLogWindow::makeButtons()
{
    m_search->setObjectName(QStringLiteral("search"));
    m_search->setClearButtonEnabled(true);
    m_searchTimer.setSingleShot(true);
    m_searchTimer.setInterval(searchDelay);
    connect(m_search, &QLineEdit::textChanged, &m_searchTimer, QOverload<>::of(&QTimer::start));
    connect(&m_searchTimer, &QTimer::timeout, this, [this] {
        m_filter->setText(m_search->text());
        updateState();
    });
    const auto *find = new QShortcut(QKeySequence::Find, this);
    connect(find, &QShortcut::activated, this,
            [this] { m_search->setFocus(Qt::ShortcutFocusReason); });

    m_consentButton->setObjectName(QStringLiteral("change"));
    m_exportButton->setObjectName(QStringLiteral("export"));
    m_deleteButton->setObjectName(QStringLiteral("delete"));
    m_handOverButton->setObjectName(QStringLiteral("handOver"));
    for (QPushButton *button :
         {m_consentButton, m_exportButton, m_handOverButton, m_deleteButton}) {
        button->setAutoDefault(false);
    }
    connect(m_consentButton, &QPushButton::clicked, &m_consent, &CConsentWatch::showPage);
    connect(m_exportButton, &QPushButton::clicked, this, &CUsageDataLogWindow::chooseExport);
    connect(m_handOverButton, &QPushButton::clicked, this, &CUsageDataLogWindow::chooseHandOver);
    connect(m_deleteButton, &QPushButton::clicked, this, &CUsageDataLogWindow::askToDelete);
    connect(m_closeButton, &QPushButton::clicked, this, &QDialog::reject);
    m_closeButton->setAutoDefault(false);
}

void CUsageDataLogWindow::layOut()
{
    auto *top = new QHBoxLayout;
    m_consentText->setObjectName(QStringLiteral("consent"));
    m_consentText->setWordWrap(true);
    top->addWidget(m_consentText, 1);
    top->addWidget(m_consentButton);

    auto *events = new QSplitter(Qt::Vertical, this);
    events->addWidget(m_table);
    events->addWidget(m_record);
    events->setStretchFactor(0, 3);
    events->setStretchFactor(1, 1);
    events->setChildrenCollapsible(false);

    auto *bottom = new QHBoxLayout;
    bottom->addWidget(m_exportButton);
    bottom->addWidget(m_handOverButton);
    bottom->addWidget(m_deleteButton);
    bottom->addStretch();
    bottom->addWidget(m_closeButton);

    m_identityText->setObjectName(QStringLiteral("identity"));
    m_identityText->setWordWrap(true);
    // Somebody who writes to the service copies the client id.
    m_identityText->setTextInteractionFlags(Qt::TextSelectableByMouse
                                            | Qt::TextSelectableByKeyboard);
    m_stateText->setObjectName(QStringLiteral("state"));
    m_stateText->setWordWrap(true);
    m_notice->setObjectName(QStringLiteral("notice"));
    m_notice->setWordWrap(true);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addWidget(m_identityText);
    layout->addWidget(m_search);
    layout->addWidget(events, 1);
    layout->addWidget(m_stateText);
    layout->addWidget(m_notice);
    layout->addLayout(bottom);
}

void CUsageDataLogWindow::setTexts()
{
    setWindowTitle(tr("Usage Data Log"));
    m_consentButton->setText(tr("&Data Privacy"));
    m_search->setPlaceholderText(tr("Search"));
    m_search->setAccessibleName(tr("Search"));
    m_table->setAccessibleName(tr("Events"));
    m_record->setAccessibleName(tr("Record of the selected event"));
    m_record->setPlaceholderText(tr("Select an event to read the whole of its record."));
    m_exportButton->setText(tr("&Export..."));
    m_handOverButton->setText(tr("&Hand Over..."));
    m_handOverButton->setToolTip(
        tr("Writes the waiting events to a file for the service instead of "
           "sending them: for a computer without a network."));
    m_deleteButton->setText(tr("De&lete All..."));
    m_closeButton->setText(tr("&Close"));
    updateConsent();
    updateState();
}

void CUsageDataLogWindow::updateConsent()
{
    using Consent = CConsentWatch::Consent;
    const Consent consent = m_consent.consent();
    if (m_policy.isOff()) {
        m_consentButton->hide();
        m_consentText->setText(m_policy.text());
        return;
    }
    m_consentButton->setVisible(consent != Consent::NoPage);
    switch (consent) {
    case Consent::NoPage:
        m_consentText->setText(tr("Nothing is recorded: the plug-in that records is not there."));
        break;
    case Consent::Unanswered:
        m_consentText->setText(tr("Nothing is recorded: you have not been asked yet, or have not "
                                  "answered."));
        break;
    case Consent::Yes:
        m_consentText->setText(tr("You have agreed: how you use the viewer is recorded."));
        if (!m_policy.text().isEmpty()) {
            m_consentText->setText(m_policy.text());
        }
        break;
    case Consent::No:
        m_consentText->setText(tr("You have not agreed: nothing is recorded."));
        break;
    }
}

void CUsageDataLogWindow::updateState()
{
    m_stateText->setText(stateText());
    const bool hasEvents = m_store.model().rowCount() > 0;
    m_exportButton->setEnabled(hasEvents);
    m_handOverButton->setEnabled(m_store.model().waitingCount() > 0);
    m_identityText->setText(identityText());
    m_deleteButton->setEnabled(hasEvents);
}

QString CUsageDataLogWindow::stateText() const
{
    switch (m_store.state()) {
    case CEventStore::State::Unknown:
        return tr("Reading...");
    case CEventStore::State::NothingStored:
        return tr("Nothing was ever recorded on this computer.");
    case CEventStore::State::Failed:
        return tr("The events cannot be read: %1").arg(m_store.error());
    case CEventStore::State::Ready:
        break;
    }
    const CEventModel &events = m_store.model();
    QString numbers = tr("Events: %1. Waiting: %2. Delivered: %3.")
                          .arg(events.rowCount())
                          .arg(events.waitingCount())
                          .arg(events.deliveredCount());
    if (events.handedOverCount() > 0) {
        numbers = tr("%1 Handed over: %2.").arg(numbers).arg(events.handedOverCount());
    }
    const bool isSearching = m_filter->rowCount() != events.rowCount();
    return isSearching ? tr("%1 Found: %2.").arg(numbers).arg(m_filter->rowCount()) : numbers;
}

QString CUsageDataLogWindow::identityText() const
{
    if (m_store.state() != CEventStore::State::Ready) {
        return {};
    }
    const QString client = m_store.clientId().isEmpty()
                               ? tr("You have no client ID.")
                               : tr("Your client ID: %1").arg(m_store.clientId());
    const QString server = m_store.serverHost().isEmpty()
                               ? tr("No server: the events stay on this computer.")
                               : tr("Server: %1").arg(m_store.serverHost());
    return m_store.isServerKnown() ? client + QLatin1Char('\n') + server : client;
}

void CUsageDataLogWindow::updateRecord()
{
    const auto rows = m_table->selectionModel()->selectedRows();
    const QByteArray text =
        rows.isEmpty() ? QByteArray() : rows.first().data(CEventModel::WholeTextRole).toByteArray();
    const QString record = QString::fromUtf8(text);
    m_record->setPlainText(Windows::shownText(record, record.size()));
}

void CUsageDataLogWindow::say(const QString &text)
{
    m_notice->setText(text);
}

} // namespace UsageDataLog
} // namespace Plugin
