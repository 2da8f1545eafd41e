#include "reports/SqlConsole.h"

#include <algorithm>
#include <exception>

#include <fmt/core.h>

#include "core/Globals.h"
#include "core/Session.h"
#include "platform/values/Text.h"
#include "reports/ScratchReport.h"

namespace reports {

namespace {

/// Returns a statement as a line of a definition, in which a tab would separate fields.
std::string StatementLine(std::string_view text) {
    std::string line = platform::OneLine(platform::Trim(text));
    std::ranges::replace(line, '\t', ' ');
    return line;
}

ConsoleAnswer Select(const std::string& sql) {
    ConsoleAnswer answer;
    answer.message = "Command returned 0 records";
    try {
        answer.rows.Open(core::App().Connection, sql);
        if (answer.rows.RecordCount() > 0) {
            answer.message = "Command completed successfully";
            answer.color = ConsoleColor::Good;
        }
    } catch (const std::exception& failure) {
        answer.reason = failure.what();
        core::CloseRecordset(answer.rows);
    }
    return answer;
}

ConsoleAnswer Change(const std::string& sql) {
    ConsoleAnswer answer;
    try {
        core::App().Connection.Execute(sql);
        answer.message = "Command completed successfully";
        answer.color = ConsoleColor::Good;
    } catch (const std::exception& failure) {
        answer.message = "Command returned error";
        answer.color = ConsoleColor::Bad;
        answer.reason = failure.what();
    }
    return answer;
}

} // namespace

ConsoleAnswer ExecuteInConsole(std::string_view text) {
    const std::string sql = StatementLine(text);
    ConsoleAnswer answer;
    if (sql.empty()) {
        answer.message = "SQL Command not specified";
        return answer;
    }
    const auto blank = sql.find(' ');
    if (blank == std::string::npos) {
        answer.message = "Improper SQL query";
        return answer;
    }
    const std::string word = platform::ToUpper(sql.substr(0, blank));
    if (word == "SELECT") return Select(sql);
    if (word == "INSERT" || word == "DELETE" || word == "UPDATE") return Change(sql);
    answer.message = "Unsupported command: " + word;
    answer.color = ConsoleColor::Bad;
    return answer;
}

ConsoleAnswer ListTablesInConsole() {
    ConsoleAnswer answer;
    try {
        std::string sql;
        for (const auto& table : core::App().Connection.Tables().Tables()) {
            sql += fmt::format("{}SELECT '{}' AS [TABLE_NAME], 'TABLE' AS [TABLE_TYPE]",
                               sql.empty() ? "" : " UNION ALL ", table.name);
        }
        answer.rows.Open(core::App().Connection, sql + " ORDER BY 1");
        answer.message = "Tables retrieved successfully";
        answer.color = ConsoleColor::Good;
    } catch (const std::exception& failure) {
        core::CloseRecordset(answer.rows);
        answer.message = "Tables retrieval failed";
        answer.color = ConsoleColor::Bad;
        answer.reason = failure.what();
    }
    return answer;
}

void WriteConsoleReport(std::string_view query) {
    const std::string sql = StatementLine(query);
    WriteScratchReport(ScratchReportText("Database Browser Query", "Query: " + sql, sql));
}

} // namespace reports
