#include <cstdio>
#include <exception>
#include <string>

#include <CLI/CLI.hpp>

#include "core/Globals.h"
#include "platform/system/Clock.h"
#include "platform/values/Errors.h"
#include "shell/Registrations.h"
#include "vestrelctl/Command.h"

namespace {

constexpr int kFailed = 1;
constexpr int kWrongUsage = 2;

std::string SetToday(const std::string& text) {
    const auto day = platform::Date::TryParse(text);
    if (!day) return "'" + text + "' is no day of the form mm/dd/yyyy";
    platform::SetToday(day);
    return {};
}

int Run(int argc, char** argv) {
    CLI::App line("Keeps the books of rental property without a window.", "vestrelctl");
    line.require_subcommand(1);

    vestrelctl::Options options;
    line.add_option("--data", options.data, "The database directory")->type_name("DIR");
    line.add_option("--today", "The day to take for today")
        ->type_name("MM/DD/YYYY")
        ->check(CLI::Validator(SetToday, "", ""));

    vestrelctl::AddInit(line);
    vestrelctl::AddRegister(line);
    vestrelctl::AddUpdate(line, options);
    vestrelctl::AddAlerts(line, options);
    vestrelctl::AddSql(line, options);
    vestrelctl::AddPost(line, options);
    vestrelctl::AddPay(line, options);

    try {
        line.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return line.exit(error) == 0 ? 0 : kWrongUsage;
    }
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    try {
        core::InitGlobals("");
        shell::RegisterLogic();
        return Run(argc, argv);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "vestrelctl: %s\n", error.what());
        return kFailed;
    }
}
