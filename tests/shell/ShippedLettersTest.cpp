#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "core/Configuration.h"
#include "core/CoreFixture.h"
#include "core/RecordKinds.h"
#include "documents/DocList.h"
#include "documents/MergeSource.h"
#include "documents/MergeTags.h"
#include "documents/TemplateCheck.h"
#include "platform/system/Clock.h"
#include "platform/system/Paths.h"
#include "shell/Registrations.h"
#include "shell/SampleLife.h"
#include "support/Golden.h"

namespace {

namespace fs = std::filesystem;

constexpr int kUnits = 12;
constexpr std::size_t kLetters = 10;

/// The records of each kind that its letters are written for.
const std::map<core::RecordKind, std::string> kRecords = {
    {core::kAccount, "SELECT IdAccount FROM Account WHERE AccountType = 'Building Owner'"},
    {core::kLease, "SELECT IdLease FROM Lease ORDER BY RentDue DESC, IdLease"},
    {core::kMortgage, "SELECT IdMortgage FROM Mortgage"},
    {core::kWorkOrder, "SELECT IdWorkOrder FROM WorkOrder WHERE IdVendor > 0"},
    {core::kTransaction,
     "SELECT IdTransaction FROM Transactions ORDER BY IdLease DESC, IdTransaction"},
};

/// The sample portfolio, made with the program's templates in place.
class ShippedLetters : public tests::CoreProcess {
  protected:
    ShippedLetters() {
        shell::RegisterLogic();
        const fs::path shipped = fs::path(VESTREL_TEST_DATA) / "../../share/Templates";
        fs::copy(shipped, PathTo("Templates"));
        const platform::Date today(2026, 6, 15);
        shell::MakeSamplePortfolio(Folder() / "sample", kUnits, today);
        core::App().Connection.Open(Folder() / "sample" / "Vestrel.mdb");
        core::LoadConfiguration();
        platform::SetToday(today);
    }

    static std::vector<std::int32_t> Ids(const std::string& sql) {
        platform::Recordset rows;
        rows.Open(core::App().Connection, sql);
        std::vector<std::int32_t> ids;
        for (; !rows.Eof(); rows.MoveNext())
            ids.push_back(rows[std::size_t{0}].AsLong());
        return ids;
    }
    static std::string Merged(const documents::DocTemplate& letter, core::RecordKind kind,
                              std::int32_t id) {
        std::string text = platform::ReadWholeFile(letter.filePath);
        platform::Recordset fields;
        documents::OpenMergeSource(fields, kind, id);
        documents::MergeTags(text, fields, documents::TextKindOf(letter.filePath, text));
        return text;
    }
};

/// The letter with the lines that it shows, to be read in the failure.
std::string Lines(std::string text) {
    for (std::size_t at = 0; (at = text.find("\\par", at)) != std::string::npos; at += 4)
        if (text.compare(at, 5, "\\pard") != 0) text.insert(at++, "|");
    return documents::PlainTextOfRtf(text);
}

TEST_F(ShippedLetters, AreListedInTheSampleAndFilledByItsRecords) {
    std::size_t listed = 0;
    for (const documents::DocRow& doc : documents::AllDocs()) {
        SCOPED_TRACE(doc.letter.description);
        ++listed;
        const auto flag = std::ranges::find(doc.flags, true);
        ASSERT_NE(flag, doc.flags.end()) << "no record offers it";
        const core::RecordKind kind =
            documents::kDocFlags.at(static_cast<std::size_t>(flag - doc.flags.begin())).kind;
        const std::vector<std::int32_t> ids = Ids(kRecords.at(kind));
        ASSERT_FALSE(ids.empty());
        for (const std::int32_t id : ids) {
            const std::string text = Merged(doc.letter, kind, id);
            EXPECT_EQ(std::string::npos, text.find("<<")) << id << ": " << Lines(text);
            EXPECT_EQ(std::string::npos, text.find("Invalid Tag")) << Lines(text);
            EXPECT_EQ(std::ranges::count(text, '{'), std::ranges::count(text, '}')) << id;
            if (HasFailure()) break;
        }
        support::ExpectGolden("letters/" + doc.letter.description + ".rtf",
                              Merged(doc.letter, kind, ids.front()));
    }
    EXPECT_EQ(listed, kLetters);
}

} // namespace
