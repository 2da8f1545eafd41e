#include "records/screens/frmRoom.h"

#include "core/RecordKinds.h"
#include "platform/qt/Text.h"
#include "records/FurnishingRules.h"
#include "ui_frmRoom.h"

namespace records::screens {

frmRoom::frmRoom(QWidget* parent)
    : FurnishingForm(core::kRoom, NoUnit::Refused, parent), ui_(std::make_unique<Ui::frmRoom>()) {
    ui_->setupUi(this);
    WireFurnishing(*ui_->cboUnit, *ui_->cmdAction);
}

frmRoom::~frmRoom() = default;

QString frmRoom::Name() const {
    return ui_->cboRoomType->currentText();
}

std::vector<std::string> frmRoom::Errors() {
    return RoomErrors(platform::qt::FromScreen(Name()));
}

} // namespace records::screens
