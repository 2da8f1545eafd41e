#include <iostream>

#include <fmt/core.h>

#include "core/DailyRun.h"
#include "core/Globals.h"
#include "core/RecordKinds.h"
#include "platform/values/Conversions.h"
#include "platform/values/Errors.h"
#include "platform/values/Text.h"
#include "shell/RunHistory.h"
#include "vestrelctl/Command.h"
#include "vestrelctl/OpenBooks.h"
#include "vestrelctl/Output.h"

namespace vestrelctl {

namespace {

/// Prints one line for each posted row, and at the end their number.
class Printer : public core::RunListener {
  public:
    void Posted(core::RecordKind kind, std::int32_t, std::string_view description,
                const std::vector<core::PostedRow>& rows) override {
        for (const core::PostedRow& row : rows) {
            const std::string_view category = platform::Trim(row.category);
            std::cout << fmt::format(
                "{}, {}, {}, {}\n", category.empty() ? core::RecordKindName(kind) : category,
                description, row.date.ToText(), platform::MoneyToFixedText(row.amount));
        }
        FlushOutput();
        posted_ += rows.size();
    }

    void Failed(core::RecordKind recordKind, std::int32_t, std::string_view description,
                std::string_view reason) override {
        std::cout << fmt::format("Not updated: {}: {}\n",
                                 core::NameOfFailed(recordKind, description), reason);
        ++failed_;
    }

    void Finish() const {
        std::cout << fmt::format("{} {} posted.\n", posted_, posted_ == 1 ? "row" : "rows");
        if (failed_ == 0) return;
        std::cout.flush();
        throw platform::Error(fmt::format("{} {} not be brought up to date", failed_,
                                          failed_ == 1 ? "record could" : "records could"));
    }

  private:
    std::size_t posted_ = 0;
    std::size_t failed_ = 0;
};

} // namespace

void AddUpdate(CLI::App& line, const Options& options) {
    CLI::App* command = line.add_subcommand("update", "Bring the books up to date");
    command->callback([&options] {
        OpenBooks(options, Purpose::Write);
        CheckOutput();
        Printer printer;
        shell::RunRecorder recorder(shell::HistoryFile(core::App().Connection), printer);
        core::UpdateRecords(recorder);
        if (!recorder.Fault().empty())
            std::cerr << "The history of runs can't be kept: " << recorder.Fault() << '\n';
        printer.Finish();
    });
}

} // namespace vestrelctl
