#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/printing/PrintStyle.h"

namespace platform {

/// Report definitions and engines use these numbers.
enum class TableBorder : std::uint8_t {
    None = 0,
    Bottom = 1,
    Top = 2,
    TopBottom = 3,
    Box = 4,
    Columns = 5,
    ColTopBottom = 6,
    BelowHeader = 7,
    BoxRows = 8,
    BoxColumns = 9,
    All = 10,
};

/// Where a border has lines: around the table and between its rows and columns.
struct BorderLines {
    bool top;
    bool bottom;
    bool sides;
    bool columns;
    bool belowHeader;
    bool rows;
};

BorderLines LinesOf(TableBorder border);

enum class VerticalAlign : std::uint8_t { Top, Middle, Bottom };
/// Whether a column's text goes on in a further line or is cut with an ellipsis.
enum class Wrap : std::uint8_t { Wrap, Ellipsis };

struct TableColumn {
    TextAlign align = TextAlign::Left;
    Wrap wrap = Wrap::Wrap;
    bool bold = false;
    /// Whether the decimal points of "12.00" and "(12.00)" are lined up.
    bool alignCurrency = false;
    Twips width = 0;    ///< 0 for a share of the remaining width
    double percent = 0; ///< of the printable width; used if it is above 0
};

struct TableHeader {
    std::vector<std::string> cells{}; ///< empty for a table without a header row
    bool bold = false;
    std::optional<PrintColor> background = std::nullopt;
    Twips height = 0; ///< at least this high
    VerticalAlign vertical = VerticalAlign::Top;
};

/// The rows of a table, read once from the first to the last as they are printed, so that they
/// needn't all be in memory. The cells stay valid until the next call.
class TableRows {
  public:
    virtual ~TableRows() = default;
    virtual std::size_t Count() const = 0;
    /// Returns the cells of the next row; null after the last one. If a row has fewer cells than
    /// the table has columns, the rest stays blank; further cells are not shown.
    virtual const std::vector<std::string>* Next() = 0;
};

/// Rows in memory.
class HeldRows : public TableRows {
  public:
    explicit HeldRows(std::vector<std::vector<std::string>> rows) : rows_(std::move(rows)) {}
    std::size_t Count() const override { return rows_.size(); }
    const std::vector<std::string>* Next() override {
        return next_ < rows_.size() ? &rows_[next_++] : nullptr;
    }

  private:
    std::vector<std::vector<std::string>> rows_;
    std::size_t next_ = 0;
};

/// A table between AddTable and EndTable, whose attributes may still be set. Columns count from 0.
struct PrintTable {
    std::vector<TableColumn> columns{};
    TableHeader header{};
    TableBorder border = TableBorder::None;
    std::size_t rowCount = 0; ///< without the header row
};

/// Reads the columns of a format such as "<2880|>20%|^1.5in|<": "<", ">" and "^" align left, right
/// and centre, "~" cuts instead of wrapping; the width is in twips, percent of the printable width
/// or a unit that ParseLength reads. The columns without a width above 0 share the remaining width.
std::vector<TableColumn> ParseTableFormat(std::string_view format);

/// Returns true for a text such as "1,234.50", "(12.00)" or "-5%": digits with the signs of
/// numbers.
bool LooksLikeAmount(std::string_view text);

/// Returns the rows and cells of a text: rows separated by ";", cells by "|". An empty text has no
/// rows; a ";" at the end of the text adds no row.
std::vector<std::vector<std::string>> ParseTableText(std::string_view text);

} // namespace platform
