#include <cstdint>
#include <iostream>
#include <string>
#include <utility>

#include <fmt/core.h>

#include "core/Globals.h"
#include "core/Rows.h"
#include "core/RowsetTable.h"
#include "core/TableCsv.h"
#include "platform/database/Recordset.h"
#include "platform/database/dialect/Compiler.h"
#include "platform/values/Text.h"
#include "vestrelctl/Command.h"
#include "vestrelctl/OpenBooks.h"
#include "vestrelctl/Output.h"

namespace vestrelctl {

namespace {

/// Goes before the first line of a result: nothing, or the empty line that separates it from the
/// result before it.
using Separator = std::string_view;

void PrintRows(std::string_view statement, Separator separator) {
    platform::Recordset rows = core::Read(statement);
    std::cout << separator;
    core::WriteCsv(core::RowsetTable(std::move(rows)), std::cout);
}

void RunStatement(std::string_view statement, Separator separator = {}) {
    platform::Connection& connection = core::App().Connection;
    const auto kind = platform::dialect::Compile(statement, connection.Tables()).kind;
    if (kind == platform::dialect::StatementKind::Select) {
        PrintRows(statement, separator);
    } else {
        BookAndPrint([&] {
            const std::int64_t affected = connection.Execute(statement);
            std::cout << separator << affected << '\n';
        });
    }
}

/// Reads the next statement of the input, which ends with a line that ends in ';' (or with the
/// input). Returns false if there is none.
bool ReadStatement(std::istream& input, std::string& statement) {
    statement.clear();
    std::string line;
    while (std::getline(input, line)) {
        statement += line;
        statement += '\n';
        if (platform::Trim(line).ends_with(';')) return true;
    }
    return !platform::Trim(statement).empty();
}

/// Skips the byte order mark with which some editors begin a file.
void SkipByteOrderMark(std::istream& input) {
    constexpr std::string_view kMark = "\xEF\xBB\xBF";
    if (input.peek() == static_cast<unsigned char>(kMark.front())) input.ignore(kMark.size());
}

void RunStatements(std::istream& input) {
    SkipByteOrderMark(input);
    std::string statement;
    for (int number = 1; ReadStatement(input, statement); ++number) {
        try {
            RunStatement(statement, number > 1 ? "\n" : "");
        } catch (const platform::Error& error) {
            throw platform::Error(fmt::format("statement {}: {}", number, error.what()));
        }
    }
}

} // namespace

void AddSql(CLI::App& line, const Options& options) {
    CLI::App* command = line.add_subcommand("sql", "Run one statement, or those of standard input");
    auto text = std::make_shared<std::string>();
    command->add_option("statement", *text, "The statement, or - for standard input")->required();
    command->callback([text, &options] {
        OpenDatabase(options, Purpose::Read);
        if (*text == "-") {
            RunStatements(std::cin);
        } else {
            RunStatement(*text);
        }
    });
}

} // namespace vestrelctl
