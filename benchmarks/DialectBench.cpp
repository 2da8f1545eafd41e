// The cost of compiling a statement of the dialect: all statements that the program uses, against
// the tables of the books.
#include <algorithm>
#include <chrono>
#include <vector>

#include <fmt/core.h>

#include "Measure.h"
#include "platform/database/Connection.h"
#include "platform/database/dialect/Compiler.h"
#include "store/CreateDatabase.h"
#include "store/Tables.h"
#include "support/StatementFile.h"
#include "support/TemporaryFolder.h"

namespace {

constexpr int kRepeats = 200;

/// Microseconds for one compilation.
double CompileTime(std::string_view statement, const platform::dialect::Catalog& tables) {
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < kRepeats; ++i)
        platform::dialect::Compile(statement, tables);
    const std::chrono::duration<double, std::micro> took = std::chrono::steady_clock::now() - start;
    return took.count() / kRepeats;
}

int Run() {
    const support::TemporaryFolder folder;
    store::CreateDatabase(folder / "books");
    platform::Connection connection;
    connection.Open(folder / "books" / "Vestrel.mdb");
    connection.RunScript(store::SchemaScript(store::ReferenceTables()));

    std::vector<double> times;
    for (const support::StatementBlock& block : support::ReadStatementFolder(VESTREL_STATEMENTS)) {
        if (block.kind == support::BlockKind::Error) continue;
        times.push_back(CompileTime(block.statement, connection.Tables()));
    }
    std::sort(times.begin(), times.end());
    fmt::print("{} statements, {:.1f} microseconds for the quickest, {:.1f} for the slowest\n",
               times.size(), times.front(), times.back());
    bench::Report("median compilation of a statement", times[times.size() / 2], 20, "us");
    return bench::ExitStatus();
}

} // namespace

int main() {
    return bench::Guarded(Run);
}
