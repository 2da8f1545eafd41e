#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "core/RecordKinds.h"
#include "shell/Availability.h"
#include "shell/CellMarks.h"
#include "shell/ViewTexts.h"
#include "support/Cases.h"

namespace {

using shell::Mark;

TEST(Availability, NeedsAListARecordAndAnEditor) {
    struct Case {
        shell::WindowState state;
        const char* add;
        const char* list;
        const char* edit;
        const char* record;
        const char* change;
        const char* rows;
    };
    const char* const noList = "Choose a list of records first.";
    const char* const noRecord = "Select a record first.";
    const char* const many = "Select only one record.";
    const char* const noEditor = "These records can't be edited in this version.";
    const char* const readOnly = "These books are open for reading only.";
    for (const Case& c : std::vector<Case>{
             {{core::kAlert, 0, 0, false}, noList, noList, noList, noList, noList, noList},
             {{core::kAlert, 7, 1, true}, noList, noList, noList, noList, noList, noList},
             {{core::kLease, 0, 0, true}, "", "", noRecord, noRecord, noRecord, noRecord},
             {{core::kLease, 7, 1, true}, "", "", "", "", "", ""},
             {{core::kLease, 0, 3, true}, "", "", many, many, many, ""},
             {{core::kLease, 7, 1, false}, noEditor, "", noEditor, "", "", ""},
             {{core::kTransaction, -7, 1, true}, "", "", "", "", "", ""},
             {{core::kLease, 7, 1, true, true}, readOnly, "", "", "", readOnly, ""},
         }) {
        const shell::Availability why = shell::EnableEditButtons(c.state);
        const auto told = std::to_string(core::KindNumber(c.state.kind)) + " " +
                          std::to_string(c.state.selectedId);
        EXPECT_EQ(why.add, c.add) << told;
        EXPECT_EQ(why.list, c.list) << told;
        EXPECT_EQ(why.edit, c.edit) << told;
        EXPECT_EQ(why.record, c.record) << told;
        EXPECT_EQ(why.change, c.change) << told;
        EXPECT_EQ(why.rows, c.rows) << told;
    }
}

TEST(ExtraItems, BelongToTheirViews) {
    struct Case {
        core::RecordKind kind;
        std::string shown;
    };
    for (const Case& c : std::vector<Case>{
             {core::kAlert, "refresh "},
             {core::kLease, "rent separator "},
             {core::kMortgage, "mortgage separator "},
             {core::kTransaction, "copy "},
             {core::kUnit, "copy "},
             {core::kTenant, ""},
         }) {
        const shell::ExtraItems extra = shell::ExtraItemsOf(c.kind);
        std::string shown;
        if (extra.refreshSummary) shown += "refresh ";
        if (extra.payRent) shown += "rent ";
        if (extra.payMortgage) shown += "mortgage ";
        if (extra.copy) shown += "copy ";
        if (extra.Separator()) shown += "separator ";
        EXPECT_EQ(shown, c.shown) << core::KindNumber(c.kind);
    }
}

TEST(CellMarks, TurnRedLaterForALeaseThanForAMortgage) {
    const std::map<std::string, Mark> marks = {
        {"None", Mark::None}, {"Yellow", Mark::Yellow}, {"Red", Mark::Red}};
    support::ForEachCase(VESTREL_TEST_DATA "/marks.cases", "marks", [&](const support::Case& each) {
        const auto kind = each.Number<core::RecordKind>("kind");
        EXPECT_EQ(shell::MarkOf(kind, each["word"]), marks.at(each["mark"]));
    });
}

TEST(StatusText, TellsTheCountTheKindAndTheSort) {
    using shell::StatusText;
    EXPECT_EQ(StatusText(core::kLease, 0, {}), "Selected 0 Lease records");
    EXPECT_EQ(StatusText(core::kWorkOrder, -1, {}), "Selected -1 Work Order records");
    EXPECT_EQ(StatusText(core::kUnit, 1000000, {"All", "Rent", "DESC", "Unit", "ASC"}),
              "Selected 1000000 Unit records sorted by Rent [DESC]");
    EXPECT_EQ(shell::NarrowedText(3, 12), "3 of 12 shown");
    EXPECT_EQ(shell::NarrowedText(12, 12), "");
    EXPECT_EQ(shell::NarrowedText(0, -1), "");
}

TEST(EmptyText, SaysWhyNothingIsThereAndWhatToDo) {
    struct Case {
        shell::EmptyView view;
        const char* says;
    };
    const shell::ViewFilter pending{.status = "Pending"};
    const shell::ViewFilter always{.days = 0};
    const shell::ViewFilter ofItem{.days = 0, .field = "Building", .item = {"Elm", 3}};
    const shell::ViewFilter ofAllItems{.days = 0, .field = "Building"};
    for (const Case& c : std::vector<Case>{
             {{core::kLease, -1, "", {}}, "The leases can't be read. Choose"},
             {{core::kLease, -1, "", {}, "No disk."}, "The leases can't be read: No disk."},
             {{core::kLease, 0, "", {}},
              "There are no leases yet. A lease needs a unit and a tenant. Press Ctrl+N"},
             {{core::kLease, 4, "smith", {}}, "None of the 4 leases has \"smith\""},
             {{core::kLease, 0, "smith", pending}, "No leases meet the choice"},
             {{core::kTenant, 0, "", {}}, "There are no tenants yet. Press Ctrl+N"},
             {{core::kTransaction, 0, "", {}}, "No transactions meet the choice"},
             {{core::kTransaction, 0, "", ofItem}, "No transactions meet the choice"},
             {{core::kTransaction, 0, "", always}, "There are no transactions yet."},
             {{core::kTransaction, 0, "", ofAllItems}, "There are no transactions yet."},
         }) {
        const std::string text = shell::EmptyText(c.view);
        EXPECT_TRUE(text.starts_with(c.says)) << text;
    }
}

} // namespace
