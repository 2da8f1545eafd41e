#include <algorithm>
#include <optional>
#include <utility>

#include "platform/printing/SurfaceState.h"
#include "platform/printing/TableLayout.h"

namespace platform {

void PrintSurface::StartTable() {
    state_->table = PrintTable();
    state_->rows.reset();
}

void PrintSurface::AddTable(std::string_view format, std::string_view header,
                            std::string_view body) {
    auto titles = ParseTableText(header);
    auto rows = ParseTableText(body);
    std::size_t widest = 0;
    for (const auto& row : rows)
        widest = std::max(widest, row.size());
    AddTableArray(format, titles.empty() ? std::vector<std::string>() : std::move(titles.front()),
                  std::make_unique<HeldRows>(std::move(rows)));
    PrintTable& table = state_->table;
    table.columns.resize(std::max(table.columns.size(), widest));
}

void PrintSurface::AddTableArray(std::string_view format, std::vector<std::string> header,
                                 std::unique_ptr<TableRows> rows) {
    PrintTable& table = state_->table;
    table = PrintTable();
    table.columns = ParseTableFormat(format);
    table.header.cells = std::move(header);
    table.columns.resize(std::max(table.columns.size(), table.header.cells.size()));
    table.rowCount = rows ? rows->Count() : 0;
    state_->rows = std::move(rows);
}

PrintTable& PrintSurface::Table() {
    return state_->table;
}

void PrintSurface::EndTable() {
    const std::unique_ptr<TableRows> rows = std::exchange(state_->rows, nullptr);
    const PrintTable& table = state_->table;
    if (!rows || table.columns.empty()) return;

    const FittedColumns columns = FitColumns(table.columns, PrintWidth());
    if (state_->flow) state_->flow->BeginTable(style_, table, columns.widths);
    std::optional<TableLayout> layout;
    if (state_->maker.HasSink()) {
        layout.emplace(state_->maker, metrics_, style_, table, columns);
        layout->Begin(y_);
    }
    std::vector<std::string_view> cells;
    while (const std::vector<std::string>* row = rows->Next()) {
        cells.assign(row->begin(), row->end());
        cells.resize(table.columns.size());
        if (state_->flow) state_->flow->TableRow(cells);
        if (layout) layout->Add(cells);
    }
    if (state_->flow) state_->flow->EndTable();
    if (layout) MoveTo(MarginLeft(), layout->End());
}

} // namespace platform
