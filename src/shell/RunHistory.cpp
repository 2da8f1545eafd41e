#include "shell/RunHistory.h"

#include <unistd.h>

#include <algorithm>
#include <exception>
#include <fstream>
#include <optional>
#include <utility>

#include <fmt/core.h>
#include <nlohmann/json.hpp>

#include "core/Globals.h"
#include "core/NotifyAll.h"
#include "core/RecordKinds.h"
#include "platform/system/AppendToFile.h"
#include "platform/system/Clock.h"
#include "platform/values/Conversions.h"
#include "platform/values/Errors.h"

namespace shell {

using Json = nlohmann::ordered_json;
using platform::Date;

namespace {

constexpr int kPerMinute = 60;

std::string Now() {
    const int second = static_cast<int>(platform::SecondOfDay());
    const int minute = second / kPerMinute;
    return fmt::format("{} {:02}:{:02}:{:02}", platform::Today().ToText(), minute / kPerMinute,
                       minute % kPerMinute, second % kPerMinute);
}

Json RowAsJson(const core::PostedRow& row) {
    return {{"day", row.date.ToText()},
            {"what", row.category},
            {"amount", platform::MoneyToFixedText(row.amount)},
            {"row", row.id},
            {"posting", static_cast<std::int16_t>(row.reason.posting)},
            {"due", row.reason.due.ToText()},
            {"number", row.reason.number},
            {"every", row.reason.every ? static_cast<std::int16_t>(*row.reason.every) : 0}};
}

/// Returns the interval of a number; 0 means an event that had never run before.
std::optional<core::IntervalType> IntervalFrom(const Json& number) {
    const auto type = number.get<std::int16_t>();
    if (type == 0) return std::nullopt;
    return core::IntervalType{type};
}

Date DateFrom(const Json& text) {
    return Date::TryParse(text.get<std::string>()).value_or(Date());
}

/// Returns a posted row, which refers to the text of its category in `row`.
core::PostedRow RowFrom(const Json& row) {
    return {
        .date = DateFrom(row.at("day")),
        .category = row.at("what").get_ref<const std::string&>(),
        .amount = platform::StrToMoney(row.at("amount").get<std::string>()),
        .reason = core::RunReason{.posting = core::Posting{row.at("posting").get<std::int16_t>()},
                                  .due = DateFrom(row.at("due")),
                                  .number = row.at("number").get<std::int32_t>(),
                                  .every = IntervalFrom(row.at("every"))},
        .id = row.at("row").get<std::int32_t>()};
}

void AddRecord(RunDigest& digest, const Json& line) {
    const auto kind = line.at("kind").get<core::RecordKind>();
    const auto id = line.at("id").get<std::int32_t>();
    const auto name = line.at("name").get<std::string>();
    if (line.contains("fault")) {
        digest.Failed(kind, id, name, line.at("fault").get<std::string>());
        return;
    }
    std::vector<core::PostedRow> rows;
    for (const Json& row : line.at("rows"))
        rows.push_back(RowFrom(row));
    digest.Posted(kind, id, name, rows);
}

/// Returns the day that the run of a line brought the books to, without reading the rest of the
/// line; unset if it can't be read.
Date DayOf(std::string_view line) {
    constexpr std::string_view kMark = R"("to":")";
    constexpr std::size_t kHead = 200; // before anything that the user has named
    constexpr std::size_t kDayLength = 10;
    const std::size_t at = line.substr(0, kHead).find(kMark);
    if (at == std::string_view::npos) return {};
    return Date::TryParse(std::string(line.substr(at + kMark.size(), kDayLength))).value_or(Date());
}

/// Returns the permissions of the books. Other users may work with the books too, and read and
/// write this file.
std::filesystem::perms PermissionsOfBooks() {
    std::error_code failure;
    const auto status = std::filesystem::status(core::App().Connection.File(), failure);
    using std::filesystem::perms;
    return failure ? perms::owner_read | perms::owner_write : status.permissions();
}

/// Runs are written in the order of their days, so that the first line tells whether there is
/// anything to drop.
void DropOldRuns(const std::filesystem::path& file) {
    const Date oldest =
        platform::DateAdd(platform::Interval::Year, -kYearsOfHistory, platform::Today());
    std::ifstream lines(file);
    std::string first;
    if (!std::getline(lines, first) || DayOf(first) >= oldest) return;
    platform::KeepLines(file, [&](std::string_view line) { return DayOf(line) >= oldest; });
}

/// Collects the lines of each run, which other programs may have mixed with theirs.
class Reader {
  public:
    explicit Reader(Date since) : since_(since) {}

