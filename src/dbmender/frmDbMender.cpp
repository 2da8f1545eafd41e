#include "dbmender/frmDbMender.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QScopedValueRollback>
#include <array>

#include "core/RegistryKeys.h"
#include "core/binding/Wiring.h"
#include "exchange/screens/frmRestore.h"
#include "platform/dialogs/Choosers.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/qt/Icons.h"
#include "platform/qt/PressGuard.h"
#include "platform/qt/Text.h"
#include "platform/system/Clock.h"
#include "platform/system/Paths.h"
#include "platform/values/Errors.h"
#include "ui_frmDbMender.h"

namespace dbmender {

using platform::qt::FromScreen;
using platform::qt::ToScreen;

namespace {

constexpr std::array kRemedies = {Remedy::WriteVersion, Remedy::UseExisting, Remedy::MakeEmpty,
                                  Remedy::MakeSample};
constexpr std::string_view kTitle = "Database Mender";

/// Thrown to stop making a sample when the user cancels it.
struct Cancelled {};

} // namespace

frmDbMender::frmDbMender(MenderLine line, StartProgram start, QWidget* parent)
    : QDialog(parent),
      ui_(std::make_unique<Ui::frmDbMender>()),
      line_(std::move(line)),
      start_(std::move(start)) {
    platform::qt::GuardPresses();
    ui_->setupUi(this);
    core::binding::WireControls(*this);
    ui_->prgWork->hide();
    const platform::Date today = platform::Today();
    ui_->dpSince->SetDay(platform::Date(today.Year(), today.Month(), 1));
    ui_->lblPicture->setPixmap(
        platform::qt::LoadIcon(QStringLiteral("vestrel")).pixmap(ui_->lblPicture->minimumSize()));
    if (line_.dbName != core::kDefaultDatabase) {
        setWindowTitle(windowTitle() + QStringLiteral(" - ") + ToScreen(line_.dbName));
    }
    for (const Remedy remedy : kRemedies) {
        connect(&ButtonOf(remedy), &QRadioButton::toggled, this, [this](bool on) {
            if (on) RemedyChosen();
        });
    }
    connect(ui_->txtFolder, &QLineEdit::textChanged, this, &frmDbMender::ShowObjection);
    connect(ui_->txtRent, &QLineEdit::textChanged, this, &frmDbMender::ShowObjection);
    connect(ui_->dpSince, &QLineEdit::textChanged, this, &frmDbMender::ShowObjection);
    connect(ui_->cmdBrowse, &QPushButton::clicked, this, &frmDbMender::Browse);
    connect(ui_->cmdMend, &QPushButton::clicked, this, &frmDbMender::Mend);
    connect(ui_->cmdRestore, &QPushButton::clicked, this, &frmDbMender::Restore);
    connect(ui_->cmdCancel, &QPushButton::clicked, this, &frmDbMender::reject);
}

frmDbMender::~frmDbMender() = default;

void frmDbMender::Setup() {
    diagnosis_ = ExamineRegistered(line_.dbName);
    ShowFinding();
    OfferRemedies();
    show();
    MakeRoom();
    if (line_.warns) {
        platform::TheDialogs().ShowMessage(kTitle,
                                           "Close all other Vestrel programs before you go on.",
                                           platform::Icon::Information);
    }
}

void frmDbMender::SetupFor(Beginning beginning, std::function<void()> back) {
    back_ = std::move(back);
    line_.warns = false; // no other program has been used yet
    Setup();
    ui_->lblFinding->setText(
        tr("Your books are in one folder of this computer. The one below is fine, unless you "
           "prefer another."));
    switch (beginning) {
        case Beginning::Create:
            ui_->optMakeEmpty->setChecked(true);
            ui_->txtCompany->setFocus();
            break;
        case Beginning::OpenExisting:
            ui_->optUseExisting->setChecked(true);
            Browse();
            break;
        case Beginning::Sample:
            ui_->optMakeSample->setChecked(true);
            break;
        case Beginning::Restore:
            Restore();
            break;
    }
}

void frmDbMender::ShowFinding() {
    ui_->lblFinding->setText(ToScreen(Explain(diagnosis_)));
}

void frmDbMender::OfferRemedies() {
    const std::vector<Remedy> offered = RemediesFor(diagnosis_);
    for (const Remedy remedy : kRemedies)
        ButtonOf(remedy).setVisible(std::ranges::count(offered, remedy) > 0);
    ButtonOf(offered.front()).setChecked(true);
}

/// Keeps a folder entered by the user; replaces a proposal by the next one.
void frmDbMender::RemedyChosen() {
    const Remedy remedy = Chosen().remedy;
    const bool isOwn = !ui_->txtFolder->text().isEmpty() && ui_->txtFolder->text() != proposed_;
    if (!isOwn || remedy == Remedy::WriteVersion) {
        proposed_ = ToScreen(ProposedFolder(diagnosis_, remedy).string());
        ui_->txtFolder->setText(proposed_);
    }
    ui_->txtFolder->setEnabled(remedy != Remedy::WriteVersion);
    ui_->cmdBrowse->setEnabled(remedy != Remedy::WriteVersion);
    ui_->grpFirst->setVisible(remedy == Remedy::MakeEmpty);
    ShowObjection();
}

void frmDbMender::ShowObjection() {
    std::string objection = Objection(Chosen());
    const bool isMaking = ui_->optMakeEmpty->isChecked();
    if (objection.empty() && isMaking && !ui_->txtRent->Amount()) {
        objection = "The rent is not an amount of money.";
    }
    if (objection.empty() && isMaking && !ui_->dpSince->IsValid()) {
        objection = "The day since which the books are kept is not a valid date.";
    }
    // The finding at the top says that already.
    if (!objection.empty() && objection == FromScreen(ui_->lblFinding->text())) {
        objection = "Choose another folder, or one of the other answers.";
    }
    ui_->lblObjection->setText(ToScreen(objection));
    ui_->cmdMend->setEnabled(objection.empty());
    MakeRoom();
}

/// Makes room for long paths, which wrap into more lines.
void frmDbMender::MakeRoom() {
    const int wanted = layout()->totalHeightForWidth(width());
    if (height() < wanted) resize(width(), wanted);
}

void frmDbMender::Browse() {
    const auto folder = platform::TheChoosers().Folder("Choose the folder of the database",
                                                       FromScreen(ui_->txtFolder->text()));
    if (folder) ui_->txtFolder->setText(ToScreen(*folder));
}

void frmDbMender::Mend() {
    const Choice choice = Chosen();
    try {
        SetWorking(true);
        Apply(choice, line_.dbName, [this](int daysDone, int days) {
            ui_->prgWork->setRange(0, days);
            ui_->prgWork->setValue(daysDone);
            QCoreApplication::processEvents();
            if (cancelled_) throw Cancelled();
        });
        SetWorking(false);
    } catch (const Cancelled&) {
        SetWorking(false);
        ShowObjection();
        return;
    } catch (const std::exception& failure) {
        SetWorking(false);
        platform::TheDialogs().ShowMessage(kTitle, failure.what(), platform::Icon::Critical);
        ShowObjection();
        return;
    }
    StartAgain();
}

std::string frmDbMender::Program() const {
    if (!line_.appStart.empty()) return line_.appStart;
    return (platform::ExecutablePath().parent_path() / "kestrom").string();
}

void frmDbMender::Restore() {
    (new exchange::screens::frmRestore(this))->Setup([this](const std::filesystem::path& folder) {
        OpenRestored(folder);
    });
}

void frmDbMender::OpenRestored(const std::filesystem::path& folder) {
    ui_->optUseExisting->setChecked(true);
    ui_->txtFolder->setText(ToScreen(folder.string()));
    const std::string program = Program();
    if (!platform::FileExists(program) ||
        !start_(program, {"--data", folder.string(), "--read-only"})) {
        platform::TheDialogs().ShowMessage(kTitle, program + " can't be started.",
                                           platform::Icon::Exclamation);
    }
}

void frmDbMender::StartAgain() {
    const std::string program = Program();
    std::vector<std::string> arguments;
    if (line_.dbName != core::kDefaultDatabase) arguments.push_back("/altdb=" + line_.dbName);
    if (!platform::FileExists(program) || !start_(program, arguments)) {
        platform::TheDialogs().ShowMessage(
            kTitle, "The database is ready, but " + program + " can't be started.",
            platform::Icon::Exclamation);
    }
    accept();
}

void frmDbMender::SetWorking(bool working) {
    working_ = working;
    cancelled_ = false;
    ui_->grpRemedies->setEnabled(!working);
    ui_->grpFirst->setEnabled(!working);
    ui_->cmdMend->setEnabled(!working);
    ui_->prgWork->setRange(0, 0);
    ui_->prgWork->setVisible(working);
    ui_->lblObjection->setVisible(!working);
    QCoreApplication::processEvents();
}

Choice frmDbMender::Chosen() const {
    Choice choice;
    for (const Remedy remedy : kRemedies) {
        if (ButtonOf(remedy).isChecked()) choice.remedy = remedy;
    }
    choice.folder = FromScreen(ui_->txtFolder->text().trimmed());
    choice.first = {.company = FromScreen(ui_->txtCompany->text()),
                    .address = FromScreen(ui_->txtAddress->text()),
                    .unit = FromScreen(ui_->txtUnit->text()),
                    .rent = ui_->txtRent->Amount().value_or(platform::Currency()),
                    .since = ui_->dpSince->Day().value_or(platform::Date())};
    return choice;
}

QRadioButton& frmDbMender::ButtonOf(Remedy remedy) const {
    switch (remedy) {
        case Remedy::WriteVersion:
            return *ui_->optWriteVersion;
        case Remedy::MakeEmpty:
            return *ui_->optMakeEmpty;
        case Remedy::MakeSample:
            return *ui_->optMakeSample;
        case Remedy::UseExisting:
            break;
    }
    return *ui_->optUseExisting;
}

void frmDbMender::reject() {
    if (working_) {
        cancelled_ = true;
        return;
    }
    if (back_) back_();
    QDialog::reject();
}

void frmDbMender::closeEvent(QCloseEvent* event) {
    if (working_) {
        cancelled_ = true;
        event->ignore();
        return;
    }
    QDialog::closeEvent(event);
}

} // namespace dbmender
