#include "removal/PortfolioFixture.h"

#include "platform/database/Recordset.h"
#include "store/Tables.h"
#include "support/StatementFile.h"

namespace tests {

Portfolio::Portfolio() {
    const std::filesystem::path seed = VESTREL_TEST_DATA "/../store/statements/seed.test";
    platform::UnitOfWork unit(core::App().Connection);
    for (const support::StatementBlock& block : support::ReadStatementFile(seed)) {
        const bool ofReferences = block.statement.starts_with("INSERT INTO ZipCodes") ||
                                  block.statement.starts_with("INSERT INTO TaxURL");
        if (block.keep && !ofReferences) Run(block.statement);
    }
    unit.Commit();
    before_ = ReadAll();
}

namespace {

std::string TextOf(platform::Field field) {
    return field.IsNull() ? "null" : field.AsText();
}

} // namespace

Portfolio::Rows Portfolio::ReadAll() {
    Rows all;
    for (const store::TableDefinition& table : store::BooksTables()) {
        platform::Recordset rows;
        rows.Open(core::App().Connection, "SELECT * FROM " + table.name);
        for (int count = 0; !rows.Eof(); rows.MoveNext()) {
            // Two rows of one identifier must not hide each other.
            std::string key = table.name + " " + TextOf(rows[0]);
            if (all.contains(key)) key += "#" + std::to_string(++count);
            Row& row = all[key];
            for (std::size_t i = 0; i < rows.FieldCount(); ++i) {
                row[rows[i].Name()] = TextOf(rows[i]);
            }
        }
    }
    return all;
}

std::vector<std::string> Portfolio::Changes() const {
    const Rows after = ReadAll();
    std::vector<std::string> changes;
    for (const auto& [key, row] : before_) {
        const auto found = after.find(key);
        if (found == after.end()) {
            changes.push_back(key);
            continue;
        }
        for (const auto& [field, value] : found->second) {
            if (row.at(field) != value) changes.push_back(key + " " + field + "=" + value);
        }
    }
    for (const auto& [key, row] : after) {
        if (!before_.contains(key)) changes.push_back("+" + key);
    }
    return changes;
}

} // namespace tests
