#include "alerts/Alerts.h"

#include <iostream>

#include "alerts/PortfolioSummary.h"
#include "core/Preferences.h"
#include "platform/values/Csv.h"
#include "platform/values/Format.h"
#include "vestrelctl/Command.h"
#include "vestrelctl/OpenBooks.h"

namespace vestrelctl {

namespace {

void PrintAlerts() {
    std::cout << "\"RecordKind\",\"RecordId\",\"Text\"\n";
    for (const alerts::AlertItem& item : alerts::GetAlerts()) {
        std::cout << item.recordKind << ',' << item.recordId << ',' << platform::CsvText(item.text)
                  << '\n';
    }
}

void PrintSummary() {
    std::cout << "\"Item\",\"Data\"\n";
    for (const alerts::SummaryGroup& group : alerts::GetPortfolioSummary()) {
        for (const alerts::SummaryItem& item : group.items) {
            std::cout << platform::CsvText(item.name) << ','
                      << platform::CsvText(platform::FormatMoney(item.total)) << '\n';
        }
    }
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
