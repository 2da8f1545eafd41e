#include <gmock/gmock.h>

#include <QApplication>
#include <QTabWidget>

#include "core/EditRecord.h"
#include "core/RecordKinds.h"
#include "core/Startup.h"
#include "core/screens/OpenForms.h"
#include "core/screens/RecordForm.h"
#include "kestrom/Wiring.h"
#include "platform/qt/Text.h"
#include "platform/system/Clock.h"
#include "shell/Registrations.h"
#include "shell/SampleLife.h"
#include "support/screens/Driving.h"
#include "support/screens/Gallery.h"
#include "support/screens/ScreenChecks.h"
#include "support/screens/ScreenFixture.h"

namespace {

using core::screens::Form;
using platform::qt::FromScreen;
using testing::IsEmpty;

struct Kind {
    std::int16_t kind;
    const char* table;
    const char* idField;
};

constexpr Kind kKinds[] = {
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
class Editors : public support::ScreenTest {
  protected:
    Editors() {
        core::App().Connection.Close();
        platform::SetToday(platform::Date(2026, 11, 21));
        shell::RegisterLogic();
        shell::MakeSamplePortfolio(Folder() / "sample", kUnits, platform::Today());
        core::App().DbPath = PathTo("sample/");
        core::App().Connection.Open(Folder() / "sample" / "Vestrel.mdb");
        core::LoadBooks();
        core::screens::RegisterOpenForms();
        kestrom::RegisterEditors();
    }
    ~Editors() override {
        for (std::int16_t kind = 0; kind <= core::kUtilityAccount; ++kind)
            core::RegisterOpener(kind, {});
        for (const auto editor :
             {core::TransactionEditor::Transaction, core::TransactionEditor::RentPayment,
              core::TransactionEditor::MortgagePayment}) {
            core::RegisterTransactionOpener(editor, {});
        }
    }

    static std::vector<Form*> Open() {
        std::vector<Form*> forms;
        for (QWidget* const window : QApplication::topLevelWidgets()) {
            auto* const form = qobject_cast<Form*>(window);
            if (form && form->isVisible()) forms.push_back(form);
        }
        return forms;
    }
    static std::int32_t SomeId(const Kind& kind) {
        const std::string id =
            Ask(std::string("SELECT Max(") + kind.idField + ") FROM " + kind.table);
        return id == "NULL" ? 0 : std::stoi(id);
    }
    /// What is wrong with how a screen looks and is used, page by page.
    static std::vector<std::string> Faults(Form& form) {
        const std::string name = "sample-" + FromScreen(form.objectName());
        std::vector<std::string> faults = support::NameFaults(form);
        const auto add = [&](const std::vector<std::string>& more, const std::string& page) {
            for (const std::string& fault : more)
                faults.push_back(page + ": " + fault);
        };
        const auto look = [&](const std::string& page) {
            add(support::MnemonicFaults(form), page);
            add(support::TabOrderFaults(form), page);
            add(support::Portray(form, page), page);
        };
        auto* const tabs = form.findChild<QTabWidget*>();
        if (!tabs) look(name);
        for (int page = 0; tabs && page < tabs->count(); ++page) {
            tabs->setCurrentIndex(page);
            look(name + "-" + std::to_string(page));
        }
        if (form.width() > 1280 || form.height() > 770) faults.push_back("too big: " + name);
        return faults;
    }

    static constexpr int kUnits = 6;
};

TEST_F(Editors, OpenRecordsCleanAndOnlyOnce) {
    for (const Kind& kind : kKinds) {
        if (!core::HasEditor(kind.kind)) continue;
        const std::string name(core::RecordKindName(kind.kind));
        const std::int32_t id = SomeId(kind);
        if (id == 0) continue;
        core::EditRecord(kind.kind, id);
        const std::vector<Form*> open = Open();
        ASSERT_EQ(open.size(), 1U) << name << " doesn't open";
        Form& form = *open.front();
        EXPECT_THAT(Heard(), IsEmpty()) << name;
        EXPECT_TRUE(form.OpenRecordId() == id || kind.kind == core::kUnit) << name;
        if (const auto* const record = qobject_cast<core::screens::RecordForm*>(&form)) {
            EXPECT_FALSE(record->Dirty()) << name << " is dirty from the start";
        }
        core::EditRecord(kind.kind, id);
        EXPECT_EQ(Open().size(), 1U) << name << " opens twice";
        EXPECT_THAT(Faults(form), IsEmpty()) << name;
        form.close();
        EXPECT_THAT(Heard(), IsEmpty()) << name << " asks though nothing was changed";
        support::SettleEvents();
        EXPECT_THAT(Open(), IsEmpty()) << name << " doesn't close";
        core::screens::CloseAllForms();
    }
}

TEST_F(Editors, OpenNewRecordsOfTheirOwn) {
    for (const Kind& kind : kKinds) {
        if (!core::HasEditor(kind.kind)) continue;
        const std::string name(core::RecordKindName(kind.kind));
        const std::string rows = Ask(std::string("SELECT Count(*) FROM ") + kind.table);
        core::EditRecord(kind.kind, 0);
        core::EditRecord(kind.kind, 0);
        EXPECT_EQ(Open().size(), 2U) << name;
        EXPECT_THAT(Heard(), IsEmpty()) << name;
        for (Form* const form : Open()) {
            EXPECT_EQ(form->OpenRecordId(), 0) << name;
            form->close();
        }
        EXPECT_THAT(Heard(), IsEmpty()) << name << " asks though nothing was entered";
        EXPECT_EQ(Ask(std::string("SELECT Count(*) FROM ") + kind.table), rows)
            << name << " is written without being asked";
        support::SettleEvents();
        core::screens::CloseAllForms();
    }
}

} // namespace
