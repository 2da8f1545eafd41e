#pragma once

#include <string_view>

#include "reports/LineGrammar.h"
#include "reports/ReportFile.h"
#include "reports/SectionCommands.h"

namespace reports {

/// Returns true for a key in upper case that sets up the page, whichever section it is in.
bool IsPageKey(std::string_view key);

/// Reads a definition for a run, line by line, keeping track of the section a line belongs to.
class RunTimeReader {
  public:
    /// Throws a ReportError for a command that the section's class lacks and for a number that is
    /// not one; the line then has no effect.
    void Read(const DefinitionLine& line);

    /// Returns the report as read so far. Its sections keep their addresses.
    const ReportFile& Report() const { return report_; }
    ReportFile TakeReport() { return std::move(report_); }

    enum class State { Other, General, Text, Data, Loop };
    State Where() const { return state_; }

  private:
    void ReadLine(const DefinitionLine& line);
    bool OpensSection(const DefinitionLine& line);
    template <typename Section>
    Section* AddSection(int line);
    void GiveToSection(const SectionCommand& command, const DefinitionLine& line);

    ReportFile report_;
    State state_ = State::Other;
    LoopPhase phase_ = LoopPhase::Before;
    clsRptText* text_ = nullptr;
    clsRptData* data_ = nullptr;
};

} // namespace reports
