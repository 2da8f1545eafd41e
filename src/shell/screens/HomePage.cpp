#include "shell/screens/HomePage.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>
#include <QVBoxLayout>
#include <exception>

#include <fmt/core.h>

#include "alerts/FirstSteps.h"
#include "alerts/screens/Alerts.h"
#include "alerts/screens/PicturePage.h"
#include "core/EditRecord.h"
#include "core/Globals.h"
#include "core/Settings.h"
#include "core/forms/ErrorRoll.h"
#include "core/forms/Notice.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/qt/Icons.h"
#include "platform/qt/Text.h"
#include "platform/system/Paths.h"
#include "shell/screens/frmPosted.h"

namespace shell::screens {

namespace {

constexpr int kAlertsTab = 0;
constexpr int kPictureTab = 1;
constexpr std::string_view kHomeKey = R"(SOFTWARE\Vestrel\Kestrom\HomePage)";
constexpr std::string_view kShowPicture = "ShowPicture";
constexpr std::string_view kPage = "Page";

/// Returns the file for notes that can't be saved beside their database.
std::filesystem::path RescueFile() {
    return platform::DataHome() / "Vestrel" / "Notes that were not saved.txt";
}

} // namespace

HomePage::HomePage(QWidget* parent)
    : QWidget(parent),
      notesFault_(core::forms::MakeNotice(*this, QStringLiteral("lblNotesFault"))),
      books_(new QLabel(this)),
      firstStep_(new QWidget(this)),
      firstStepText_(new QLabel(firstStep_)),
      firstStepCommand_(new QPushButton(firstStep_)),
      posted_(new QToolButton(this)),
      lookAhead_(new QToolButton(this)),
      tabs_(new QTabWidget(this)),
      alerts_(new alerts::screens::Alerts(tabs_)),
      picture_(new alerts::screens::PicturePage(tabs_)) {
    SetUpNotices();
    alerts_->setObjectName(QStringLiteral("ucAlerts"));
    posted_->setObjectName(QStringLiteral("btnPosted"));
    posted_->setIcon(platform::qt::LoadIcon(QStringLiteral("calendar")));
    posted_->setToolTip(tr("Show the rows that were posted while you were away"));
    posted_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    posted_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    posted_->setFocusPolicy(Qt::StrongFocus);
    posted_->hide();
    lookAhead_->setObjectName(QStringLiteral("btnLookAhead"));
    lookAhead_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    lookAhead_->setFocusPolicy(Qt::StrongFocus);
    auto* const rows = new QVBoxLayout(this);
    rows->addWidget(notesFault_);
    rows->addWidget(books_);
    rows->addWidget(firstStep_);
    auto* const run = new QHBoxLayout;
    run->addWidget(posted_, 1);
    run->addStretch();
    run->addWidget(lookAhead_);
    rows->addLayout(run);
    rows->addWidget(tabs_, 1);
    SetUpTabs();
    setFocusProxy(alerts_);
    connect(posted_, &QToolButton::clicked, this, [this] {
        if (digest_ != nullptr) (new frmPosted)->Setup(*digest_);
    });
    connect(alerts_, &alerts::screens::Alerts::NotesFault, this, &HomePage::ShowNotesFault);
}

void HomePage::SetUpTabs() {
    tabs_->setObjectName(QStringLiteral("tabHome"));
    tabs_->setDocumentMode(true);
    tabs_->addTab(alerts_, tr("What needs attention"));
    tabs_->addTab(picture_, tr("The portfolio as a picture"));
    const bool hasPicture = core::GetRegFlag(kHomeKey, kShowPicture, true);
    tabs_->setTabVisible(kPictureTab, hasPicture);
    tabs_->tabBar()->setVisible(hasPicture);
    if (hasPicture) tabs_->setCurrentIndex(core::GetRegNumber(kHomeKey, kPage, 0) == kPictureTab);
    connect(tabs_, &QTabWidget::currentChanged, this, [this](int page) {
        if (HasPicture()) core::SetRegNumber(kHomeKey, kPage, page);
        if (IsPictureCurrent()) core::forms::Guarded([this] { picture_->Refresh(); });
    });
}

bool HomePage::IsPictureCurrent() const {
    return tabs_->currentIndex() == kPictureTab;
}

bool HomePage::HasPicture() const {
    return tabs_->isTabVisible(kPictureTab);
}

void HomePage::SetPicture(bool shown) {
    core::SetRegFlag(kHomeKey, kShowPicture, shown);
    tabs_->setTabVisible(kPictureTab, shown);
    tabs_->tabBar()->setVisible(shown);
    tabs_->setCurrentIndex(shown ? kPictureTab : kAlertsTab);
}

void HomePage::SetUpNotices() {
    books_->setObjectName(QStringLiteral("lblBooks"));
    books_->setTextFormat(Qt::PlainText);
    books_->setWordWrap(true);
    books_->setFrameShape(QFrame::StyledPanel);
    books_->setMargin(6);
    books_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    books_->hide();
    firstStep_->setObjectName(QStringLiteral("firstStep"));
    firstStepText_->setObjectName(QStringLiteral("lblFirstStep"));
    firstStepText_->setWordWrap(true);
    firstStepCommand_->setObjectName(QStringLiteral("cmdFirstStep"));
    auto* const line = new QHBoxLayout(firstStep_);
    line->setContentsMargins(0, 0, 0, 0);
    line->addWidget(firstStepText_, 1);
    line->addWidget(firstStepCommand_);
    firstStep_->hide();
    connect(firstStepCommand_, &QPushButton::clicked, this, [this] {
        if (step_ != nullptr) core::forms::Guarded([this] { core::EditRecord(step_->kind, 0); });
    });
}

void HomePage::ShowBooksNotice() {
    const std::string& fault = core::App().OpenFault;
    if (!fault.empty()) {
        books_->setText(
            tr("The books %1 can't be opened, so the lists are empty: %2")
                .arg(platform::qt::ToScreen(core::App().DbFile), platform::qt::ToScreen(fault)));
    }
    const bool isReadOnly = fault.empty() && core::App().Connection.IsReadOnly();
    if (isReadOnly) {
        books_->setText(
            tr("The books %1 can't be written to, so they are open for reading only and "
               "nothing is charged.")
                .arg(platform::qt::ToScreen(core::App().DbFile)));
    }
    books_->setVisible(!fault.empty() || isReadOnly);
}

void HomePage::ShowNotesFault(const QString& reason) {
    notesFault_->setText(
        tr("The notes can't be saved: %1\nThey stay here, and saving them is tried "
           "again.")
            .arg(reason));
    notesFault_->setVisible(!reason.isEmpty());
}

void HomePage::ShowFirstStep() {
    step_ = alerts::NextFirstStep();
    firstStep_->setVisible(step_ != nullptr);
    if (step_ == nullptr) return;
    firstStepText_->setText(platform::qt::ToScreen(step_->text));
    firstStepCommand_->setText(platform::qt::ToScreen(step_->command));
}

void HomePage::BindWizards(QAction& lease, QAction& mortgage) {
    alerts_->BindItem(QStringLiteral("WIZ_LEASE"), lease);
    alerts_->BindItem(QStringLiteral("WIZ_MORTGAGE"), mortgage);
}

void HomePage::BindLookAhead(QAction& action) {
    lookAhead_->setDefaultAction(&action);
}

void HomePage::Refresh() {
    ShowBooksNotice();
    ShowFirstStep();
    // The picture is read only while it is visible.
    if (IsPictureCurrent()) picture_->Refresh();
    alerts_->Refresh();
}

bool HomePage::AskToClose() {
    try {
        alerts_->SaveNotes();
        return true;
    } catch (const std::exception& failure) {
        return platform::TheDialogs().AskYesNo(
            "Notes",
            fmt::format("{}\n\nClose all the same? The notes will then be kept in\n{}",
                        failure.what(), RescueFile().string()),
            platform::Icon::Exclamation);
    }
}

void HomePage::SaveNotesOrRescue() {
    try {
        alerts_->SaveNotes();
    } catch (const std::exception&) {
        std::filesystem::create_directories(RescueFile().parent_path());
        platform::WriteFileAtomically(RescueFile(), alerts_->NotesText());
    }
}

void HomePage::ShowDigest(const RunDigest& digest) {
    digest_ = &digest;
    QString line = platform::qt::ToScreen(digest.Line());
    const QString faults = platform::qt::ToScreen(digest.FaultLine());
    if (!line.isEmpty() && !faults.isEmpty()) line += QStringLiteral("; ");
    line += faults;
    posted_->setText(line.replace(QLatin1Char('&'), QLatin1String("&&")));
    posted_->setAccessibleName(line);
    posted_->setVisible(!line.isEmpty());
}

} // namespace shell::screens
