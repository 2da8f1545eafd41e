#pragma once

#include <cstddef>
#include <cstdio>
#include <functional>

namespace bench {

/// One row of the printed table: eight cells.
struct PlainRow {
    char cells[8][40];
};

/// The row of this number, the same for every program.
void FillRow(std::size_t number, PlainRow& row);

/// Gives the rows to the plain loops, from number 0 on.
using RowSource = std::function<void(std::size_t number, PlainRow& row)>;

/// What printing to PDF is held against: the same pages, landscape letter, eight columns, header
/// and footer, by a plain loop with a font that readers bring and zlib as it comes. Returns the
/// pages.
int WritePlainPdf(const char* path, std::size_t rows, const RowSource& source = FillRow);

/// The same text as HTML by a plain loop.
void WritePlainHtml(const char* path, std::size_t rows, const RowSource& source = FillRow);

} // namespace bench
