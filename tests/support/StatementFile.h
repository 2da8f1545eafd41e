#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace support {

// Statement files hold SQL statements of the program's dialect with what is expected of each.
// Blocks are separated by empty lines; a line that starts with '#' outside a block is a comment.
//
//   query NAME              run NAME                error NAME
//   SELECT ...              UPDATE ...              SELECT ...
//   ----                    ----                    ----
//   Name:Type, Name:Type    2                       the text of the error
//   "a",1                   ----
//   "b",2                   SELECT ...
//                           ----
//                           Name:Type, Name:Type
//                           "a",1
//
// A block's name is one word and may be missing. A column's name that holds a comma, a colon or a
// quote is in quotes; Table.* means all fields of a table; a line of columns that ends in
// a comma goes on in the next. Rows are CSV as the companion program prints them, but a row that is
// a single null is written `null`; `...` in place of rows, or of the number of rows that a
// statement affects, leaves them open. A query after a statement that is run shows what the
// statement did, before it is rolled back.
//
// `run keep` is set-up: such blocks of a file are run before its others, in order, and stay.

enum class BlockKind { Query, Run, Error };

/// A select with the columns and rows expected of it.
struct ExpectedQuery {
    std::string statement;
    std::string columns;
    std::vector<std::string> rows;
    bool anyRows = false;
};

struct StatementBlock {
    std::filesystem::path file;
    int line = 0;   ///< of the block's first line, counted from 1
    int number = 0; ///< in its file, counted from 1
    std::string name;
    BlockKind kind = BlockKind::Query;
    bool keep = false;

    std::string statement;
    ExpectedQuery query; ///< of a query, or after a statement that is run
    bool hasQuery = false;
    std::string expected; ///< the number of rows affected, or the text of the error
};

/// The blocks of a file in order. Throws std::runtime_error, which names file and line, if one is
/// malformed.
std::vector<StatementBlock> ReadStatementFile(const std::filesystem::path& path);

/// The blocks of all files `*.test` below a folder, the files by name.
std::vector<StatementBlock> ReadStatementFolder(const std::filesystem::path& folder);

} // namespace support
