#include "shell/screens/frmKestrom.h"

#include <QActionGroup>
#include <QApplication>
#include <QLabel>
#include <QScopedValueRollback>
#include <QTimer>

#include "core/BooksSettings.h"
#include "core/Configuration.h"
#include "core/Globals.h"
#include "core/MessagePump.h"
#include "core/Preferences.h"
#include "core/RecordKinds.h"
#include "core/forms/ErrorRoll.h"
#include "core/forms/WindowPlace.h"
#include "core/grid/Grid.h"
#include "platform/qt/PressGuard.h"
#include "platform/qt/Text.h"
#include "shell/ViewTexts.h"
#include "shell/screens/BooksRun.h"
#include "shell/screens/HomePage.h"
#include "shell/screens/MenuItems.h"
#include "shell/screens/SearchEverything.h"
#include "shell/screens/ViewPanel.h"
#include "ui_frmKestrom.h"

namespace shell::screens {

using platform::qt::ToScreen;

namespace {

constexpr int kTickMs = 60'000; // soon enough after midnight, and after the machine has slept

} // namespace

frmKestrom::frmKestrom(WindowServices services)
    : services_(std::move(services)),
      ui_(std::make_unique<Ui::frmKestrom>()),
      categories_(new QActionGroup(this)),
      status_(new QLabel(this)),
      narrowed_(new QLabel(this)),
      backup_(new QLabel(this)),
      tmr_(new QTimer(this)),
      homeRefresh_(new QTimer(this)),
      search_(new SearchEverything(*this)),
      selectedDb_(core::kAlert),
      token_([this](core::RecordKind kind, std::int16_t action, std::int32_t id) {
          NotifyUpdate(kind, action, id);
      }) {
    platform::qt::GuardPresses();
    ui_->setupUi(this);
    ShowTitle();
    SetUpPages();
    SetUpActions();
    ConnectCategories();
    ConnectCommands();
    // Labels stay visible when a menu shows its own text in the status bar.
    status_->setObjectName(QStringLiteral("lblStatus"));
    status_->setTextFormat(Qt::PlainText);
    ui_->statusBar->addPermanentWidget(status_, 1);
    ui_->statusBar->addPermanentWidget(narrowed_);
    backup_->setObjectName(QStringLiteral("lblBackup"));
    ui_->statusBar->addPermanentWidget(backup_);
    tmr_->setObjectName(QStringLiteral("tmr"));
    connect(tmr_, &QTimer::timeout, this, &frmKestrom::Tick);
    homeRefresh_->setSingleShot(true);
    connect(homeRefresh_, &QTimer::timeout, this, &frmKestrom::RefreshHome);
}

frmKestrom::~frmKestrom() = default;

void frmKestrom::SetUpPages() {
    home_ = new HomePage(this);
    home_->setObjectName(QStringLiteral("homePage"));
    home_->BindWizards(*ui_->mnuLeaseWizard, *ui_->mnuMortgageWizard);
    home_->BindLookAhead(*ui_->mnuLookAhead);
    view_ = new ViewPanel(this);
    ui_->pages->addWidget(home_);
    ui_->pages->addWidget(view_);
    connect(view_, &ViewPanel::SelectionMoved, this, &frmKestrom::EnableEditButtons);
    connect(view_, &ViewPanel::StatusChanged, this, &frmKestrom::ShowStatus);
    connect(view_, &ViewPanel::RecordChosen, this, &frmKestrom::EditSelected);
    connect(view_, &ViewPanel::MenuAsked, this,
            [this](const QPoint& position) { ui_->mnuOptionsMenu->popup(position); });
}

void frmKestrom::Setup(RunDigest digest) {
    const QScopedValueRollback loading(loading_, true);
    digest_ = std::move(digest);
    Initialise();
    SetSelectedDb(core::kAlert);
    core::forms::RestoreWindow(*this, core::FormSizing::Resizable);
    show();
    repaint();
    // The run has just finished: the first tick only remembers the day.
    dayChange_.Tick([] {});
    tmr_->start(kTickMs);
}

void frmKestrom::Initialise() {
    ui_->mnuRestoreTransCategories->setVisible(core::App().Expert);
    ui_->mnuPicture->setChecked(home_->HasPicture());
    home_->ShowDigest(digest_);
    ShowBackupNotice();
}

void frmKestrom::SetSelectedDb(core::RecordKind kind) {
    if (selectedDb_ != core::kAlert) view_->Remember();
    selectedDb_ = kind;
    for (QAction* const category : categories_->actions()) {
        category->setChecked(category->data().toInt() == core::KindNumber(kind));
    }
    ShowExtraItems();
    const bool isHome = kind == core::kAlert;
    ui_->pages->setCurrentWidget(isHome ? static_cast<QWidget*>(home_) : view_);
    core::LetMessagesRun();
    // Another view may have been chosen in the meantime.
    if (selectedDb_ != kind || hasEnded_) return;
    if (isHome) {
        RefreshHome();
        home_->setFocus(Qt::OtherFocusReason);
    } else {
        view_->ShowKind(kind);
        view_->List().setFocus(Qt::OtherFocusReason);
    }
    ShowStatus();
    EnableEditButtons();
}

void frmKestrom::NotifyUpdate(core::RecordKind kind, std::int16_t /*action*/, std::int32_t /*id*/) {
    if (hasEnded_) return;
    if (kind == core::kConfiguration) ShowTitle();
    if (selectedDb_ == core::kAlert) {
        // A save broadcasts several kinds in a row, which cause only one refresh. There is no
        // refresh during a run of the books: each refresh deletes the messages that it has listed,
        // and the run's messages would be deleted before anyone has seen them.
        if (!updating_) homeRefresh_->start(0);
    } else if (kind == selectedDb_) {
        view_->Reload(ViewPanel::Cause::Broadcast);
    }
}

std::int32_t frmKestrom::SelectedId() const {
    return selectedDb_ == core::kAlert ? 0 : view_->SelectedId();
}

Selection frmKestrom::Selected() const {
    Selection selection{.kind = selectedDb_, .id = SelectedId()};
    if (selectedDb_ != core::kAlert) selection.ids = view_->List().SelectedIds();
    return selection;
}

void frmKestrom::EnableEditButtons() {
    const Availability why = shell::EnableEditButtons(State());
    SetAvailable(*ui_->mnuAdd, why.add);
    SetAvailable(*ui_->mnuEdit, why.edit);
    SetAvailable(*ui_->mnuCopy, why.edit.empty() ? why.change : why.edit);
    SetAvailable(*ui_->mnuPrintGrid, services_.viewReport ? why.list : kNotInThisVersion);
    SetAvailable(*ui_->mnuDelete, why.change);
    const auto offer = [this](QAction* item, std::string_view reason) {
        SetAvailable(*item,
                     services_.commands.Has(item->objectName()) ? reason : kNotInThisVersion);
    };
    for (QAction* const item : {ui_->mnuPayRent, ui_->mnuPayMortgage})
        offer(item, why.change);
    for (QAction* const item : {ui_->mnuPrint, ui_->mnuPhotoReel})
        offer(item, why.record);
    offer(ui_->mnuPrintDoc, why.rows);
    SetAvailable(*ui_->mnuFind, why.list);
    SetAvailable(*ui_->mnuCopyRows, why.rows);
}

WindowState frmKestrom::State() const {
    const bool isList = selectedDb_ != core::kAlert;
    return {.kind = selectedDb_,
            .selectedId = isList ? view_->List().SelectedId() : 0,
            .selectedRows = isList ? view_->List().SelectedCount() : 0,
            .hasEditor = services_.hasEditor && services_.hasEditor(selectedDb_),
            .readOnly = core::App().Connection.IsReadOnly()};
}

void frmKestrom::ShowExtraItems() {
    const ExtraItems extra = ExtraItemsOf(selectedDb_);
    ui_->mnuRefreshSummary->setVisible(extra.refreshSummary);
    ui_->mnuPayRent->setVisible(extra.payRent);
    ui_->mnuPayMortgage->setVisible(extra.payMortgage);
    ui_->mnuDatabaseSep->setVisible(extra.Separator());
    ui_->mnuCopy->setVisible(extra.copy);
}

void frmKestrom::ShowTitle() {
    const bool isSample = core::IsSample();
    setWindowTitle(ToScreen(
        WindowTitle(core::Config().CompanyName, isSample ? BooksAre::Sample : BooksAre::Own)));
    ui_->mnuResetSample->setVisible(isSample && !core::App().Connection.IsReadOnly());
}

void frmKestrom::ShowStatus() {
    const bool isList = selectedDb_ != core::kAlert;
    status_->setText(isList ? view_->Status() : QString());
    narrowed_->setText(isList ? view_->NarrowedStatus() : QString());
}

void frmKestrom::ShowBackupNotice() {
    const std::string notice = services_.backupNotice ? services_.backupNotice() : std::string();
    backup_->setText(ToScreen(notice));
    backup_->setVisible(!notice.empty());
}

void frmKestrom::RefreshHome() {
    if (hasEnded_) return;
    homeRefresh_->stop();
    core::forms::Guarded([this] { home_->Refresh(); });
}

void frmKestrom::Tick() {
    if (loading_ || updating_ || hasEnded_) return;
    dayChange_.Tick([this] {
        {
            const QScopedValueRollback updating(updating_, true);
            RunBooks(digest_);
        }
        home_->ShowDigest(digest_);
        ShowBackupNotice();
        if (selectedDb_ == core::kAlert) RefreshHome();
    });
}

bool frmKestrom::IsBackupOnExit() const {
    return ui_->mnuBackup->isChecked();
}

void frmKestrom::ComeToFront() {
    if (isMinimized()) setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

} // namespace shell::screens
