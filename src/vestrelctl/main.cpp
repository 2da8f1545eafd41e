#include <algorithm>
#include <cstdio>
#include <exception>
#include <iostream>
#include <string>
#include <vector>

#include <fmt/core.h>
#include <CLI/CLI.hpp>

#include "core/AppPath.h"
#include "core/Globals.h"
#include "platform/system/Clock.h"
#include "platform/system/Version.h"
#include "platform/values/Errors.h"
#include "shell/Registrations.h"
#include "vestrelctl/Command.h"
#include "vestrelctl/ReportsFolder.h"

namespace {

constexpr int kFailed = 1;
constexpr int kWrongUsage = 2;

constexpr const char* kFooter = R"(Exit status:
  0                           It was done
  1                           It failed; one line on standard error says why
  2                           The command line is wrong

Files:
  ~/.config/Vestrel/registry.json
                              The settings, and where the books are (below
                              $XDG_CONFIG_HOME, if set)
  ~/.local/share/Vestrel/     Reports and letter templates (below $XDG_DATA_HOME, if
                              set). A copy of the program that is not installed keeps
                              them in its own folder.
  Vestrel.mdb                 The books: an SQLite file in the directory of the books)";

std::string SetToday(const std::string& text) {
    const auto day = platform::Date::TryParse(text);
    if (!day) return "'" + text + "' is not a valid date (mm/dd/yyyy)";
    platform::SetToday(day);
    return {};
}

/// Refuses an empty name: a script with an empty variable doesn't mean the root of the file system.
std::string IsNamed(const std::string& directory) {
    return directory.empty() ? "no directory is named" : std::string();
}

/// Prints the reason in one line, whatever it holds, and returns the status.
int Fail(std::string reason, int status) {
    std::ranges::replace(reason, '\n', ' ');
    std::cout.flush();
    std::fprintf(stderr, "vestrelctl: %s\n", reason.c_str());
    return status;
}

/// "--check=" gives an empty value; without this, the parser would take the next argument for it.
void AddGivenArgument(std::vector<std::string>& arguments, const std::string& argument) {
    const auto equals = argument.find('=');
    const bool isEmptyValue = argument.starts_with("--") && equals + 1 == argument.size() &&
                              argument.find_first_of(" \t\n") == std::string::npos;
    if (!isEmptyValue) {
        arguments.push_back(argument);
        return;
    }
    arguments.push_back(argument.substr(0, equals));
    arguments.emplace_back();
}

/// Returns the arguments in the order in which the parser takes them, the last one first.
std::vector<std::string> ArgumentsOf(int argc, char** argv) {
    std::vector<std::string> arguments;
    for (int i = 1; i < argc; ++i)
        AddGivenArgument(arguments, argv[i]);
    std::ranges::reverse(arguments);
    return arguments;
}

std::string UsageFault(const CLI::App& line, const CLI::ParseError& error) {
    const std::vector<std::string> unknown = line.remaining();
    const std::string fault = unknown.empty() || !line.get_subcommands().empty()
                                  ? error.what()
                                  : "there is no command " + unknown.front();
    return fault + " (vestrelctl --help tells the usage)";
}

int Run(int argc, char** argv) {
    CLI::App line("Keeps the books of rental property without a window.", "vestrelctl");
    line.require_subcommand(1);
    line.set_version_flag("--version", fmt::format("vestrelctl {}", platform::Version()));

    vestrelctl::Options options;
    line.add_option("--data", options.data, "The database directory")
        ->type_name("DIR")
        ->check(CLI::Validator(IsNamed, "", ""));
    line.add_option("--today", "The day to use as today")
        ->type_name("MM/DD/YYYY")
        ->check(CLI::Validator(SetToday, "", ""));

    line.add_flag("--read-only", options.readOnly, "Change nothing, even if that is allowed");
    line.add_option_function<std::string>("--reports", vestrelctl::UseReportsFolder,
                                          "The folder of the report definitions")
        ->type_name("DIR");

    // Runs before a command's work, but not for its help.
    line.parse_complete_callback(core::MakeDirectories);

    vestrelctl::AddInit(line);
    vestrelctl::AddRegister(line);
    vestrelctl::AddUpdate(line, options);
    vestrelctl::AddRuns(line, options);
    vestrelctl::AddPreview(line, options);
    vestrelctl::AddAlerts(line, options);
    vestrelctl::AddFind(line, options);
    vestrelctl::AddSql(line, options);
    vestrelctl::AddAmortize(line, options);
    vestrelctl::AddDepreciation(line, options);
    vestrelctl::AddReports(line);
    vestrelctl::AddReport(line, options);
    vestrelctl::AddPost(line, options);
    vestrelctl::AddPay(line, options);
    vestrelctl::AddReturnPayment(line, options);
    vestrelctl::AddCredit(line, options);
    vestrelctl::AddPayMortgage(line, options);
    vestrelctl::AddMerge(line, options);
    vestrelctl::AddExport(line, options);
    vestrelctl::AddExportText(line, options);
    vestrelctl::AddImportText(line, options);
    vestrelctl::AddBackup(line, options);
    vestrelctl::AddRestore(line);
    vestrelctl::AddCheck(line, options);
    // Set now, because commands would have inherited it.
    line.footer(kFooter);

    try {
        line.parse(ArgumentsOf(argc, argv));
    } catch (const CLI::Success& help) {
        line.exit(help);
    } catch (const CLI::ParseError& error) {
        return Fail(UsageFault(line, error), kWrongUsage);
    }
    if (!std::cout.flush()) return Fail("the output can't be written", kFailed);
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    try {
        core::FindAppPath();
        shell::RegisterLogic();
        return Run(argc, argv);
    } catch (const std::exception& error) {
        return Fail(error.what(), kFailed);
    }
}
