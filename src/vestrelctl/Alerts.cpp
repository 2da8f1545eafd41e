#include "alerts/Alerts.h"

#include <iostream>
#include <string>

#include <fmt/core.h>

#include "alerts/PortfolioSummary.h"
#include "core/Preferences.h"
#include "platform/values/Csv.h"
#include "platform/values/Errors.h"
#include "platform/values/Format.h"
#include "vestrelctl/Command.h"
#include "vestrelctl/OpenBooks.h"

namespace vestrelctl {

namespace {

void PrintAlerts() {
    std::cout << "\"RecordKind\",\"RecordId\",\"Text\"\n";
    for (const alerts::AlertItem& item : alerts::GetAlerts()) {
        std::cout << core::KindNumber(item.recordKind) << ',' << item.recordId << ','
                  << platform::CsvText(item.text) << '\n';
    }
}

/// Throws Error after the last figure if some could not be worked out.
void PrintSummary() {
    std::string faults;
    std::cout << "\"Item\",\"Data\"\n";
    for (const alerts::SummaryGroup& group : alerts::GetPortfolioSummary()) {
        for (const alerts::SummaryItem& item : group.items) {
            if (!item.fault.empty()) {
                faults +=
                    fmt::format("{}{}: {}", faults.empty() ? "" : "; ", item.name, item.fault);
                std::cout << platform::CsvText(item.name) << ",\n";
                continue;
            }
            std::cout << platform::CsvText(item.name) << ','
                      << platform::CsvText(platform::FormatMoney(item.total)) << '\n';
        }
    }
    if (!faults.empty()) throw platform::Error(faults);
}

} // namespace

void AddAlerts(CLI::App& line, const Options& options) {
    CLI::App* command =
        line.add_subcommand("alerts", "What needs attention, and the summary, as CSV");
    command->callback([&options] {
        OpenBooks(options, Purpose::Read);
        core::LoadPreferences();
        PrintAlerts();
        std::cout << '\n';
        PrintSummary();
    });
}

} // namespace vestrelctl
