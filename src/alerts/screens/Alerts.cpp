#include "alerts/screens/Alerts.h"

#include <QAction>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QScrollArea>
#include <QSplitter>
#include <QTextDocument>
#include <QTimer>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <exception>

#include "alerts/Alerts.h"
#include "alerts/Notes.h"
#include "alerts/PortfolioSummary.h"
#include "alerts/screens/SideMenu.h"
#include "core/EditRecord.h"
#include "core/RecordKinds.h"
#include "core/forms/ErrorRoll.h"
#include "platform/qt/Icons.h"
#include "platform/qt/Text.h"
#include "platform/values/Format.h"

namespace alerts::screens {

using platform::qt::LoadIcon;
using platform::qt::ToScreen;

namespace {

constexpr int kNarrow = 640; // below this width there is no room for two columns
constexpr int kTypingPauseMs = 1000;
constexpr int kRetryMs = 10'000;
constexpr int kPictureSize = 20;
constexpr int kSideWidth = 340;
constexpr int kFewestInfoLines = 6;

/// Returns a record's picture, or the picture of its category if it has none of its own.
QIcon PictureOf(std::string_view word) {
    const QString name = ToScreen(word).toLower();
    const QIcon own = LoadIcon(name);
    return own.isNull() ? LoadIcon(name + QLatin1Char('s')) : own;
}

} // namespace

Alerts::Alerts(QWidget* parent)
    : QWidget(parent),
      parts_(new QSplitter(this)),
      count_(new QLabel(this)),
      list_(new QListWidget(this)),
      smnu_(new SideMenu(this)),
      info_(new QTreeWidget(this)),
      notes_(new QPlainTextEdit(this)),
      saving_(new QTimer(this)) {
    SetUpAlerts();
    SetUpSide();
    parts_->setChildrenCollapsible(false);
    parts_->setStretchFactor(0, 1);
    parts_->setStretchFactor(1, 0);
    auto* const page = new QVBoxLayout(this);
    page->setContentsMargins(0, 0, 0, 0);
    page->addWidget(parts_);
    setFocusProxy(list_);
}

void Alerts::SetUpAlerts() {
    count_->setObjectName(QStringLiteral("lblAlerts"));
    count_->setBuddy(list_);
    list_->setObjectName(QStringLiteral("lvwAlerts"));
    list_->setAccessibleName(tr("Active alerts"));
    list_->setUniformItemSizes(true);
    list_->setIconSize({kPictureSize, kPictureSize});
    list_->setTextElideMode(Qt::ElideRight);
    list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(list_, &QListWidget::itemDoubleClicked, this, &Alerts::OpenAlert);
    auto* const open = new QAction(tr("&Open"), list_);
    open->setShortcuts({Qt::Key_Return, Qt::Key_Enter});
    open->setShortcutContext(Qt::WidgetShortcut);
    connect(open, &QAction::triggered, this, &Alerts::OpenAlert);
    list_->addAction(open);

    auto* const side = new QWidget(parts_);
    auto* const rows = new QVBoxLayout(side);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addWidget(count_);
    rows->addWidget(list_);
}

void Alerts::SetUpSide() {
    smnu_->setObjectName(QStringLiteral("smnu"));
    info_->setObjectName(QStringLiteral("lvwInfo"));
    info_->setAccessibleName(tr("Database summary"));
    info_->setRootIsDecorated(false);
    info_->setUniformRowHeights(true);
    info_->setSelectionMode(QAbstractItemView::NoSelection);
    info_->setHeaderLabels({tr("Item"), tr("Data")});
    info_->headerItem()->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
    info_->header()->setStretchLastSection(false);
    info_->header()->setSectionsMovable(false);
    info_->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    info_->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    // The box is as high as its lines; it scrolls if there is less room.
    info_->setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
    info_->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    info_->setMinimumHeight(kFewestInfoLines * info_->fontMetrics().lineSpacing());
    notes_->setObjectName(QStringLiteral("mtxtNotes"));
    notes_->setAccessibleName(tr("Notes"));
    notes_->setTabChangesFocus(true);
    notes_->setPlaceholderText(ToScreen(kNotesHint));
    saving_->setSingleShot(true);
    connect(saving_, &QTimer::timeout, this, &Alerts::TryToSaveNotes);
    connect(notes_, &QPlainTextEdit::textChanged, this, [this] {
        if (notes_->document()->isModified()) saving_->start(kTypingPauseMs);
    });

    smnu_->AddGroup(tr("Database Summary"), info_);
    QWidget* const wizards = smnu_->AddGroup(tr("Wizards"));
    smnu_->AddItem(wizards, QStringLiteral("WIZ_LEASE"), tr("New Lease Wizard"))
        ->setIcon(LoadIcon(QStringLiteral("leases")));
    smnu_->AddItem(wizards, QStringLiteral("WIZ_MORTGAGE"), tr("New Mortgage Wizard"))
        ->setIcon(LoadIcon(QStringLiteral("mortgages")));
    smnu_->AddGroup(tr("Notes"), notes_);
    smnu_->EndGroups();

    auto* const scroll = new QScrollArea(parts_);
    scroll->setWidget(smnu_);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->resize(kSideWidth, scroll->height());
}

void Alerts::BindItem(const QString& key, QAction& action) {
    auto* const item = smnu_->findChild<QToolButton*>(key);
    Q_ASSERT(item != nullptr);
    const auto follow = [item, &action] {
        item->setEnabled(action.isEnabled());
        item->setToolTip(action.toolTip());
    };
    connect(&action, &QAction::changed, item, follow);
    connect(item, &QToolButton::clicked, &action, &QAction::trigger);
    follow();
}

void Alerts::Refresh() {
    std::exception_ptr failure;
    std::string fault;
    try {
        ShowInfo();
        ShowAlerts();
    } catch (const std::exception& error) {
        failure = std::current_exception();
        fault = error.what();
        ShowAlertsFault(ToScreen(fault));
    }
    LoadNotes();
    const bool isTold = fault == toldFault_;
    toldFault_ = fault;
    if (failure && !isTold) std::rethrow_exception(failure);
}

void Alerts::ShowInfo() {
    info_->clear();
    QFont bold = info_->font();
    bold.setBold(true);
    for (const SummaryGroup& group : GetPortfolioSummary()) {
        if (info_->topLevelItemCount() > 0) {
            (new QTreeWidgetItem(info_))->setFlags(Qt::NoItemFlags);
        }
        auto* const heading = new QTreeWidgetItem(info_, {ToScreen(group.heading)});
        heading->setFont(0, bold);
        for (const SummaryItem& item : group.items) {
            auto* const row = new QTreeWidgetItem(info_, {ToScreen(item.name)});
            row->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
            if (item.fault.empty()) {
                row->setText(1, ToScreen(platform::FormatMoney(item.total)));
                continue;
            }
            row->setText(1, tr("not available"));
            row->setIcon(1, LoadIcon(QStringLiteral("warning")));
            row->setToolTip(0, ToScreen(item.fault));
            row->setToolTip(1, ToScreen(item.fault));
        }
    }
}

void Alerts::ShowAlerts() {
    const std::vector<AlertItem> alerts = GetAlerts();
    list_->clear();
    records_.clear();
    for (const AlertItem& alert : alerts) {
        AddRow(ToScreen(alert.text), alert.picture);
        records_.emplace_back(alert.recordKind, alert.recordId);
    }
    if (records_.empty()) AddRow(tr("No Active Alerts."), "WARNING");
    count_->setText(tr("(%1) Active Alerts").arg(list_->count()));
    list_->setCurrentRow(0);
}

void Alerts::ShowAlertsFault(const QString& reason) {
    list_->clear();
    records_.clear();
    count_->setText(tr("Alerts are not available"));
    AddRow(reason, "WARNING");
}

void Alerts::AddRow(const QString& text, std::string_view picture) {
    auto* const row = new QListWidgetItem(PictureOf(picture), text, list_);
    row->setToolTip(text);
}

void Alerts::LoadNotes() {
    // Unsaved changes are newer than the file.
    if (notes_->document()->isModified()) return;
    const QString text = ToScreen(alerts::LoadNotes());
    if (text != notes_->toPlainText()) notes_->setPlainText(text);
}

/// The page says why the notes can't be saved, and the user is asked when the program ends.
void Alerts::TryToSaveNotes() {
    try {
        SaveNotes();
    } catch (const std::exception&) {
        return;
    }
}

void Alerts::SaveNotes() {
    if (!notes_->document()->isModified()) return;
    saving_->stop();
    try {
        alerts::SaveNotes(NotesText());
    } catch (const std::exception& failure) {
        saving_->start(kRetryMs);
        Q_EMIT NotesFault(ToScreen(failure.what()));
        throw;
    }
    notes_->document()->setModified(false);
    Q_EMIT NotesFault({});
}

std::string Alerts::NotesText() const {
    // The plain text would turn no-break spaces into spaces.
    QString text = notes_->document()->toRawText();
    text.replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
    text.replace(QChar::LineSeparator, QLatin1Char('\n'));
    return platform::qt::FromScreen(text);
}

void Alerts::OpenAlert() const {
    const auto row = static_cast<std::size_t>(list_->currentRow());
    if (list_->currentRow() < 0 || row >= records_.size()) return;
    const std::pair<core::RecordKind, std::int32_t> record = records_[row];
    if (record.first == core::kNone || record.second == 0) return;
    core::forms::Guarded([record] { core::EditRecord(record.first, record.second); });
}

void Alerts::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    parts_->setOrientation(width() < kNarrow ? Qt::Vertical : Qt::Horizontal);
}

} // namespace alerts::screens
