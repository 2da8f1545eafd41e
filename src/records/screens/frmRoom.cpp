#include "records/screens/frmRoom.h"

#include "core/RecordKinds.h"
#include "core/binding/ComboList.h"
#include "core/forms/TabPages.h"
#include "documents/screens/FileObjects.h"
#include "platform/qt/Text.h"
#include "records/FurnishingRules.h"
#include "records/screens/Panels.h"
#include "records/screens/PickFields.h"
#include "ui_frmRoom.h"

namespace records::screens {

frmRoom::frmRoom(QWidget* parent)
    : RecordForm({core::kRoom, "Room", "IdRoom"}, parent), ui_(std::make_unique<Ui::frmRoom>()) {
    ui_->setupUi(this);
    files_ = PlacePanel(new documents::screens::FileObjects, *ui_->tabFiles, "ucFOB");
    Wire();
    core::forms::PutLastInTabOrder(*this, *ui_->cmdAction);
}

frmRoom::~frmRoom() = default;

void frmRoom::Setup(std::int32_t id, std::int32_t parentUnit) {
    OpenRecord(id, [this, parentUnit] {
        LoadPickFields(*this);
        core::binding::FillList(core::kUnit, *ui_->cboUnit, {.selectedId = parentUnit});
    });
}

void frmRoom::ShowCaption() {
    setWindowTitle(Id() == 0 ? tr("Adding New Room")
                             : tr("Room: %1").arg(ui_->cboRoomType->currentText()));
    files_->SetRecord(core::kRoom, Id());
}

std::vector<std::string> frmRoom::Errors() {
    return RoomErrors(platform::qt::FromScreen(ui_->cboRoomType->currentText()));
}

void frmRoom::AfterSave() {
    SavePickFields(*this);
}

void frmRoom::Refresh(std::int16_t kind) {
    if (kind == core::kUnit || kind == core::kBuilding)
        core::binding::FillList(core::kUnit, *ui_->cboUnit);
}

} // namespace records::screens
