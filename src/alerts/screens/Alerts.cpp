#include "alerts/screens/Alerts.h"

#include <QAction>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QScrollArea>
#include <QSplitter>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <exception>
#include <map>

#include "alerts/Alerts.h"
#include "alerts/Notes.h"
#include "alerts/PortfolioSummary.h"
#include "alerts/screens/SideMenu.h"
#include "core/EditRecord.h"
#include "core/forms/ErrorRoll.h"
#include "platform/qt/Icons.h"
#include "platform/qt/Text.h"
#include "platform/values/Format.h"

namespace alerts::screens {

using platform::qt::LoadIcon;
using platform::qt::ToScreen;

namespace {

constexpr int kNarrow = 640; // less than this has no room for two columns
constexpr int kPictureSize = 20;
constexpr int kSideWidth = 340;
constexpr int kFewestInfoLines = 6;

/// A record's picture is that of its category, where it has no picture of its own.
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
      notes_(new QPlainTextEdit(this)) {
    SetUpAlerts();
    SetUpSide();
    parts_->setChildrenCollapsible(false);
    parts_->setStretchFactor(0, 1);
    parts_->setStretchFactor(1, 0);
    auto* const page = new QVBoxLayout(this);
    page->setContentsMargins(0, 0, 0, 0);
    page->addWidget(parts_);
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
    // As high as its lines, and no higher; where there is less room it scrolls.
    info_->setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
    info_->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    info_->setMinimumHeight(kFewestInfoLines * info_->fontMetrics().lineSpacing());
    notes_->setObjectName(QStringLiteral("mtxtNotes"));
    notes_->setAccessibleName(tr("Notes"));
    notes_->setTabChangesFocus(true);

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
    const auto follow = [item, &action] { item->setEnabled(action.isEnabled()); };
    connect(&action, &QAction::changed, item, follow);
    connect(item, &QToolButton::clicked, &action, &QAction::trigger);
    follow();
}

void Alerts::Refresh() {
    std::exception_ptr failure;
    try {
        ShowInfo();
        ShowAlerts();
    } catch (...) {
        failure = std::current_exception();
    }
    LoadNotes();
    if (failure) std::rethrow_exception(failure);
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
            auto* const row = new QTreeWidgetItem(
                info_, {ToScreen(item.name), ToScreen(platform::FormatMoney(item.total))});
            row->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
        }
    }
}

void Alerts::ShowAlerts() {
    list_->clear();
    records_.clear();
    count_->clear();
    std::map<std::string_view, QIcon> pictures;
    const auto add = [&](const QString& text, std::string_view picture) {
        auto [found, isNew] = pictures.try_emplace(picture);
        if (isNew) found->second = PictureOf(picture);
        auto* const row = new QListWidgetItem(found->second, text, list_);
        row->setToolTip(text);
    };
    for (const AlertItem& alert : GetAlerts()) {
        add(ToScreen(alert.text), alert.picture);
        records_.emplace_back(alert.recordKind, alert.recordId);
    }
    if (records_.empty()) add(tr("No Active Alerts."), "WARNING");
    count_->setText(tr("(%1) Active Alerts").arg(list_->count()));
    list_->setCurrentRow(0);
}

void Alerts::LoadNotes() {
    // What was typed and not written yet is newer than the file.
    if (notes_->document()->isModified()) return;
    const QString text = ToScreen(alerts::LoadNotes());
    if (text != notes_->toPlainText()) notes_->setPlainText(text);
}

void Alerts::SaveNotes() {
    if (!notes_->document()->isModified()) return;
    alerts::SaveNotes(NotesText());
    notes_->document()->setModified(false);
}

std::string Alerts::NotesText() const {
    return platform::qt::FromScreen(notes_->toPlainText());
}

void Alerts::OpenAlert() const {
    const auto row = static_cast<std::size_t>(list_->currentRow());
    if (list_->currentRow() < 0 || row >= records_.size()) return;
    const std::pair<std::int16_t, std::int32_t> record = records_[row];
    if (record.first == 0 || record.second == 0) return;
    core::forms::Guarded([record] { core::EditRecord(record.first, record.second); });
}

void Alerts::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    parts_->setOrientation(width() < kNarrow ? Qt::Vertical : Qt::Horizontal);
}

} // namespace alerts::screens
