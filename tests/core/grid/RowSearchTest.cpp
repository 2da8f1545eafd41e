#include "core/grid/RowSearch.h"

#include <gtest/gtest.h>

#include "core/RecordsFixture.h"
#include "core/RowsetTable.h"

namespace {

using core::ColumnFormat;
using core::grid::RowSearch;
using platform::FieldType;

class RowSearchTest : public tests::CoreRecords {
  protected:
    RowSearchTest() {
        Run("UPDATE Unit SET Unit = 'Zo\u00cb & Co', Bedrooms = 3, SqFt = 812.25, Rent = 1950.5, "
            "Hide = True WHERE IdUnit = 20");
        platform::Recordset rows;
        rows.Open(core::App().Connection,
                  "SELECT IdUnit, Unit, Bedrooms, SqFt, Rent, Hide, "
                  "DateValue('3/7/2024') AS [Day], Bathrooms FROM Unit WHERE IdUnit = 20");
        table_ = std::make_unique<core::RowsetTable>(std::move(rows));
    }
    bool Has(std::string_view text) {
        std::vector<ColumnFormat> formats;
        std::vector<FieldType> types;
        for (const core::TableColumn& column : table_->Columns()) {
            types.push_back(column.type);
            formats.push_back(column.format);
        }
        return RowSearch(text, formats, types, 1).Matches(*table_, 0);
    }

    std::unique_ptr<core::RowsetTable> table_;
};

TEST_F(RowSearchTest, FindsWhatTheColumnsShow) {
    for (const char* const text : {"zo", "ZO\u00cb", "zo\u00eb &", "& co", "1,950.50", "950",
                                   "03/07/2024", "/2024", "Yes", "yE", "3"}) {
        EXPECT_TRUE(Has(text)) << text;
    }
    for (const char* const text : {"20 ", "1950.5", "2024-03", "No", "True", "Zo\u00eb  ", "x"}) {
        EXPECT_FALSE(Has(text)) << text;
    }
}

} // namespace
