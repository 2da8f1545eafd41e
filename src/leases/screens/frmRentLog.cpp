#include "leases/screens/frmRentLog.h"

#include <QPushButton>

#include "core/RecordKinds.h"
#include "core/RecordNotices.h"
#include "core/Session.h"
#include "core/binding/ComboList.h"
#include "core/binding/Tags.h"
#include "leases/ChargeEditor.h"
#include "platform/database/FieldReadings.h"
#include "platform/qt/Text.h"
#include "platform/system/Clock.h"
#include "platform/values/Errors.h"
#include "ui_frmRentLog.h"

namespace leases::screens {

using platform::qt::ToScreen;

namespace {

/// Returns whether there is a row; tells the user unless there is exactly one.
bool IsThere(std::int32_t id) {
    platform::Recordset rows;
    return core::OneRecordFound(
        core::OpenRecordset(rows, "SELECT IdRentLog FROM RentLog WHERE IdRentLog = ?",
                            platform::CursorMode::ReadOnly, {id}));
}

} // namespace

frmRentLog::frmRentLog(QWidget* parent)
    : RecordForm({core::kRentLog, "RentLog", "IdRentLog"}, parent),
      ui_(std::make_unique<Ui::frmRentLog>()) {
    ui_->setupUi(this);
    ui_->dpDatePosted->SetRequired(true);
    Wire();
    ui_->cmdAction->Apply().hide();
    QPushButton& save = ui_->cmdAction->Close();
    save.setText(tr("&Save"));
    core::binding::SetTag(save, "SAVE");
}

frmRentLog::~frmRentLog() = default;

void frmRentLog::Setup(std::int32_t id, std::int32_t idLease, TransactionClass rentClass) {
    entry_ = {.idLease = idLease, .rentClass = rentClass};
    const bool isNew = id == 0 || !IsThere(id);
    OpenRecord(
        isNew ? 0 : id,
        [this, rentClass] {
            for (const std::string& word : ChargeCategories(rentClass))
                ui_->cboCategory->addItem(ToScreen(word));
        },
        [this] {
            ui_->cboCategory->setCurrentIndex(ui_->cboCategory->count() - 1);
            ui_->dpDatePosted->SetDay(platform::Today());
            ui_->txtAmount->SetAmount({});
        });
    ui_->txtAmount->setFocus();
    ui_->txtAmount->selectAll();
}

void frmRentLog::ShowRow(platform::Recordset& row) {
    RecordForm::ShowRow(row);
    entry_.idLease = row["IdLease"].AsLong();
    entry_.idTransaction = row["IdTransaction"].AsLong();
    entry_.rentClass = TransactionClass{row["Class"].AsInteger()};
    entry_.flags = RentFlags{platform::ShortOf(row["Flags"])};
}

void frmRentLog::WriteRow(platform::Recordset& row) {
    RecordForm::WriteRow(row);
    if (IsTouched(*ui_->txtAmount)) row["Amount"].Set(InCents(row["Amount"].AsCurrency()));
    if (WritesNewRow()) {
        row["IdLease"].Set(entry_.idLease);
        row["IdTransaction"].Set(entry_.idTransaction);
        row["Class"].Set(static_cast<std::int16_t>(entry_.rentClass));
        row["Flags"].Set(static_cast<std::int16_t>(entry_.flags));
    }
    SaveCharge(row, entry_.idTransaction);
}

/// A stored row may stay without a date, but a new one needs it.
std::vector<std::string> frmRentLog::Errors() {
    const auto day = ui_->dpDatePosted->Day();
    const bool isBlank = day && !day->IsSet();
    if (!isBlank || (Id() != 0 && !IsTouched(*ui_->dpDatePosted))) return {};
    return {"A date must be entered."};
}

void frmRentLog::ShowCaption() {
    setWindowTitle(ToScreen(ChargeCaption(entry_.rentClass)));
}

} // namespace leases::screens