    void Read(const std::string& text) {
        const Date day = DayOf(text); // unset in a line that can't be read
        if (since_.IsSet() && day.IsSet() && day < since_) {
            page_.hasEarlier = true;
            return;
        }
        const Json line = Json::parse(text, nullptr, false);
        if (!line.is_object()) return;
        try {
            AddRecord(RunOf(line).digest, line);
        } catch (const Json::exception&) {
            return; // cut off, or changed by hand
        }
    }

    RunPage Take() {
        std::ranges::reverse(page_.runs);
        std::erase_if(page_.runs, [](const PastRun& run) {
            return run.digest.Rows().empty() && run.digest.Faults().empty();
        });
        return std::move(page_);
    }

  private:
    PastRun& RunOf(const Json& line) {
        auto name = line.at("run").get<std::string>();
        const auto found = std::find_if(page_.runs.rbegin(), page_.runs.rend(),
                                        [&](const PastRun& run) { return run.name == name; });
        if (found != page_.runs.rend()) return *found;
        return page_.runs.emplace_back(PastRun{.name = std::move(name),
                                               .at = line.at("at").get<std::string>(),
                                               .day = DateFrom(line.at("to"))});
    }

    Date since_;
    RunPage page_;
};

} // namespace

std::filesystem::path HistoryFileOf(const std::filesystem::path& books) {
    if (books.empty()) return {};
    return std::filesystem::path(books).replace_extension(".runs");
}

std::filesystem::path HistoryFile(const platform::Connection& books) {
    return HistoryFileOf(books.File());
}

std::string PastRun::Days() const {
    const Date first = digest.FirstDay();
    if (!first.IsSet() || first == day) return day.ToText();
    return fmt::format("{} to {}", first.ToText(), day.ToText());
}

RunPage ReadHistory(const std::filesystem::path& file, Date since) {
    std::error_code failure;
    if (!std::filesystem::exists(file, failure)) return {};
    std::ifstream lines(file);
    if (!lines)
        throw platform::Error(
            fmt::format("The history of runs, {}, can't be read.", file.string()));
    Reader reader(since);
    for (std::string line; std::getline(lines, line);)
        reader.Read(line);
    return reader.Take();
}

std::vector<PastRun> ReadHistory(const std::filesystem::path& file) {
    return ReadHistory(file, Date()).runs;
}

RunRecorder::RunRecorder(std::filesystem::path file, core::RunListener& next)
    : file_(std::move(file)), next_(next), at_(Now()) {
    static int runs = 0;
    run_ = fmt::format("{} {}.{}", at_, ::getpid(), ++runs);
}

void RunRecorder::Posted(core::RecordKind recordKind, std::int32_t id, std::string_view description,
                         const std::vector<core::PostedRow>& rows) {
    Json posted = Json::array();
    for (const core::PostedRow& row : rows)
        posted.push_back(RowAsJson(row));
    const Json line = {{"run", run_},
                       {"at", at_},
                       {"to", platform::Today().ToText()},
                       {"kind", recordKind},
                       {"id", id},
                       {"name", description},
                       {"rows", std::move(posted)}};
    Append(line.dump(-1, ' ', false, Json::error_handler_t::replace));
    next_.Posted(recordKind, id, description, rows);
}

void RunRecorder::Failed(core::RecordKind recordKind, std::int32_t id, std::string_view description,
                         std::string_view reason) {
    const Json line = {{"run", run_},        {"at", at_}, {"to", platform::Today().ToText()},
                       {"kind", recordKind}, {"id", id},  {"name", description},
                       {"fault", reason}};
    Append(line.dump(-1, ' ', false, Json::error_handler_t::replace));
    next_.Failed(recordKind, id, description, reason);
}

void RunRecorder::Append(const std::string& line) {
    if (file_.empty() || !fault_.empty()) return;
    if (!std::exchange(hasWritten_, true)) {
        try {
            DropOldRuns(file_);
        } catch (const std::exception&) {
            // Old runs do no harm; the next run tries again to drop them.
        }
    }
    try {
        platform::AppendLine(file_, line, PermissionsOfBooks());
    } catch (const platform::Error& failure) {
        fault_ = failure.what();
    }
}

void RunAndRecord(RunDigest& digest) {
    RunRecorder recorder(HistoryFile(core::App().Connection), digest);
    const auto before = digest.Rows().size() + digest.Faults().size();
    core::UpdateRecords(recorder);
    if (!recorder.Fault().empty()) digest.SetHistoryFault(recorder.Fault());
    if (digest.Rows().size() + digest.Faults().size() != before)
        core::NotifyAll(core::kNone, core::kRecordsChanged, 0);
}

} // namespace shell
