#include <algorithm>
#include <map>

#include "vestrelctl/VestrelctlFixture.h"

namespace {

class MergeCommand : public tests::Vestrelctl {
  protected:
    static constexpr const char* kTemplates = VESTREL_TEST_DATA "/../../share/Templates/";

    std::string FirstLine(const std::string& sql) {
        const std::string output = Run(OnBooks() + "sql \"" + sql + "\"").output;
        const std::size_t start = output.find('\n') + 1;
        return output.substr(start, output.find_first_of("\r\n", start) - start);
    }
};

TEST_F(MergeCommand, FillsEveryShippedTemplateFromTheSample) {
    ASSERT_EQ(0, Run("init --sample --units 6 " + Books()).status);
    const std::string lease = "2 " + FirstLine("SELECT TOP 1 IdLease FROM Lease");
    const std::map<std::string, std::string> others = {
        {"Receipt Letter", "10 " + FirstLine("SELECT TOP 1 IdTransaction FROM Transactions")},
        {"Work Order for Vendor",
         "6 " + FirstLine("SELECT TOP 1 IdWorkOrder FROM WorkOrder WHERE IdVendor > 0")},
        {"Owner Cover Letter", "1 " + FirstLine("SELECT TOP 1 IdAccount FROM Account")},
        {"Mortgage Payoff Request", "3 " + FirstLine("SELECT TOP 1 IdMortgage FROM Mortgage")}};
    const std::string letter = (folder_ / "letter.rtf").string();
    int count = 0;
    for (const auto& entry : std::filesystem::directory_iterator(kTemplates)) {
        const auto other = others.find(entry.path().stem().string());
        const std::string& record = other == others.end() ? lease : other->second;
        const auto outcome = Run(OnBooks() + "merge '" + entry.path().string() + "' " + record +
                                 " --output '" + letter + "'");
        EXPECT_EQ(0, outcome.status) << entry.path() << outcome.errors;
        EXPECT_EQ(letter + "\n", outcome.output);
        const std::string text = tests::ReadFile(letter);
        EXPECT_EQ(std::string::npos, text.find("<<")) << entry.path() << "\n" << text;
        EXPECT_EQ(std::string::npos, text.find("Invalid Tag")) << entry.path();
        EXPECT_EQ(std::ranges::count(text, '{'), std::ranges::count(text, '}')) << entry.path();
        ++count;
    }
    EXPECT_EQ(10, count);
}

TEST_F(MergeCommand, SaysWhatIsWrong) {
    ASSERT_EQ(0, Run("init " + Books()).status);
    const std::string letter = "'" + std::string(kTemplates) + "Late Notice.rtf' ";
    struct Case {
        std::string words;
        int status;
        std::string reason;
    };
    const std::vector<Case> cases = {
        {letter + "9 1", 2, "no letters are merged"},
        {letter + "2", 2, "id"},
        {letter + "2 --all-late", 2, "--output"},
        {letter + "5 --all-late --output /tmp/x", 2, "kind 2"},
        {"77 2 1", 1, "no template with IdDoc 77"},
        {"/nowhere.rtf 2 1", 1, "/nowhere.rtf"},
        {letter + "2 1 --output '" + (folder_ / "x.rtf").string() + "'", 1, "no Lease 1"},
        {letter + "2 1 --output '" + Books() + "/Vestrel.mdb'", 1, "belongs to the database"},
    };
    for (const Case& one : cases) {
        const auto outcome = Run(OnBooks() + "merge " + one.words);
        EXPECT_EQ(one.status, outcome.status) << one.words;
        EXPECT_NE(std::string::npos, outcome.errors.find(one.reason)) << outcome.errors;
    }
}

TEST_F(MergeCommand, WritesOneLetterForEachLateLease) {
    ASSERT_EQ(0, Run("init --sample --units 12 " + Books()).status);
    const std::string late = FirstLine(
        "SELECT Count(*) FROM Lease WHERE Hide = False AND RentStatus IN ('Late', 'Warning', "
        "'Eviction')");
    const auto outcome =
        Run(OnBooks() + "merge '" + kTemplates + "Late Notice.rtf' 2 --all-late --output '" +
            (folder_ / "letters").string() + "'");
    EXPECT_EQ(0, outcome.status) << outcome.errors;
    EXPECT_NE(std::string::npos, outcome.output.find(late + " letter")) << outcome.output;
    const auto files = std::filesystem::directory_iterator(folder_ / "letters");
    EXPECT_EQ(std::stoi(late), std::distance(begin(files), end(files)));
}

} // namespace
