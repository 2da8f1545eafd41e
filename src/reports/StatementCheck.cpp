#include "reports/StatementCheck.h"

#include <algorithm>
#include <set>

#include <fmt/core.h>

#include "platform/database/Recordset.h"
#include "platform/values/Text.h"
#include "reports/SampleBooks.h"
#include "reports/Tags.h"
#include "reports/clsRptData.h"
#include "reports/clsRptText.h"

namespace reports {

namespace {

/// Names that text may hold between two "%", with a value to try statements with.
class KnownTags {
  public:
    void Add(const std::string& name, std::string sample) {
        samples_.try_emplace(platform::ToUpper(name), std::move(sample));
    }
    void AddRunTags() {
        for (const char* number : {"LOOPID", "SELECTEDID"})
            Add(number, "0");
        Add("SELECTEDYEAR", "2000");
        Add("SELECTEDDESCRIPTION", "record");
        Add("STARTDATE", "01/01/2000");
        Add("ENDDATE", "12/31/2000");
    }
    bool Has(const std::string& name) const { return samples_.contains(platform::ToUpper(name)); }

    std::string Fill(std::string text) const {
        for (const auto& [name, sample] : samples_)
            ReplaceTag(text, "%" + name + "%", sample);
        ExpandSystemTags(text);
        return text;
    }

    /// What of a text is left that reads like a tag.
    std::set<std::string> Unfilled(const std::string& text) const {
        std::set<std::string> names;
        const std::string filled = Fill(text);
        for (auto at = filled.find('%'); at != std::string::npos; at = filled.find('%', at + 1)) {
            const auto end = filled.find('%', at + 1);
            if (end == std::string::npos) break;
            const std::string name = filled.substr(at + 1, end - at - 1);
            if (LooksLikeName(name)) names.insert(name);
        }
        return names;
    }

  private:
    static bool LooksLikeName(const std::string& name) {
        const auto isLetter = [](char c) {
            return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_';
        };
        if (name.empty() || !isLetter(name.front()) || name.back() == ' ') return false;
        return std::ranges::all_of(
            name, [&](char c) { return isLetter(c) || c == ' ' || (c >= '0' && c <= '9'); });
    }

    std::map<std::string, std::string> samples_;
};

std::string SampleOf(platform::FieldType type) {
    using platform::FieldType;
    const bool isText =
        type == FieldType::Text || type == FieldType::Memo || type == FieldType::Date;
    return isText ? "01/01/2000" : "0";
}

class StatementCheck {
  public:
    StatementCheck(const KeyLines& lines, std::vector<ReportFault>& faults)
        : lines_(lines), faults_(faults) {}

    void CheckLoop(const ReportFile& report) {
        if (report.LoopQuery.empty()) return;
        KnownTags tags;
        tags.AddRunTags();
        Try(report.LoopLine, tags.Fill(report.LoopQuery), nullptr);
    }

    void CheckSubTitle(const ReportFile& report) {
        KnownTags tags;
        tags.AddRunTags();
        // The subtitle is not given the tags of today and the company.
        for (const std::string& name : tags.Unfilled(report.SubTitle))
            Add(0, fmt::format("SUBTITLE: nobody fills %{}%", name));
    }

    void Check(const clsRptText& section) {
        KnownTags tags;
        tags.AddRunTags();
        for (const TextCommand& command : section.Commands()) {
            if (command.Kind == TextCommandKind::Sql) {
                CheckTags(command.FileLine, tags, command.Text);
                Try(command.FileLine, tags.Fill(command.Text), &tags);
            } else if (command.Kind == TextCommandKind::Calc) {
                CheckCalc(command, tags);
            }
        }
        for (const TextCommand& command : section.Commands()) {
            if (command.Kind != TextCommandKind::Sql && command.Kind != TextCommandKind::Calc)
                CheckTags(command.FileLine, tags, command.Text);
        }
    }

