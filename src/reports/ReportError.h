#pragma once

#include <string>
#include <string_view>

#include "platform/values/Errors.h"

namespace reports {

/// An error in a report's definition that ends the run, with its line.
class ReportError : public platform::Error {
  public:
    /// `line` counts from 1. The text is one line: "line 12: reason".
    ReportError(int line, std::string_view reason);
    /// Creates the same error with the file before it: "Owner.rpt, line 12: reason".
    ReportError(std::string_view file, const ReportError& inFile);

    int Line() const { return line_; }
    /// Returns the reason without file and line.
    const std::string& Reason() const { return reason_; }

  private:
    int line_;
    std::string reason_;
};

/// Runs a part of a run and turns a value that can't be converted, or a row that can't be read,
/// into a ReportError with the line. Other failures, such as a full disk, aren't the definition's
/// fault and pass through.
template <typename Work>
void AtLine(int line, Work work) {
    const auto fail = [line](const platform::Error& fault) {
        throw ReportError(line, fault.what());
    };
    try {
        work();
    } catch (const platform::ConversionError& fault) {
        fail(fault);
    } catch (const platform::OverflowError& fault) {
        fail(fault);
    } catch (const platform::FieldError& fault) {
        fail(fault);
    } catch (const platform::DatabaseError& fault) {
        fail(fault);
    }
}

} // namespace reports
