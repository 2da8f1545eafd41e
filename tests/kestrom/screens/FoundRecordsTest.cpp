#include <gmock/gmock.h>

#include <set>

#include "kestrom/screens/SampleEditors.h"
#include "search/Finder.h"
#include "search/Sources.h"
#include "support/screens/Driving.h"

namespace {

using testing::IsEmpty;

class FoundRecords : public tests::SampleEditors {
  protected:
    FoundRecords() {
        const std::string tenant = Ask("SELECT Max(IdTenant) FROM Tenant");
        // The sample portfolio brings no files.
        Run("INSERT INTO FileObject (IdFileObject, dbType, IdOwner, Description, FilePath) "
            "VALUES (77, 5, " +
            tenant + ", 'Application', '/tmp/application.pdf')");
        while (!finder_.Step()) {
        }
    }

    search::Finder finder_{core::App().Connection};
};

TEST_F(FoundRecords, AllOpen) {
    std::set<std::string> groups;
    // Letters that some word of nearly every record begins with.
    for (const char* const text : {"a", "e", "m", "r", "s", "t", "w", "1", "2"}) {
        for (const search::HitGroup& group : finder_.Find(text, 1)) {
            if (!groups.insert(group.name).second) continue;
            const search::Target& record = *group.hits.front().record;
            core::EditRecord(record.kind, record.id, record.parent1, 0, record.parent3);
            support::SettleEvents();
            EXPECT_EQ(Open().size(), 1U) << group.name << ": " << group.hits.front().title;
            EXPECT_THAT(Heard(), IsEmpty()) << group.name;
            core::forms::CloseAllForms();
            support::SettleEvents();
        }
    }
    for (const search::Source& source : search::Sources()) {
        const bool isThere = groups.contains(std::string(source.name));
        EXPECT_TRUE(isThere) << source.name << " has no place in the sample portfolio";
        EXPECT_TRUE(source.kind == core::kNone || core::HasEditor(source.kind)) << source.name;
    }
}

TEST_F(FoundRecords, AreThoseOfTheRow) {
    platform::Recordset rows;
    rows.Open(core::App().Connection,
              "SELECT IdTransaction, Amount, CheckNum FROM Transactions WHERE CheckNum > '1000' "
              "AND CheckNum < '2000'");
    ASSERT_FALSE(rows.Eof());
    for (int some = 0; some < 20 && !rows.Eof(); ++some, rows.MoveNext()) {
        bool isFound = false;
        const std::string words =
            rows["CheckNum"].AsText() + ' ' +
            rows["Amount"].AsText().substr(0, rows["Amount"].AsText().find('.') + 3);
        for (const search::HitGroup& group : finder_.Find(words, 100)) {
            for (const search::Hit& hit : group.hits)
                isFound = isFound || hit.record->id == rows["IdTransaction"].AsLong();
        }
        EXPECT_TRUE(isFound) << words;
    }
}

} // namespace
