#include "records/screens/frmContent.h"

#include "core/RecordKinds.h"
#include "platform/qt/Text.h"
#include "records/FurnishingRules.h"
#include "ui_frmContent.h"

namespace records::screens {

frmContent::frmContent(QWidget* parent)
    : FurnishingForm(core::kContent, NoUnit::Refused, parent),
      ui_(std::make_unique<Ui::frmContent>()) {
    ui_->setupUi(this);
    WireFurnishing(*ui_->cboUnit, *ui_->cmdAction);
}

frmContent::~frmContent() = default;

QString frmContent::Name() const {
    return ui_->txtDescription->text();
}

std::vector<std::string> frmContent::Errors() {
    return ContentErrors(platform::qt::FromScreen(Name()));
}

} // namespace records::screens