    void Check(std::size_t index, const clsRptData& section) {
        KnownTags tags;
        tags.AddRunTags();
        const auto line = [&](const char* key) {
            const auto found = lines_.find({index, key});
            return found == lines_.end() ? section.Line : found->second;
        };
        for (const char* key : {"HEADLINE", "FOOTLINE"})
            CheckTags(line(key), tags, key[0] == 'H' ? section.HeadLine : section.FootLine);
        if (section.Mode == DataMode::Table || section.Mode == DataMode::Records)
            CheckQuery(section, tags, line);
        if (section.Mode != DataMode::Table) {
            CheckTags(line("HEADTEXT"), {}, section.HeadText);
            CheckTags(line("FOOTTEXT"), {}, section.FootText);
            return;
        }
        CheckTags(line("HEADTEXT"), tags, section.HeadText);
        tags.Add("GROUPTOTAL", "0");
        CheckTags(line("FOOTTEXT"), tags, section.FootText);
        if (!section.FootText.empty() && section.TotalField.empty())
            Add(line("FOOTTEXT"), "FOOTTEXT of a table is printed with a TOTALFIELD only");
    }

  private:
    void Add(int line, std::string text) { faults_.push_back({line, std::move(text)}); }

    void CheckTags(int line, const KnownTags& tags, const std::string& text) {
        if (platform::ContainsIgnoringCase(text, " LIKE ")) return; // "%" is a wildcard there
        for (const std::string& name : tags.Unfilled(text))
            Add(line, fmt::format("nobody fills %{}%", name));
    }

    void CheckCalc(const TextCommand& command, KnownTags& tags) {
        const auto equals = command.Text.find('=');
        if (equals == std::string::npos) {
            Add(command.FileLine, "CALC has no \"=\"");
            return;
        }
        CheckTags(command.FileLine, tags, command.Text.substr(equals + 1));
        std::string name = command.Text.substr(0, equals);
        std::erase_if(name, [](char c) { return c == '%' || c == ' ' || c == ','; });
        tags.Add(name, "0");
    }

    template <typename LineOf>
    void CheckQuery(const clsRptData& section, const KnownTags& tags, LineOf line) {
        if (!section.SQLQuery.empty()) {
            Try(line("SQLQUERY"), tags.Fill(section.SQLQuery), nullptr);
            return;
        }
        if (section.SQLTables.empty()) {
            Add(section.Line, "the section has no query");
            return;
        }
        const std::string filter = section.SQLFilter.empty() ? "" : " WHERE " + section.SQLFilter;
        const std::string order = section.SQLOrder.empty() ? "" : " ORDER BY " + section.SQLOrder;
        Try(line("SQLFIELDS"),
            tags.Fill("SELECT " + section.SQLFields + " FROM " + section.SQLTables + filter +
                      order),
            nullptr);
        const bool isGrouped = section.Mode == DataMode::Table && !section.GroupField.empty();
        if (isGrouped) {
            Try(line("GROUPFIELD"),
                tags.Fill("SELECT DISTINCT " + section.GroupField + " FROM " + section.SQLTables +
                          filter + " ORDER BY " + section.GroupField),
                nullptr);
        }
        if (section.TotalField.empty()) return;
        Try(line("TOTALFIELD"),
            tags.Fill("SELECT SUM(" + section.TotalField + ") AS Total FROM " + section.SQLTables +
                      filter),
            nullptr);
        if (isGrouped && section.SQLFilter.empty())
            Add(line("TOTALFIELD"), "a total of groups needs a SQLFILTER");
    }

    /// Opens the query on empty books; its fields become tags.
    void Try(int line, const std::string& sql, KnownTags* tags) {
        try {
            platform::Recordset rows;
            rows.Open(books_.Session(), sql);
            for (std::size_t i = 0; tags != nullptr && i < rows.FieldCount(); ++i)
                tags->Add(rows[i].Name(), SampleOf(rows[i].Type()));
        } catch (const platform::Error& fault) {
            Add(line, fault.what());
        }
    }

    const KeyLines& lines_;
    std::vector<ReportFault>& faults_;
    SampleBooks books_;
};

} // namespace

void CheckStatements(const ReportFile& report, const KeyLines& lines,
                     std::vector<ReportFault>& faults) {
    StatementCheck check(lines, faults);
    check.CheckSubTitle(report);
    check.CheckLoop(report);
    for (std::size_t i = 0; i < report.Sections.size(); ++i) {
        if (const auto* text = dynamic_cast<const clsRptText*>(report.Sections[i].get()))
            check.Check(*text);
        if (const auto* data = dynamic_cast<const clsRptData*>(report.Sections[i].get()))
            check.Check(i, *data);
    }
}

} // namespace reports
