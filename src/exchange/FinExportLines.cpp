#include "exchange/FinExportLines.h"

#include <algorithm>
#include <array>

#include <fmt/format.h>

#include "platform/values/Conversions.h"
#include "platform/values/Text.h"

namespace exchange {

namespace {

constexpr std::size_t kLimit = 15;

constexpr std::array<FinFormat, 3> kFormats = {
    {{"csv", "CSV - Comma Delimited", "Date,CheckNum,Account,Name,Category,Description,Amount\r\n"},
     {"qif", "QIF - Quicken Interchange Format", "\r\n"},
     {"iif", "IIF - QuickBooks Import/Export Interchange File",
      "!TRNS\tTRNSTYPE\tDATE\tACCNT\tNAME\tCLASS\tAMOUNT\tDOCNUM\tMEMO\tCLEAR\r\n"
      "!SPL\tTRNSTYPE\tDATE\tACCNT\tCLASS\tAMOUNT\tMEMO\r\n"
      "!ENDTRNS\r\n"}}};

// Returns the opposite amount, which is a floating-point number.
std::string OppositeText(platform::Currency amount) {
    return amount.IsZero() ? "0" : platform::NumberToText(amount.ToDouble() * -1);
}

} // namespace

const FinFormat& FormatOf(FinType type) {
    return kFormats.at(static_cast<std::size_t>(type));
}

std::string PlainText(std::string_view text) {
    std::string plain(text);
    std::ranges::replace_if(
        plain, [](char c) { return c == ',' || c == '\t' || c == '\r' || c == '\n'; }, ' ');
    return plain;
}

void AppendEntry(std::string& file, FinType type, const FinEntry& entry, LimitLength limit) {
    const auto limited = [&](const std::string& text) {
        return limit == LimitLength::Yes ? platform::LeftCharacters(text, kLimit) : text;
    };
    const std::string account = limited(entry.account);
    const std::string category = limited(entry.category);
    const std::string amount = platform::MoneyToText(entry.amount);
    auto out = std::back_inserter(file);
    switch (type) {
        case FinType::Csv:
            fmt::format_to(out, "{},{},{},{},{},{},{}\r\n", entry.date, entry.checkNum, account,
                           entry.name, category, entry.description, amount);
            break;
        case FinType::Qif:
            fmt::format_to(out, "D{}\r\nT{}\r\nN{}\r\nP{}\r\nM{}\r\nL{}\r\n^\r\n", entry.date,
                           amount, entry.checkNum, entry.name, entry.description, category);
            break;
        case FinType::Iif:
            fmt::format_to(out, "TRNS\t{}\t{}\t{}\t{}\t\t{}\t{}\t{}\tN\r\n", entry.type, entry.date,
                           account, entry.name, amount, entry.checkNum, entry.description);
            fmt::format_to(out, "SPL\t{}\t{}\t{}\t\t{}\t{}\r\nENDTRNS\r\n", entry.type, entry.date,
                           category, OppositeText(entry.amount), entry.description);
            break;
    }
}

} // namespace exchange
