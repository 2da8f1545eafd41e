#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/database/Recordset.h"
#include "store/CreateDatabase.h"
#include "store/SamplePortfolio.h"
#include "support/TemporaryFolder.h"

namespace tests {

/// A database with the records of the sample, identifiers from 1000 on.
class SampleDatabase {
  public:
    SampleDatabase(int units, platform::Date today) {
        store::CreateDatabase(folder_.Path());
        books.Open(folder_ / "Vestrel.mdb");
        books.Execute("INSERT INTO Configuration (CompanyName) VALUES ('Mine')");
        cast = store::WriteSampleRecords(books, {units, today, [this] { return ++lastId; }});
    }

    std::int32_t Count(std::string_view tableAndCondition) {
        return books.Scalar("SELECT Count(*) FROM " + std::string(tableAndCondition))->AsLong();
    }

    /// The first column of a statement's rows, as texts.
    std::vector<std::string> Texts(std::string_view statement) {
        std::vector<std::string> texts;
        platform::Recordset rows;
        rows.Open(books, statement);
        for (; !rows.Eof(); rows.MoveNext())
            texts.push_back(rows[0].AsText());
        return texts;
    }

    platform::Connection books;
    store::SampleCast cast;
    std::int32_t lastId = 999;

  private:
    support::TemporaryFolder folder_;
};

} // namespace tests
