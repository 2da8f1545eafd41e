#pragma once

#include <filesystem>
#include <optional>

#include <CLI/CLI.hpp>

namespace vestrelctl {

/// The options before the command's name.
struct Options {
    /// The database directory; unset for the registered default.
    std::optional<std::filesystem::path> data;
    /// Whether nothing may be written, even if the books allow it.
    bool readOnly = false;
};

// Each command adds itself to the command line. Its work runs while the line is parsed and throws a
// platform::Error if it fails.
void AddInit(CLI::App& line);
void AddRegister(CLI::App& line);
void AddUpdate(CLI::App& line, const Options& options);
void AddRuns(CLI::App& line, const Options& options);
void AddPreview(CLI::App& line, const Options& options);
void AddAlerts(CLI::App& line, const Options& options);
void AddFind(CLI::App& line, const Options& options);
void AddSql(CLI::App& line, const Options& options);
void AddAmortize(CLI::App& line, const Options& options);
void AddDepreciation(CLI::App& line, const Options& options);
void AddReports(CLI::App& line);
void AddReport(CLI::App& line, const Options& options);
void AddPost(CLI::App& line, const Options& options);
void AddPay(CLI::App& line, const Options& options);
void AddReturnPayment(CLI::App& line, const Options& options);
void AddCredit(CLI::App& line, const Options& options);
void AddPayMortgage(CLI::App& line, const Options& options);
void AddMerge(CLI::App& line, const Options& options);
void AddExport(CLI::App& line, const Options& options);
void AddExportText(CLI::App& line, const Options& options);
void AddImportText(CLI::App& line, const Options& options);
void AddBackup(CLI::App& line, const Options& options);
void AddRestore(CLI::App& line);
void AddCheck(CLI::App& line, const Options& options);

} // namespace vestrelctl
