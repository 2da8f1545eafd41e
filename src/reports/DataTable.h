#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/database/Recordset.h"
#include "platform/printing/PrintSurface.h"

namespace reports {

/// The columns of a table of query rows: their widths depend on the fields' types, not on the
/// values, so that the tables of all groups have the same columns.
struct DataColumns {
    std::string format; ///< alignment and width in twips of each column, separated by "|"
    std::vector<std::string> captions;
};

/// Returns the columns of an open query. `textSizes` says for how many characters each column of
/// texts leaves room; a column that it lacks may be long.
DataColumns ColumnsOf(platform::Recordset& rows, std::span<const int> textSizes,
                      platform::Twips printWidth);

/// Returns a query's value as a table shows it: money in the money format, booleans as Yes or No.
std::string CellText(const platform::Field& field);

/// Presents the rows of an open query as the rows of a table. The query must outlive it.
class QueryRows : public platform::TableRows {
  public:
    explicit QueryRows(platform::Recordset& rows);
    std::size_t Count() const override;
    const std::vector<std::string>* Next() override;

  private:
    platform::Recordset* rows_;
    std::vector<std::string> cells_;
};

/// Styles the header row of the table that was added last: grey, bold and higher than the rows.
void StyleHeader(platform::PrintSurface& page);

/// Prints "No records found." and returns to the default style.
void PrintNoRecords(platform::PrintSurface& page);

/// Prints a text in a named style, unless it is empty.
void PrintIn(platform::PrintSurface& page, std::string_view style, std::string_view text);

} // namespace reports
