#include "records/screens/frmContent.h"

#include "core/RecordKinds.h"
#include "core/binding/ComboList.h"
#include "core/forms/TabPages.h"
#include "documents/screens/FileObjects.h"
#include "platform/qt/Text.h"
#include "records/FurnishingRules.h"
#include "records/screens/Panels.h"
#include "records/screens/PickFields.h"
#include "ui_frmContent.h"

namespace records::screens {

frmContent::frmContent(QWidget* parent)
    : RecordForm({core::kContent, "Content", "IdContent"}, parent),
      ui_(std::make_unique<Ui::frmContent>()) {
    ui_->setupUi(this);
    files_ = PlacePanel(new documents::screens::FileObjects, *ui_->tabFiles, "ucFOB");
    Wire();
    core::forms::PutLastInTabOrder(*this, *ui_->cmdAction);
}

frmContent::~frmContent() = default;

void frmContent::Setup(std::int32_t id, std::int32_t parentUnit) {
    OpenRecord(id, [this, parentUnit] {
        LoadPickFields(*this);
        core::binding::FillList(core::kUnit, *ui_->cboUnit, {.selectedId = parentUnit});
    });
}

void frmContent::ShowCaption() {
    setWindowTitle(Id() == 0 ? tr("Adding New Content")
                             : tr("Content: %1").arg(ui_->txtDescription->text()));
    files_->SetRecord(core::kContent, Id());
}

std::vector<std::string> frmContent::Errors() {
    return ContentErrors(platform::qt::FromScreen(ui_->txtDescription->text()));
}

void frmContent::AfterSave() {
    SavePickFields(*this);
}

void frmContent::Refresh(std::int16_t kind) {
    if (kind == core::kUnit || kind == core::kBuilding)
        core::binding::FillList(core::kUnit, *ui_->cboUnit);
}

} // namespace records::screens
