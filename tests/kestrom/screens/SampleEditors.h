#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/EditRecord.h"
#include "core/KindTable.h"
#include "core/Startup.h"
#include "core/forms/Form.h"
#include "core/forms/OpenForms.h"
#include "kestrom/Wiring.h"
#include "platform/system/Clock.h"
#include "shell/Registrations.h"
#include "shell/SampleLife.h"
#include "support/screens/Screens.h"

namespace tests {

struct Kind {
    core::RecordKind kind;
    const char* table;
    const char* idField;
};

inline constexpr Kind kKinds[] = {
    {core::kAccount, "Account", "IdAccount"},
    {core::kLease, "Lease", "IdLease"},
    {core::kMortgage, "Mortgage", "IdMortgage"},
    {core::kTenant, "Tenant", "IdTenant"},
    {core::kWorkOrder, "WorkOrder", "IdWorkOrder"},
    {core::kIncident, "Incident", "IdIncident"},
    {core::kAppliance, "Appliance", "IdAppliance"},
    {core::kRoom, "Room", "IdRoom"},
    {core::kTransaction, "Transactions", "IdTransaction"},
    {core::kMileage, "Mileage", "IdMileage"},
    {core::kOwner, "OwnerLink", "IdOwnerLink"},
    {core::kDeposit, "Deposit", "IdDeposit"},
    {core::kManager, "ManagerLink", "IdManagerLink"},
    {core::kAutoEvent, "AutoEvent", "IdAutoEvent"},
    {core::kContent, "Content", "IdContent"},
    {core::kSvcContract, "SvcContract", "IdSvcContract"},
    {core::kMortgageLog, "MortgageLog", "IdMortgageLog"},
    {core::kWorkOrderHistory, "WOItem", "IdWOItem"},
    {core::kBuilding, "Building", "IdBuilding"},
    {core::kUnit, "Unit", "IdUnit"},
    {core::kRentLog, "RentLog", "IdRentLog"},
};

/// Every editor of the program, wired as the program wires it, on a sample portfolio.
class SampleEditors : public support::ScreenTest {
  protected:
    SampleEditors() {
        core::App().Connection.Close();
        platform::SetToday(platform::Date(2026, 11, 21));
        shell::RegisterLogic();
        shell::MakeSamplePortfolio(Folder() / "sample", kUnits, platform::Today());
        core::App().DbPath = PathTo("sample/");
        core::App().Connection.Open(Folder() / "sample" / "Vestrel.mdb");
        core::LoadBooks();
        core::forms::RegisterOpenForms();
        kestrom::RegisterEditors();
    }
    ~SampleEditors() override {
        for (const core::KindInfo& info : core::AllKinds())
            core::RegisterOpener(info.kind, {});
        for (const auto editor :
             {core::TransactionEditor::Transaction, core::TransactionEditor::RentPayment,
              core::TransactionEditor::MortgagePayment}) {
            core::RegisterTransactionOpener(editor, {});
        }
    }

    static std::vector<core::forms::Form*> Open() {
        std::vector<core::forms::Form*> forms;
        for (QWidget* const window : QApplication::topLevelWidgets()) {
            auto* const form = qobject_cast<core::forms::Form*>(window);
            if (form && form->isVisible()) forms.push_back(form);
        }
        return forms;
    }
    static std::int32_t SomeId(const Kind& kind) {
        const std::string id =
            Ask(std::string("SELECT Max(") + kind.idField + ") FROM " + kind.table);
        return id == "NULL" ? 0 : std::stoi(id);
    }

    static constexpr int kUnits = 6;
};

} // namespace tests
