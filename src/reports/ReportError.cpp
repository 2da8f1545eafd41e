#include "reports/ReportError.h"

#include <algorithm>

#include <fmt/core.h>

namespace reports {

namespace {

std::string OneLine(std::string text) {
    std::ranges::replace_if(
        text, [](char c) { return c == '\n' || c == '\r'; }, ' ');
    return text;
}

} // namespace

ReportError::ReportError(int line, std::string_view reason)
    : Error(OneLine(fmt::format("line {}: {}", line, reason))), line_(line), reason_(reason) {}

ReportError::ReportError(std::string_view file, const ReportError& inFile)
    : Error(OneLine(fmt::format("{}, line {}: {}", file, inFile.line_, inFile.reason_))),
      line_(inFile.line_),
      reason_(inFile.reason_) {}

} // namespace reports
