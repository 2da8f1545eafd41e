#include "leases/Story.h"

#include <fstream>
#include <stdexcept>

#include <fmt/core.h>

#include "core/Globals.h"
#include "leases/AmountPayment.h"
#include "leases/ChargeDeposits.h"
#include "leases/Credits.h"
#include "leases/LeaseFixture.h"
#include "leases/RentPayment.h"
#include "leases/ReturnPayment.h"
#include "leases/mLease.h"
#include "platform/system/Clock.h"
#include "platform/values/Conversions.h"
#include "platform/values/Format.h"
#include "platform/values/Text.h"

namespace tests {

using core::TransactionClass;
using leases::WalkMode;
using platform::CursorMode;
using platform::Date;
using platform::Recordset;

namespace {

std::pair<std::string, std::string> SplitField(const std::string& line) {
    const std::size_t equals = line.find('=');
    if (equals == std::string::npos) throw std::runtime_error("no '=' in: " + line);
    return {std::string(platform::Trim(line.substr(0, equals))),
            std::string(platform::Trim(line.substr(equals + 1)))};
}

void Pay(TransactionClass rentClass) {
    leases::SubmitPayment(leases::ProposePayment(kLeaseId, rentClass));
}

std::int32_t LastPayment() {
    return core::App()
        .Connection.Scalar("SELECT Max(IdTransaction) FROM Transactions WHERE Amount > 0")
        ->AsLong();
}

void StartProgram(Date day) {
    platform::SetToday(day);
    leases::UpdateLeaseById(kLeaseId, WalkMode::CatchUp);
}

void Happen(const std::string& event) {
    const auto rest = [&](std::string_view word) { return event.substr(word.size()); };
    if (event.starts_with("today ")) {
        StartProgram(Date::Parse(rest("today ")));
    } else if (event.starts_with("daily ")) {
        const Date last = Date::Parse(rest("daily "));
        while (platform::Today() < last) {
            StartProgram(DateAdd(platform::Interval::Day, 1, platform::Today()));
        }
    } else if (event == "roll forward") {
        leases::UpdateLeaseById(kLeaseId, WalkMode::RollForward);
    } else if (event == "reprocess") {
        leases::UpdateLeaseById(kLeaseId, WalkMode::Reprocess);
    } else if (event == "pay rent") {
        Pay(TransactionClass::Rent);
    } else if (event == "pay subsidy") {
        Pay(TransactionClass::Subsidy);
    } else if (event == "pay deposit") {
        Pay(TransactionClass::Deposit);
    } else if (event.starts_with("pay amount ")) {
        leases::SubmitAmount({leases::ProposePayment(kLeaseId, TransactionClass::Rent),
                              platform::StrToMoney(rest("pay amount "))});
    } else if (event.starts_with("return payment, fee ")) {
        leases::PaymentReturn returned = leases::ProposeReturn(LastPayment());
        returned.fee = platform::StrToMoney(rest("return payment, fee "));
        leases::SubmitReturn(returned);
    } else if (event == "settle from credit") {
        leases::SetSettlesCharges(kLeaseId, true);
    } else if (event == "charge deposits") {
        leases::ChargeDeposits(kLeaseId, kUnitId);
    } else if (event.starts_with("set ")) {
        const auto [field, value] = SplitField(rest("set "));
        SetLeaseField(field, value);
    } else {
        throw std::runtime_error("no such event: " + event);
    }
}

std::vector<std::string> Ledger() {
    std::vector<std::string> lines;
    Recordset rows;
    rows.Open(core::App().Connection, "SELECT * FROM RentLog ORDER BY IdRentLog");
    for (; !rows.Eof(); rows.MoveNext()) {
        lines.push_back(fmt::format(
            "{} | {}.{} | '{}' | {} | {}{}", rows["DatePosted"].AsText(), rows["Class"].AsText(),
            rows["Flags"].AsText(), rows["Category"].AsText(),
            platform::FormatMoney(rows["Amount"].AsCurrency()), rows["Description"].AsText(),
            rows["IdTransaction"].AsLong() == 0 ? "" : " | paid"));
    }
    return lines;
}

std::string StatusOf(const char* table) {
    return core::App().Connection.Scalar(fmt::format("SELECT Status FROM {}", table))->AsText();
}

std::string Actual(const std::string& field) {
    if (field == "unit") return StatusOf("Unit");
    if (field == "tenant") return StatusOf("Tenant");
    Recordset lease;
    lease.Open(core::App().Connection, "SELECT * FROM Lease");
    const auto value = lease[field];
    if (value.IsNull()) return "";
    return value.Type() == platform::FieldType::Currency ? platform::FormatMoney(value.AsCurrency())
                                                         : value.AsText();
}

bool IsField(const std::string& line) {
    return line.find('|') == std::string::npos;
}

} // namespace

Story ReadStory(const std::filesystem::path& file) {
    Story story;
    std::ifstream input(file);
    std::string part;
    for (std::string line; std::getline(input, line);) {
        const std::string text(platform::Trim(line));
        if (text.empty() || text.starts_with('#')) continue;
        if (line == text) {
            part = text;
        } else if (part == "given") {
            story.given.push_back(SplitField(text));
        } else if (part == "when") {
            story.when.push_back(text);
        } else if (part == "then") {
            story.then.push_back(text);
        } else {
            throw std::runtime_error(file.string() + ": line outside a part: " + text);
        }
    }
    return story;
}

std::vector<std::string> LiveThrough(const Story& story, const std::filesystem::path& folder) {
    const BooksWithOneLease books(folder);
    for (const auto& [field, value] : story.given)
        SetLeaseField(field, value);
    for (const std::string& event : story.when)
        Happen(event);
    std::vector<std::string> lines = Ledger();
    for (const std::string& line : story.then) {
        if (!IsField(line)) continue;
        const std::string field = SplitField(line).first;
        lines.push_back(fmt::format("{} = {}", field, Actual(field)));
    }
    return lines;
}

} // namespace tests
