#include "records/screens/frmWoItem.h"

#include "core/RecordKinds.h"
#include "platform/qt/Text.h"
#include "platform/system/Clock.h"
#include "records/WorkOrderRules.h"
#include "ui_frmWoItem.h"

namespace records::screens {

frmWoItem::frmWoItem(QWidget* parent)
    : RecordForm({core::kWorkOrderHistory, "WOItem", "IdWOItem"}, parent),
      ui_(std::make_unique<Ui::frmWoItem>()) {
    ui_->setupUi(this);
    Wire();
}

frmWoItem::~frmWoItem() = default;

void frmWoItem::Setup(std::int32_t id, std::int32_t idWorkOrder) {
    idWorkOrder_ = idWorkOrder;
    OpenRecord(
        id, [] {}, [this] { ui_->dp->SetDay(platform::Today()); });
}

void frmWoItem::ShowRow(platform::Recordset& row) {
    RecordForm::ShowRow(row);
    if (!row["IdWorkOrder"].IsNull()) idWorkOrder_ = row["IdWorkOrder"].AsLong();
}

void frmWoItem::WriteRow(platform::Recordset& row) {
    RecordForm::WriteRow(row);
    if (WritesNewRow()) row["IdWorkOrder"].Set(idWorkOrder_);
}

void frmWoItem::ShowCaption() {
    setWindowTitle(Id() == 0 ? tr("Adding New History")
                             : tr("History: %1").arg(ui_->txtDescription->text()));
}

std::vector<std::string> frmWoItem::Errors() {
    return HistoryErrors(platform::qt::FromScreen(ui_->txtDescription->text()));
}

} // namespace records::screens
