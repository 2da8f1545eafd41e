// The building's screen: construction, reading and saving.

#include "records/screens/frmBuilding.h"

#include "core/Codes.h"
#include "core/Configuration.h"
#include "core/Descriptions.h"
#include "core/Globals.h"
#include "core/Lookups.h"
#include "core/RecordKinds.h"
#include "core/Rows.h"
#include "core/binding/ComboList.h"
#include "core/forms/TabPages.h"
#include "platform/database/FieldReadings.h"
#include "platform/dialogs/Dialogs.h"
#include "platform/qt/Text.h"
#include "records/BuildingRules.h"
#include "records/FurnishingRules.h"
#include "records/screens/PickFields.h"
#include "ui_frmBuilding.h"
#include "ui_frmBuildingFinancial.h"
#include "ui_frmBuildingPlace.h"
#include "ui_frmBuildingServices.h"
#include "ui_frmBuildingUnit.h"

namespace records::screens {

using core::binding::FillFromCommaList;
using core::binding::FillList;
using core::binding::ShownFields;
using core::binding::WriteFields;
using platform::qt::FromScreen;
using platform::qt::ToScreen;

namespace {

constexpr std::string_view kBuildingTable = "Building";
constexpr std::string_view kUnitTable = "Unit";

platform::Recordset FindById(std::string_view table, std::int32_t id) {
    return core::Read(fmt::format("SELECT * FROM {0} WHERE Id{0} = ?", table), {id});
}

} // namespace

frmBuilding::frmBuilding(QWidget* parent)
    : RecordForm(
          {core::kBuilding, std::string(kBuildingTable), "IdBuilding", std::string(kBuildingTable)},
          parent),
      ui_(std::make_unique<Ui::frmBuilding>()),
      place_(std::make_unique<Ui::frmBuildingPlace>()),
      unit_(std::make_unique<Ui::frmBuildingUnit>()),
      financial_(std::make_unique<Ui::frmBuildingFinancial>()),
      services_(std::make_unique<Ui::frmBuildingServices>()) {
    ui_->setupUi(this);
    place_->setupUi(ui_->tabBuilding);
    unit_->setupUi(ui_->tabUnit);
    financial_->setupUi(ui_->tabFinancial);
    MakePanels();
    services_->setupUi(ui_->tabServices);
    MakeMenus();
    Wire();
    core::forms::PutLastInTabOrder(*this, *ui_->cmdAction);
    Connect();
}

frmBuilding::~frmBuilding() = default;

void frmBuilding::Setup(std::int32_t idBuilding, std::int32_t idUnit, std::int32_t fromUnit) {
    idUnit_ = idUnit;
    if (idBuilding == 0 && idUnit != 0) idBuilding = core::GetUnitBuilding(idUnit);
    OpenRecord(
        idBuilding,
        [this] {
            FillLists();
            unitFields_.KeepBlanks(*this);
        },
        [this, fromUnit] { Propose(fromUnit); });
    place_->txtAddress->setFocus();
}

void frmBuilding::FillLists() {
    LoadPickFields(*this);
    core::binding::FillFromWords(*unit_->cboUnitStatus, core::kUnitStatuses);
    unit_->cboUnitStatus->setCurrentIndex(0);
    FillFromCommaList(*services_->cboHOAFrequency, kHoaFrequencies);
    FillFromCommaList(*financial_->cboDeprMethod, kStraightLine);
    financial_->cboDeprMethod->setCurrentIndex(0);
    FillAccounts();
    FillFreeAccounts();
}

void frmBuilding::FillAccounts() {
    const auto fill = [](core::RecordKind kind, std::initializer_list<QComboBox*> lists) {
        for (QComboBox* const list : lists)
            FillList(kind, *list, {.addNone = true});
    };
    fill(core::kAccount, {services_->cboHOAAccount, services_->cboSecAccount});
    fill(core::kInsuranceAccount, {services_->cboInsurance});
    fill(core::kUtilityAccount,
         {services_->cboElectricAccount, services_->cboWaterAccount, services_->cboGasAccount,
          services_->cboSewageAccount, services_->cboCableAccount, services_->cboTrashAccount});
}

/// Accounts are only proposed if any name may be typed; the typed text stays.
void frmBuilding::FillFreeAccounts() {
    for (QComboBox* const combo : {financial_->cboPurchFrom, financial_->cboPurchAgent,
                                   financial_->cboSoldTo, financial_->cboCloseAgent}) {
        FillList(core::kAccount, *combo, {.keepText = true});
    }
}

void frmBuilding::Propose(std::int32_t fromUnit) {
    idUnit_ = 0;
    financial_->txtDeprPeriod->setText(ToScreen(kUsualDeprPeriod));
    place_->txtCounty->setText(ToScreen(core::Config().DefaultCounty));
    place_->txtState->setText(ToScreen(core::Config().DefaultState));
    if (fromUnit == 0) return;
    // Shown first as a stored building, so that the lists add values that they don't offer, and
    // then as the copy that a new building starts with.
    ShownFields building{std::string(kBuildingTable)};
    ShownFields unit{std::string(kUnitTable)};
    platform::Recordset row = FindById(kBuildingTable, core::GetUnitBuilding(fromUnit));
    if (!row.Eof()) building.Show(*this, row);
    row = FindById(kUnitTable, fromUnit);
    if (!row.Eof()) unit.Show(*this, row);
}

void frmBuilding::ShowRow(platform::Recordset& row) {
    RecordForm::ShowRow(row);
    multi_ = platform::FlagOf(row["Multi"]);
    ShowUnit();
}

/// Returns whether the unit was found and belongs to the building.
bool frmBuilding::IsHere(platform::Recordset& unit) const {
    return !unit.Eof() && platform::IdOf(unit["IdBuilding"]) == Id();
}

/// Shows the unit, or the building's first if none was asked for or it is no longer here.
void frmBuilding::ShowUnit() {
    platform::Recordset row = FindById(kUnitTable, idUnit_);
    if (!IsHere(row)) {
        const auto units = UnitsOf(Id());
        idUnit_ = units.empty() ? 0 : units.front().id;
        row = FindById(kUnitTable, idUnit_);
    }
    unitFields_.ShowBlanks(*this);
    if (row.Eof()) row = core::NewRow(kUnitTable); // never written: what is entered differs from it
    unitFields_.Show(*this, row);
}

void frmBuilding::RowMissing() {
    idUnit_ = 0;
    multi_ = false;
}

void frmBuilding::ShowCaption() {
    const QString address = place_->txtAddress->text();
    const bool isNew = Id() == 0;
    setWindowTitle(isNew ? tr("Adding New Single Unit Building") : tr("Building: %1").arg(address));
    ui_->lblTitle->setText(isNew ? tr("New Building (Press Apply to Save)")
                                 : tr("Editing Building: %1").arg(address));
    FillUnits();
    ShowPanels();
}

std::vector<core::forms::Subject> frmBuilding::Subjects() const {
    return {{core::kBuilding, Id()}, {core::kUnit, Id() == 0 ? 0 : idUnit_}};
}

std::vector<std::string> frmBuilding::Errors() {
    return BuildingErrors(FromScreen(place_->txtAddress->text()));
}

/// A unit that was deleted elsewhere is saved again only if the user means it.
bool frmBuilding::Agreed() {
    const bool isGone = Dirty() && Id() != 0 && idUnit_ != 0 &&
                        core::RecordExists(core::kBuilding, Id()) &&
                        !core::RecordExists(core::kUnit, idUnit_);
    return !isGone || platform::TheDialogs().AskYesNo(
                          "Deleted", "This unit was deleted while it was open here. Save it again?",
                          platform::Icon::Question);
}

/// Saves the building and its unit, both or neither.
void frmBuilding::Store() {
    const std::int32_t building = Id();
    const std::int32_t unit = idUnit_;
    try {
        platform::UnitOfWork work(core::App().Connection);
        StoreBuilding();
        // A building whose units were all moved away gets none unless one is entered.
        if (idUnit_ != 0 || WritesNewRow() || !unitFields_.Touched(*this).empty()) StoreUnit();
        work.Commit();
    } catch (...) {
        SetId(building);
        idUnit_ = unit;
        throw;
    }
}

void frmBuilding::StoreBuilding() {
    platform::Recordset row;
    FindRowToWrite(row);
    WriteRow(row);
    if (WritesNewRow() && row["Multi"].IsNull()) row["Multi"].Set(false);
    if (makeMulti_) row["Multi"].Set(true);
    row.Update();
}

void frmBuilding::StoreUnit() {
    core::RowToWrite unit(kUnitTable, "IdUnit", idUnit_);
    idUnit_ = unit.id;
    if (unit.isNew) unit["Ccount"].Set(std::int32_t{0});
    unitFields_.Write(*this, unit.row, unit.isNew ? WriteFields::All : WriteFields::Touched);
    // A unit that was moved to another building in the meantime stays there.
    if (!core::RecordExists(core::kBuilding, platform::IdOf(unit["IdBuilding"])))
        unit["IdBuilding"].Set(Id());
    unit.row.Update();
}

void frmBuilding::AfterSave() {
    SavePickFields(*this);
    core::NotifyAll(core::kUnit, core::kRecordsChanged, 0);
}

void frmBuilding::Refresh(core::RecordKind kind) {
    if (kind == core::kAccount) {
        FillAccounts();
        FillFreeAccounts();
    }
    if (kind == core::kUnit && Id() != 0) FillUnits();
}

/// Leases change the unit's status, and other screens its other fields.
void frmBuilding::FollowOthers(const core::binding::Controls& /*touched*/) {
    platform::Recordset row = FindById(kUnitTable, idUnit_);
    if (!IsHere(row)) return ShowAnotherUnit();
    unitFields_.ShowUntouched(*this, row, unitFields_.Touched(*this));
}

/// The unit was deleted or moved elsewhere. What was entered for it stays until the user decides.
void frmBuilding::ShowAnotherUnit() {
    if (Dirty()) return;
    idUnit_ = 0;
    Load();
}

} // namespace records::screens
