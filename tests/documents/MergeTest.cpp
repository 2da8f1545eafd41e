#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>

#include "core/Configuration.h"
#include "core/RecordKinds.h"
#include "core/RecordsFixture.h"
#include "documents/DocList.h"
#include "documents/FileRows.h"
#include "documents/MergeSource.h"
#include "documents/MergeTags.h"
#include "documents/TemplateCheck.h"
#include "documents/mDocManagement.h"
#include "platform/system/Paths.h"
#include "platform/values/Errors.h"
#include "support/KeepingDesktop.h"
#include "support/ScriptedDialogs.h"

namespace {

using documents::TextKind;

class Letters : public tests::CoreRecords {
  protected:
    Letters() {
        core::LoadConfiguration();
        core::Config().CompanyName = "Elm & Oak";
        core::Config().AssociateDocs = false;
        core::Config().DocDirectory = PathTo("letters");
    }

    static std::string Merged(std::string text, core::RecordKind kind, std::int32_t id,
                              TextKind textKind = TextKind::Plain) {
        platform::Recordset fields;
        documents::OpenMergeSource(fields, kind, id);
        documents::MergeTags(text, fields, textKind);
        return text;
    }

    documents::DocTemplate Template(const std::string& name, const std::string& text) {
        MakeFile(name, text);
        const std::int32_t id = documents::AddDoc(PathTo(name));
        return *documents::FindDocTemplate(id);
    }
};

TEST_F(Letters, FillTagsByTheFieldsType) {
    Run("UPDATE Lease SET Rent = 1250, RentDue = -12, Pets = True, Term = 6, Notes = '' "
        "WHERE IdLease = 40");
    struct Case {
        std::string text;
        std::string merged;
    };
    const std::vector<Case> cases = {
        {"<<Rent>> <<rentdue>>", "1,250.00 (12.00)"},
        {"Dear <<FIRSTNAME>> <<LastName>>,", "Dear John Smith,"},
        {"<<Pets>>/<<SubLet>>/<<Term>>/<<TermType>>", "Yes/No/6/<<TermType>>"},
        {"<<Description>>: <<Unit>>", "Smith - 12 Elm St: B"},
        {"[<<Notes>>]", "[]"},
        {"<<>> and <<Nope>> stay, <<LastName", "<<>> and <<Nope>> stay, <<LastName"},
        {"<<a <<LastName>> b>>", "<<a <<LastName>> b>>"},
        {"<<LastName>><<LastName>>", "SmithSmith"},
        {"<<!date>> <<!LONGDATE>> <<!monthname>>", "05/17/2024 05/17/2024 May"},
        {"<<!CompanyName>> <<!foo>> <<!>>", "Elm & Oak Invalid Tag Invalid Tag"},
    };
    for (const Case& one : cases)
        EXPECT_EQ(one.merged, Merged(one.text, core::kLease, 40)) << one.text;
}

TEST_F(Letters, ReadEachKindsRecordWithWhatItNames) {
    Run("UPDATE Mortgage SET IdMortgagee = 60 WHERE IdMortgage = 50");
    Run("INSERT INTO WorkOrder (IdWorkOrder, IdUnit, IdVendor, ShortDesc) "
        "VALUES (90, 20, 61, 'Leak')");
    Run("INSERT INTO Transactions (IdTransaction, Amount, Description) VALUES (91, 80, 'Paint')");
    Run("INSERT INTO Mileage (IdMileage, Vehicle, EntryDate, IdBuilding) "
        "VALUES (92, 'Van', '05/01/2024', 10)");
    struct Case {
        core::RecordKind kind;
        std::int32_t id;
        std::string text;
        std::string merged;
    };
    const std::vector<Case> cases = {
        {core::kAccount, 60, "<<Description>>|<<AccountType>>", "River Bank|Bank"},
        {core::kMortgage, 50, "<<Description>>|<<Address>>|<<Mortgagor>>",
         "River Bank A-1|12 Elm St|<<Mortgagor>>"},
        {core::kTenant, 31, "<<Description>>|<<Initial>>", "O'Brien|<<Initial>>"},
        {core::kWorkOrder, 90, "<<Description>>|<<Vendor>>|<<Address>>|<<Unit>>",
         "Leak|Al Owner|12 Elm St|B"},
        {core::kTransaction, 91, "<<Amount>>|<<Description>>", "80.00|Paint"},
        {core::kMileage, 92, "<<Vehicle>>|<<Address>>", "Van|12 Elm St"},
        {core::kBuilding, 20, "<<Description>>|<<City>>|<<Rent>>", "12 Elm St B|Salem|950.50"},
        {core::kUnitWithBuilding, 20, "<<Description>>", "12 Elm St B"},
        {core::kTenant, 999, "<<LastName>>", "<<LastName>>"},
    };
    for (const Case& one : cases) {
        platform::Recordset fields;
        documents::OpenMergeSource(fields, one.kind, one.id);
        std::string text = one.text;
        if (!fields.Eof()) documents::MergeTags(text, fields);
        EXPECT_EQ(one.merged, text) << core::RecordKindName(one.kind);
    }
    EXPECT_FALSE(documents::HasMergeSource(core::kRoom));
}

TEST_F(Letters, EscapeValuesAsTheirFormatNeeds) {
    Run("UPDATE Tenant SET LastName = 'a{b}\\c', FirstName = 'Zo\u00eb \U0001F3E0', "
        "Initial = '<&\"''>' WHERE IdTenant = 30");
    EXPECT_EQ("a\\{b\\}\\\\c", Merged("<<LastName>>", core::kTenant, 30, TextKind::RichText));
    const std::string name = Merged("<<FirstName>>", core::kTenant, 30, TextKind::RichText);
    EXPECT_TRUE(std::ranges::all_of(name, [](char c) { return c >= ' ' && c <= '~'; })) << name;
    EXPECT_NE(std::string::npos, name.find("\\u235")) << name;
    EXPECT_EQ("&lt;&amp;&quot;&#39;&gt;", Merged("<<Initial>>", core::kTenant, 30, TextKind::Html));
    EXPECT_EQ(TextKind::RichText, documents::TextKindOf("letter.txt", "{\\rtf1 x}"));
    EXPECT_EQ(TextKind::Html, documents::TextKindOf("/a.b/letter.HTM", "x"));
    EXPECT_EQ(TextKind::Plain, documents::TextKindOf("/a.rtf/letter", "x"));
}

TEST_F(Letters, TakeTheFirstFreeName) {
    const auto letter = Template("note.txt", "Dear <<LastName>>");
    MakeFile("tmp_1.txt", "mine");
    const auto document = documents::MergeDocument(letter, core::kTenant, 30);
    EXPECT_EQ(PathTo("tmp_2.txt"), document.file.string());
    EXPECT_EQ("Dear Smith", platform::ReadWholeFile(document.file));
    EXPECT_EQ("mine", platform::ReadWholeFile(PathTo("tmp_1.txt")));
    EXPECT_FALSE(documents::MergeDocument(letter, core::kTenant, 999).merged);
}

TEST_F(Letters, StayWithTheirRecordWhenAssociated) {
    core::Config().AssociateDocs = true;
    std::filesystem::create_directories(PathTo("letters"));
    const auto letter = Template("note.txt", "<<Unit>>");
    Run("UPDATE Building SET Address = '12/14 Elm' WHERE IdBuilding = 10");
    for (const auto* name : {"note - 12-14 Elm B.txt", "note - 12-14 Elm B(1).txt"}) {
        const auto document = documents::MergeDocument(letter, core::kBuilding, 20);
        EXPECT_EQ(PathTo("letters/" + std::string(name)), document.file.string());
    }
    EXPECT_EQ(2U, documents::FilesOf(core::kUnit, 20).size()) << "the id is a unit's";

    core::Config().DocDirectory = PathTo("nowhere");
    EXPECT_THROW(documents::MergeDocument(letter, core::kBuilding, 20), platform::Error)
        << "and no folder Docs";
    EXPECT_EQ(2U, documents::FilesOf(core::kUnit, 20).size());
}

TEST_F(Letters, OfAMissingFileAreReported) {
    support::ScriptedDialogs dialogs;
    const auto letter = Template("gone.rtf", "");
    std::filesystem::remove(PathTo("gone.rtf"));
    EXPECT_FALSE(documents::OpenDoc(core::kTenant, 30, letter.id));
    ASSERT_EQ(1U, dialogs.Heard().size());
    EXPECT_EQ("Document Error", dialogs.Heard()[0].title);
    EXPECT_EQ("An error occured opening the selected document.\n" + PathTo("gone.rtf") +
                  "\nCheck the specified file path and make sure the document exists.\n"
                  "Press OK to continue.",
              dialogs.Heard()[0].text);
    EXPECT_FALSE(documents::OpenDoc(core::kTenant, 30, 0));
}

TEST_F(Letters, OfSeveralRecordsAreMadeAfterAQuestion) {
    const auto letter = Template("note.txt", "Dear <<LastName>>");
    const std::vector<std::int32_t> tenants = {30, 31};
    {
        const support::ScriptedDialogs dialogs({false, true});
        const support::KeepingDesktop desktop;
        EXPECT_EQ(0, documents::OpenDocs(core::kTenant, tenants, letter.id)) << "declined";
        EXPECT_FALSE(std::filesystem::exists(PathTo("tmp_1.txt")));
        EXPECT_EQ(2, documents::OpenDocs(core::kTenant, tenants, letter.id));
        ASSERT_EQ(2U, dialogs.Heard().size());
        EXPECT_EQ(
            "2 records are selected. Make 2 letters from the template \"note\" and open each of "
            "them?",
            dialogs.Heard()[0].text);
        EXPECT_EQ((std::vector{PathTo("tmp_1.txt"), PathTo("tmp_2.txt")}), desktop.Opened());
        EXPECT_EQ("Dear O'Brien", platform::ReadWholeFile(PathTo("tmp_2.txt")));
        EXPECT_EQ(0, documents::OpenDocs(core::kTenant, {}, letter.id));
        EXPECT_EQ(1, documents::OpenDocs(core::kTenant, std::span(tenants).first(1), letter.id));
        EXPECT_EQ(2U, dialogs.Heard().size()) << "one record takes no question";
    }
    const support::ScriptedDialogs dialogs({true, true});
    const support::KeepingDesktop desktop(false);
    EXPECT_EQ(2, documents::OpenDocs(core::kTenant, tenants, letter.id));
    EXPECT_EQ(1U, desktop.Opened().size());
    EXPECT_EQ(2U, dialogs.Heard().size()) << "that there is no program is said once";
    std::filesystem::create_directories(PathTo("letters"));
    core::Config().AssociateDocs = true;
    Run("UPDATE Tenant SET LastName = '" + std::string(300, 'x') + "' WHERE IdTenant = 31");
    try {
        documents::OpenDocs(core::kTenant, tenants, letter.id);
        ADD_FAILURE() << "a name of 300 letters is too long for a file";
    } catch (const platform::Error& failure) {
        EXPECT_NE(std::string::npos, std::string(failure.what()).find("1 of 2 letters were made"))
            << failure.what();
    }
    EXPECT_EQ(1U, documents::FilesOf(core::kTenant, 30).size());
}

TEST_F(Letters, AreListedWithTheKindsTheyAreFor) {
    support::ScriptedDialogs dialogs;
    const std::int32_t late = documents::AddDoc("/x/Late.rtf");
    const std::int32_t all = documents::AddDoc("/x/All's well.rtf");
    documents::SetDocFlag(late, 1, true);
    documents::SetDocFlag(all, 8, true);
    documents::SetDocFlag(all, 1, true);
    const auto names = [](core::RecordKind kind) {
        std::string joined;
        for (const auto& letter : documents::DocTemplatesOf(kind))
            joined += letter.description + ";";
        return joined;
    };
    EXPECT_EQ("All's well;Late;", names(core::kLease));
    EXPECT_EQ("All's well;", names(core::kUnitWithBuilding));
    EXPECT_EQ("", names(core::kBuilding));
    EXPECT_EQ("", names(core::kRoom));
    EXPECT_EQ(0, documents::AddDoc("/" + std::string(255, 'x')));
    ASSERT_EQ(1U, dialogs.Heard().size());
    EXPECT_EQ("Try Again", dialogs.Heard()[0].title);
    EXPECT_NE(0, documents::AddDoc("/" + std::string(254, 'x'))) << "the field holds 255";
    Run("DELETE FROM Doc WHERE IdDoc = " + std::to_string(late));
    EXPECT_EQ("All's well;", names(core::kLease));
}

TEST_F(Letters, NameTheTagsThatCannotBeFilled) {
    const std::vector<core::RecordKind> kinds = {core::kTenant};
    const auto faults = documents::CheckTemplate(
        "x.rtf",
        "{\\rtf1 <<LastName>> <<Rent>> <<rent>> <<!date>> <<!foo>> <<First\\b Name>> "
        "<{\\i <Init}ial>> \\{<<Phone>>\\}}",
        kinds);
    EXPECT_EQ((std::vector<std::string>{"Rent", "!foo"}), faults.unknown);
    EXPECT_EQ((std::vector<std::string>{"FirstName", "Initial"}), faults.torn);
}

} // namespace
