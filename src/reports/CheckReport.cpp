#include "reports/CheckReport.h"

#include <algorithm>
#include <array>

#include <fmt/core.h>

#include "platform/values/Conversions.h"
#include "platform/values/Text.h"
#include "reports/CatalogueReader.h"
#include "reports/LineGrammar.h"
#include "reports/ReportError.h"
#include "reports/RunTimeReader.h"
#include "reports/StatementCheck.h"

namespace reports {

namespace {

using State = RunTimeReader::State;

bool IsSectionHeader(const DefinitionLine& line) {
    return line.key.starts_with('[') && line.key.ends_with(']');
}

bool IsKnownSection(const DefinitionLine& line) {
    return std::ranges::any_of(std::to_array<std::string_view>({"GENERAL", "HEADER", "DATA", "TEXT",
                                                                "LOOP", "ENDLOOP", "FOOTER"}),
                               [&](auto section) { return line.Opens(section); });
}

bool IsColorKey(std::string_view key) {
    return key == "TEXTCOLOR" || key == "PENCOLOR" || key == "FILLCOLOR";
}

class LineCheck {
  public:
    LineCheck(ReportKind kind, std::vector<ReportFault>& faults) : kind_(kind), faults_(faults) {}

    void Check(const DefinitionLine& line) {
        try {
            reader_.Read(line);
        } catch (const ReportError& fault) {
            Add(line, fault.Reason());
            return;
        }
        if (IsSectionHeader(line)) {
            if (!IsKnownSection(line)) Add(line, fmt::format("{} is not a section", line.name));
        } else if (IsPageKey(line.key)) {
            lines_[{kOfPage, line.key}] = line.number;
        } else if (IsCatalogueKey(line.key)) {
            CheckCatalogueKey(line);
        } else if (const SectionCommand* command = FindSectionCommand(line.key)) {
            CheckCommand(*command, line);
        } else {
            Add(line, fmt::format("{} is not a key", line.name.substr(0, kShownName)));
        }
    }

    /// Reports a key of the catalogue whose line has blanks around its "=".
    void CheckBlanks(const DefinitionLine& untrimmed) {
        const std::string trimmed = platform::ToUpper(platform::Trim(untrimmed.name));
        if (untrimmed.key != trimmed && IsCatalogueKey(trimmed)) {
            Add(untrimmed,
                fmt::format("the catalogue doesn't see {} with blanks around it", trimmed));
        }
    }

    const ReportFile& Report() const { return reader_.Report(); }
    const KeyLines& Lines() const { return lines_; }

  private:
    static constexpr std::size_t kShownName = 60;

    void Add(const DefinitionLine& line, std::string text) {
        faults_.push_back({line.number, std::move(text)});
    }

    void CheckCatalogueKey(const DefinitionLine& line) {
        const bool ofReceipts =
            line.key == "DESCRIPTION" || line.key == "NOTES" || line.key == "FORM";
        if (reader_.Where() != State::General) {
            Add(line, fmt::format("{} counts in [GENERAL] only", line.key));
        } else if (kind_ == ReportKind::Receipt && !ofReceipts) {
            Add(line, fmt::format("{} has no effect in a receipt", line.key));
        } else if (!IsCatalogueValue(line.key, line.value)) {
            Add(line, fmt::format("'{}' is not a value of {}", line.value.substr(0, kShownName),
                                  line.key));
        }
    }

    void CheckCommand(const SectionCommand& command, const DefinitionLine& line) {
        const bool inText = reader_.Where() == State::Text;
        const bool inData = reader_.Where() == State::Data;
        if (!inText && !inData) {
            if (reader_.Where() != State::Loop || line.key != "SQLQUERY")
                Add(line, fmt::format("{} belongs in a section", line.key));
            return;
        }
        lines_[{Report().Sections.size() - 1, line.key}] = line.number;
        if (!inText) return;
        auto& section = dynamic_cast<clsRptText&>(*Report().Sections.back());
        if (command.isAttribute && section.Last() == nullptr)
            Add(line, fmt::format("{} has no command before it", line.key));
        if (!IsColorKey(line.key)) return;
        try {
            platform::StrToInt32(line.value);
        } catch (const platform::Error& fault) {
            Add(line, fmt::format("{}: {}", line.key, fault.what()));
        }
    }

    ReportKind kind_;
    std::vector<ReportFault>& faults_;
    RunTimeReader reader_;
    KeyLines lines_;
};

} // namespace

std::vector<ReportFault> CheckReport(std::string_view text, ReportKind kind) {
    std::vector<ReportFault> faults;
    LineCheck check(kind, faults);
    LineReader lines(text, Blanks::Trim);
    while (const auto line = lines.Next())
        check.Check(*line);
    LineReader untrimmed(text, Blanks::Keep);
    while (const auto line = untrimmed.Next())
        check.CheckBlanks(*line);
    CheckStatements(check.Report(), check.Lines(), faults);
    std::ranges::stable_sort(faults, {}, &ReportFault::line);
    return faults;
}

} // namespace reports
