#include <gmock/gmock.h>

#include <QTabBar>
#include <QTabWidget>
#include <algorithm>

#include "core/forms/RecordForm.h"
#include "documents/screens/FileObjects.h"
#include "kestrom/screens/SampleEditors.h"
#include "platform/database/Recordset.h"
#include "shell/screens/frmConfig.h"
#include "support/screens/Screens.h"

namespace support {
namespace {

using core::forms::Form;
using testing::IsEmpty;
using tests::Kind;
using tests::kKinds;

class Editors : public tests::SampleEditors {
  protected:
    /// The ids of a few records of a kind: every so many of them.
    static std::vector<std::int32_t> SomeIds(const Kind& kind) {
        platform::Recordset rows;
        rows.Open(core::App().Connection, std::string("SELECT ") + kind.idField + " FROM " +
                                              kind.table + " ORDER BY " + kind.idField);
        const std::int64_t step = std::max<std::int64_t>(1, rows.RecordCount() / 6);
        std::vector<std::int32_t> ids;
        for (std::int64_t at = 1; at <= rows.RecordCount(); at += step) {
            rows.SetAbsolutePosition(at);
            ids.push_back(rows[0].AsLong());
        }
        return ids;
    }
    /// "field = value" of each field.
    static std::vector<std::string> Row(const Kind& kind, std::int32_t id) {
        platform::Recordset row;
        row.Open(core::App().Connection,
                 std::string("SELECT * FROM ") + kind.table + " WHERE " + kind.idField + " = ?",
                 platform::CursorMode::ReadOnly, {id});
        std::vector<std::string> fields;
        for (std::size_t i = 0; i < row.FieldCount(); ++i)
            fields.push_back(row[i].Name() + (row[i].IsNull() ? "" : " = " + row[i].AsText()));
        return fields;
    }
    /// The differences between two readings of a row.
    static std::vector<std::string> Changes(const std::vector<std::string>& before,
                                            const std::vector<std::string>& after) {
        std::vector<std::string> changes;
        for (std::size_t i = 0; i < before.size() && i < after.size(); ++i)
            if (before[i] != after[i]) changes.push_back(before[i] + " -> " + after[i]);
        if (before.size() != after.size()) changes.emplace_back("the row itself");
        return changes;
    }
    /// Changes the first record of a kind as no screen would.
    static void Spoil(core::RecordKind kind, const std::string& assignment) {
        const auto* const found = std::ranges::find(kKinds, kind, &Kind::kind);
        Run(std::string("UPDATE ") + found->table + " SET " + assignment + " WHERE " +
            found->idField + " = " + std::to_string(SomeIds(*found).at(0)));
    }
    /// Opens records of every kind and closes them by Close, with nothing changed.
    static void OpenAndClose(const std::string& state, const std::function<Said()>& heard) {
        for (const Kind& kind : kKinds) {
            if (!core::HasEditor(kind.kind)) continue;
            for (const std::int32_t id : SomeIds(kind)) {
                const std::string name = state + ": " +
                                         std::string(core::RecordKindName(kind.kind)) + " " +
                                         std::to_string(id);
                const std::vector<std::string> before = Row(kind, id);
                core::EditRecord(kind.kind, id);
                ASSERT_EQ(Open().size(), 1U) << name;
                if (auto* const form = qobject_cast<core::forms::RecordForm*>(Open().front())) {
                    form->SaveAndClose();
                    EXPECT_THAT(Open(), IsEmpty()) << name << " doesn't close";
                }
                EXPECT_THAT(heard(), IsEmpty()) << name;
                EXPECT_THAT(Changes(before, Row(kind, id)), IsEmpty()) << name;
                core::forms::CloseAllForms();
                SettleEvents();
            }
        }
    }
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
        if (const auto* const record = qobject_cast<core::forms::RecordForm*>(&form)) {
            EXPECT_FALSE(record->Dirty()) << name << " is dirty from the start";
        }
        core::EditRecord(kind.kind, id);
        EXPECT_EQ(Open().size(), 1U) << name << " opens twice";
        form.close();
        EXPECT_THAT(Heard(), IsEmpty()) << name << " asks though nothing was changed";
        SettleEvents();
        EXPECT_THAT(Open(), IsEmpty()) << name << " doesn't close";
        core::forms::CloseAllForms();
    }
}

TEST_F(Editors, SaveWhatTheyOpenedAsItWas) {
    const auto heard = [this] { return Heard(); };
    OpenAndClose("as it is", heard);

    Spoil(core::kTenant, "FirstName = NULL, Status = NULL");
    Spoil(core::kAccount, "ShowAs = NULL, FirstName = NULL");
    Spoil(core::kUnit, "Unit = NULL");
    Spoil(core::kMortgage, "Description = NULL");
    OpenAndClose("a name is null", heard);

    Spoil(core::kWorkOrder, "DateOpened = NULL, DateClosed = 'soon'");
    Spoil(core::kIncident, "EntryDate = NULL");
    Spoil(core::kTransaction, "DateEffective = NULL");
    Spoil(core::kSvcContract, "DateStart = NULL, DatePaidThru = '2/30/2024'");
    Spoil(core::kMortgage, "LastEscrowReview = NULL");
    Spoil(core::kAppliance, "PurchaseDate = NULL");
    OpenAndClose("a date is null", heard);

    Spoil(core::kTenant, "Status = 'Away'");
    Spoil(core::kWorkOrder, "Status = 'Waiting', IdVendor = 7");
    Spoil(core::kUnit, "Status = 'Odd'");
    Spoil(core::kLease, "ExpireOption = 'Perhaps', SubsidyType = 9");
    Spoil(core::kSvcContract, "BillType = 'Barter', IdAppliance = 7");
    Spoil(core::kAutoEvent, "IntervalType = 9, EventAction = 9");
    Spoil(core::kTransaction, "DebitType = 9, IdLease = 7");
    Spoil(core::kManager, "FeeType = 'Thanks', TermType = NULL");
    Spoil(core::kIncident, "Severity = 'Odd'");
    OpenAndClose("a code is unknown", heard);

    Run("UPDATE Account SET AccountType = 'Somebody'");
    OpenAndClose("all accounts have another type", heard);
}

TEST_F(Editors, TheSettingsSaveAsTheyWere) {
    const auto settings = [] {
        platform::Recordset row;
        row.Open(core::App().Connection, "SELECT * FROM Configuration");
        std::string text;
        for (std::size_t i = 0; i < row.FieldCount(); ++i)
            text += row[i].Name() + (row[i].IsNull() ? " " : "=" + row[i].AsText() + " ");
        return text;
    };
    Run("UPDATE Account SET AccountType = 'Somebody'");
    Run("UPDATE Configuration SET TermType = 'Moons', Discount = 1.2345, DefaultCar = NULL, "
        "DefaultMortgagee = " +
        std::to_string(SomeId(kKinds[0])));
    const std::string before = settings();
    auto* const form = new shell::screens::frmConfig;
    form->Setup();
    form->SaveAndClose();
    EXPECT_THAT(Heard(), IsEmpty());
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(settings(), before);
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
        SettleEvents();
        core::forms::CloseAllForms();
    }
}

