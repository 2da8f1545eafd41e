#include "shell/screens/frmKestrom.h"

#include <QActionGroup>
#include <QApplication>
#include <QLabel>
#include <QScopedValueRollback>
#include <QTimer>

#include "core/Configuration.h"
#include "core/Globals.h"
#include "core/MessagePump.h"
#include "core/Preferences.h"
#include "core/RecordKinds.h"
#include "core/forms/ErrorRoll.h"
#include "core/forms/WindowPlace.h"
#include "core/grid/Grid.h"
#include "platform/qt/Text.h"
#include "shell/Availability.h"
#include "shell/ViewTexts.h"
#include "shell/screens/BooksRun.h"
#include "shell/screens/HomePage.h"
#include "shell/screens/ViewPanel.h"
#include "ui_frmKestrom.h"

namespace shell::screens {

using platform::qt::ToScreen;

namespace {

constexpr int kTickMs = 60'000; // soon enough after midnight, and after a sleep

} // namespace

frmKestrom::frmKestrom(WindowServices services)
    : services_(std::move(services)),
      ui_(std::make_unique<Ui::frmKestrom>()),
      categories_(new QActionGroup(this)),
      narrowed_(new QLabel(this)),
      backup_(new QLabel(this)),
      tmr_(new QTimer(this)),
      homeRefresh_(new QTimer(this)),
      selectedDb_(core::kAlert),
      token_([this](std::int16_t kind, std::int16_t action, std::int32_t id) {
          NotifyUpdate(kind, action, id);
      }) {
    ui_->setupUi(this);
    setWindowTitle(ToScreen(WindowTitle(core::Config().CompanyName)));
    SetUpPages();
    SetUpActions();
    ConnectCategories();
    ConnectCommands();
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
    // The run has just been done, so the first tick only remembers its day.
    dayChange_.Tick([] {});
    tmr_->start(kTickMs);
}

void frmKestrom::Initialise() {
    ui_->mnuRestoreTransCategories->setVisible(core::App().Expert);
    home_->ShowDigest(digest_);
    ShowBackupNotice();
}

void frmKestrom::SetSelectedDb(std::int16_t kind) {
    if (selectedDb_ != core::kAlert) view_->Remember();
    selectedDb_ = kind;
    for (QAction* const category : categories_->actions()) {
        category->setChecked(category->data().toInt() == kind);
    }
    ShowExtraItems();
    const bool isHome = kind == core::kAlert;
    ui_->pages->setCurrentWidget(isHome ? static_cast<QWidget*>(home_) : view_);
    core::LetMessagesRun();
    // The messages may have brought another view.
    if (selectedDb_ != kind || hasEnded_) return;
    if (isHome) {
        RefreshHome();
    } else {
        view_->ShowKind(kind);
        view_->List().setFocus(Qt::OtherFocusReason);
    }
    ShowStatus();
    EnableEditButtons();
}

void frmKestrom::NotifyUpdate(std::int16_t kind, std::int16_t /*action*/, std::int32_t /*id*/) {
    if (hasEnded_) return;
    if (kind == core::kConfiguration) {
        setWindowTitle(ToScreen(WindowTitle(core::Config().CompanyName)));
    }
    if (selectedDb_ == core::kAlert) {
        // A save broadcasts several kinds in a row; the page is worked out once for all of them.
        homeRefresh_->start(0);
    } else if (kind == selectedDb_) {
        view_->Reload(ViewPanel::Cause::Broadcast);
    }
}

std::int32_t frmKestrom::SelectedId() const {
    return selectedDb_ == core::kAlert ? 0 : view_->SelectedId();
}

Selection frmKestrom::Selected() const {
    return {selectedDb_, SelectedId()};
}

void frmKestrom::EnableEditButtons() {
    const bool hasEditor = services_.hasEditor && services_.hasEditor(selectedDb_);
    const Availability can = shell::EnableEditButtons({selectedDb_, SelectedId(), hasEditor});
    ui_->mnuAdd->setEnabled(can.add);
    ui_->mnuEdit->setEnabled(can.edit);
    ui_->mnuCopy->setEnabled(can.edit);
    ui_->mnuPrintGrid->setEnabled(can.printGrid && services_.viewReport);
    ui_->mnuDelete->setEnabled(can.record);
    for (QAction* const item : {ui_->mnuPrint, ui_->mnuPayRent, ui_->mnuPayMortgage,
                                ui_->mnuPhotoReel, ui_->mnuPrintDoc, ui_->mnuPrintDocMgmt}) {
        item->setEnabled(can.record && services_.commands.Has(item->objectName()));
    }
    const bool isList = selectedDb_ != core::kAlert;
    ui_->mnuFind->setEnabled(isList);
    ui_->mnuCopyRows->setEnabled(can.record);
}

void frmKestrom::ShowExtraItems() {
    const ExtraItems extra = ExtraItemsOf(selectedDb_);
    ui_->mnuRefreshSummary->setVisible(extra.refreshSummary);
    ui_->mnuPayRent->setVisible(extra.payRent);
    ui_->mnuPayMortgage->setVisible(extra.payMortgage);
    ui_->mnuDatabaseSep->setVisible(extra.Separator());
    ui_->mnuCopy->setVisible(extra.copy);
}

void frmKestrom::ShowStatus() {
    const bool isList = selectedDb_ != core::kAlert;
    if (isList) {
        ui_->statusBar->showMessage(view_->Status());
    } else {
        ui_->statusBar->clearMessage();
    }
    narrowed_->setText(isList ? view_->NarrowedStatus() : QString());
}

void frmKestrom::ShowBackupNotice() {
    const std::string notice = services_.backupNotice ? services_.backupNotice() : std::string();
    backup_->setText(ToScreen(notice));
    backup_->setVisible(!notice.empty());
}

void frmKestrom::RefreshHome() {
    if (hasEnded_) return;
    core::forms::Guarded([this] { home_->Refresh(); });
}

void frmKestrom::Tick() {
    if (loading_ || updating_ || hasEnded_) return;
    dayChange_.Tick([this] {
        const QScopedValueRollback updating(updating_, true);
        RunBooks(digest_);
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
