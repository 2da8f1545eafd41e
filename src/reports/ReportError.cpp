#include "reports/ReportError.h"

#include <fmt/core.h>

#include "platform/values/Text.h"

namespace reports {

ReportError::ReportError(int line, std::string_view reason)
    : Error(platform::OneLine(fmt::format("line {}: {}", line, reason))),
      line_(line),
      reason_(reason) {}

ReportError::ReportError(std::string_view file, const ReportError& inFile)
    : Error(platform::OneLine(fmt::format("{}, line {}: {}", file, inFile.line_, inFile.reason_))),
      line_(inFile.line_),
      reason_(inFile.reason_) {}

} // namespace reports