TEST_F(Editors, ShowTheFilesOfTheRecordsThatCanHaveFiles) {
    std::vector<std::string> pages;
    for (const Kind& kind : kKinds) {
        const std::int32_t id = SomeId(kind);
        if (!core::HasEditor(kind.kind) || kind.kind == core::kUnit) continue;
        const std::int32_t file = 9000 + core::KindNumber(kind.kind);
        Run("INSERT INTO FileObject (IdFileObject, dbType, IdOwner, FilePath) VALUES (" +
            std::to_string(file) + ", " + std::to_string(core::KindNumber(kind.kind)) + ", " +
            std::to_string(id) + ", '/nowhere/picture.png')");
        for (const std::int32_t opened : {id, 0}) {
            core::EditRecord(kind.kind, opened);
            ASSERT_EQ(Open().size(), 1U) << kind.table;
            Form& form = *Open().front();
            const auto* const tabs = form.findChild<QTabWidget*>("tabs");
            const auto* const page = form.findChild<QWidget*>("tabFiles");
            const int at = page ? tabs->indexOf(page) : -1;
            if (at >= 0 && opened != 0) {
                pages.push_back(kind.table + std::string(" ") + std::to_string(at + 1) + "/" +
                                std::to_string(tabs->count()));
                EXPECT_EQ("Files and Pictures", platform::qt::FromScreen(tabs->tabText(at)));
            }
            if (at >= 0) {
                const auto& files = Find<documents::screens::FileObjects>(form, "ucFOB");
                EXPECT_EQ(files.SelectedId(), opened == 0 ? 0 : file) << kind.table;
                EXPECT_EQ(tabs->isTabEnabled(at), opened != 0 || kind.kind != core::kWorkOrder);
                EXPECT_FALSE(static_cast<core::forms::RecordForm&>(form).Dirty()) << kind.table;
            }
            form.CloseUnasked();
            SettleEvents();
        }
    }
    EXPECT_THAT(pages, testing::UnorderedElementsAre("Account 4/4", "Lease 6/6", "Mortgage 6/6",
                                                     "Tenant 6/6", "WorkOrder 3/3", "Appliance 3/3",
                                                     "Room 2/2", "Content 2/2", "Building 5/6"));

    // A building's form shows the files of its units too.
    const std::int32_t unit = SomeId({core::kUnit, "Unit", "IdUnit"});
    Run("UPDATE FileObject SET dbType = 29, IdOwner = " + std::to_string(unit) +
        " WHERE dbType = 28");
    core::EditRecord(core::kUnit, unit);
    ASSERT_EQ(Open().size(), 1U);
    const Form& form = *Open().front();
    const auto& files = Find<documents::screens::FileObjects>(form, "ucFOB");
    EXPECT_EQ(files.SelectedId(), 0);
    auto& filesOf = Find<QTabBar>(form, "tabFilesOf");
    EXPECT_EQ("Of the Building", platform::qt::FromScreen(filesOf.tabText(0)));
    EXPECT_EQ("Of the Unit", platform::qt::FromScreen(filesOf.tabText(1)));
    filesOf.setCurrentIndex(1);
    EXPECT_EQ(files.SelectedId(), 9000 + core::KindNumber(core::kBuilding));
}

} // namespace
} // namespace support
