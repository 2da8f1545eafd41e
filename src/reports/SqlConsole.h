#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/database/Recordset.h"

namespace reports {

/// The colours of the SQL console's messages, as 0xBBGGRR.
enum class ConsoleColor : std::uint32_t { Plain = 0, Good = 0xFF0000, Bad = 255 };

struct ConsoleAnswer {
    std::string message;
    ConsoleColor color = ConsoleColor::Plain;
    /// Why a statement failed; empty if it didn't.
    std::string reason;
    /// The rows to show: open for a select, also one without rows, and for the list of
    /// tables.
    platform::Recordset rows;
};

/// Runs a statement as it was typed. A line end counts as a blank.
ConsoleAnswer ExecuteInConsole(std::string_view text);

/// Lists the tables of the open database.
ConsoleAnswer ListTablesInConsole();

/// Writes a definition that prints a query's rows as the scratch report. Throws an Error if the
/// file can't be written.
void WriteConsoleReport(std::string_view query);

} // namespace reports
