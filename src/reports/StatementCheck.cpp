#include "reports/StatementCheck.h"

#include <fmt/core.h>

#include "platform/database/Recordset.h"
#include "reports/KnownTags.h"
#include "reports/SampleBooks.h"
#include "reports/clsRptData.h"
#include "reports/clsRptText.h"

namespace reports {

namespace {

std::string SampleOf(platform::FieldType type) {
    using platform::FieldType;
    const bool isText =
        type == FieldType::Text || type == FieldType::Memo || type == FieldType::Date;
    return isText ? "01/01/2000" : "0";
}

/// The faults found so far, and books to try statements on.
class Findings {
  public:
    explicit Findings(std::vector<ReportFault>& faults) : faults_(faults) {}

    void Add(int line, std::string text) { faults_.push_back({line, std::move(text)}); }

    void CheckTags(int line, const KnownTags& tags, const std::string& text) {
        for (const std::string& name : tags.Unfilled(text))
            Add(line, fmt::format("nobody fills %{}%", name));
    }

    /// Opens the query on empty books; its fields become tags.
    void Try(int line, const std::string& sql, KnownTags* tags = nullptr) {
        try {
            platform::Recordset rows;
            rows.Open(books_.Session(), sql);
            for (std::size_t i = 0; tags != nullptr && i < rows.FieldCount(); ++i)
                tags->Add(rows[i].Name(), SampleOf(rows[i].Type()));
        } catch (const platform::Error& fault) {
            Add(line, fault.what());
        }
    }

  private:
    std::vector<ReportFault>& faults_;
    SampleBooks books_;
};

/// Checks one [TEXT] section.
class TextCheck {
  public:
    TextCheck(const ReportFile& report, const clsRptText& section, Findings& findings)
        : report_(report), section_(section), findings_(findings) {}

    void Check() {
        for (const TextCommand& command : section_.Commands()) {
            if (command.Kind == TextCommandKind::Sql) {
                findings_.CheckTags(command.FileLine, tags_, command.Text);
                findings_.Try(command.FileLine, tags_.Fill(command.Text), &tags_);
            } else if (command.Kind == TextCommandKind::Calc) {
                CheckCalc(command);
            }
        }
        for (const TextCommand& command : section_.Commands()) {
            if (command.Kind == TextCommandKind::Sql || command.Kind == TextCommandKind::Calc)
                continue;
            findings_.CheckTags(command.FileLine, tags_, command.Text);
            findings_.CheckTags(command.FileLine, KnownTags(), command.TableHeader);
            CheckScale(command);
        }
        for (const TagFormatCommand& format : section_.TagFormats()) {
            if (!tags_.Has(format.Tag)) {
                findings_.Add(format.FileLine, fmt::format("no query or calculation gives '{}'",
                                                           format.Tag.substr(0, kShownName)));
            }
        }
    }

  private:
    static constexpr std::size_t kShownName = 60;

    void CheckCalc(const TextCommand& command) {
        const auto equals = command.Text.find('=');
        if (equals == std::string::npos) {
            findings_.Add(command.FileLine, "CALC has no \"=\"");
            return;
        }
        findings_.CheckTags(command.FileLine, tags_, command.Text.substr(equals + 1));
        std::string name = command.Text.substr(0, equals);
        std::erase_if(name, [](char c) { return c == '%' || c == ' ' || c == ','; });
        tags_.Add(name, "0");
    }

    void CheckScale(const TextCommand& command) {
        switch (command.Kind) {
            case TextCommandKind::Grid:
            case TextCommandKind::Locate:
            case TextCommandKind::Line:
            case TextCommandKind::Box:
                if (report_.ScaleX == 0 || report_.ScaleY == 0)
                    findings_.Add(command.FileLine, "the report has no SCALE of two numbers");
                return;
            default:
                return;
        }
    }

    const ReportFile& report_;
    const clsRptText& section_;
    Findings& findings_;
    KnownTags tags_ = KnownTags::OfSection();
};

/// Checks one [DATA] section.
class DataCheck {
  public:
    DataCheck(const clsRptData& section, std::size_t number, const KeyLines& lines,
              Findings& findings)
        : section_(section), number_(number), lines_(lines), findings_(findings) {}

    void Check() {
        const bool hasQuery = !section_.SQLQuery.empty() || !section_.SQLTables.empty();
        findings_.CheckTags(LineOf("HEADLINE"), tags_, section_.HeadLine);
        findings_.CheckTags(LineOf("FOOTLINE"), tags_, section_.FootLine);
        if (section_.Mode == DataMode::None && hasQuery)
            findings_.Add(section_.Line, "the section has a query and no SHOW command");
        if (section_.Mode == DataMode::Table || section_.Mode == DataMode::Records) {
            if (hasQuery) {
                CheckQuery();
            } else {
                findings_.Add(section_.Line, "the section has no query");
            }
        }
        if (section_.Mode == DataMode::Table) {
            CheckTableTexts();
        } else {
            findings_.CheckTags(LineOf("HEADTEXT"), KnownTags(), section_.HeadText);
            findings_.CheckTags(LineOf("FOOTTEXT"), KnownTags(), section_.FootText);
        }
    }

  private:
    /// Returns the line of a key; the section's own line if the key is missing.
    int LineOf(const char* key) const {
        const auto found = lines_.find({number_, key});
        return found == lines_.end() ? section_.Line : found->second;
    }
    bool IsGrouped() const {
        return section_.Mode == DataMode::Table && !section_.GroupField.empty();
    }

    void CheckTableTexts() {
        KnownTags head = tags_;
        KnownTags foot = tags_;
        head.Add("GROUPNAME", "");
        foot.Add("GROUPTOTAL", "0");
        findings_.CheckTags(LineOf("GROUPDESCRIPTION"), head, section_.GroupDesc);
        findings_.CheckTags(LineOf("TOTALDESCRIPTION"), foot, section_.TotalDesc);
        findings_.CheckTags(LineOf("HEADTEXT"), tags_, section_.HeadText);
        findings_.CheckTags(LineOf("FOOTTEXT"), foot, section_.FootText);
        if (!section_.HeadText.empty() && IsGrouped() && section_.SQLQuery.empty())
            findings_.Add(LineOf("HEADTEXT"), "HEADTEXT isn't printed in a table with groups");
        if (!section_.FootText.empty() && section_.TotalField.empty())
            findings_.Add(LineOf("FOOTTEXT"),
                          "FOOTTEXT of a table is printed with a TOTALFIELD only");
    }

    void CheckQuery() {
        if (!section_.SQLQuery.empty()) {
            findings_.CheckTags(LineOf("SQLQUERY"), tags_, section_.SQLQuery);
            findings_.Try(LineOf("SQLQUERY"), tags_.Fill(section_.SQLQuery));
            for (const char* key : {"GROUPFIELD", "TOTALFIELD"}) {
                if (lines_.contains({number_, key}))
                    findings_.Add(LineOf(key), fmt::format("{} has no effect with SQLQUERY", key));
            }
            return;
        }
        CheckParts();
        const std::string from = " FROM " + section_.SQLTables +
                                 (section_.SQLFilter.empty() ? "" : " WHERE " + section_.SQLFilter);
        const std::string order = section_.SQLOrder.empty() ? "" : " ORDER BY " + section_.SQLOrder;
        findings_.Try(LineOf("SQLFIELDS"),
                      tags_.Fill("SELECT " + section_.SQLFields + from + order));
        if (IsGrouped()) {
            findings_.Try(LineOf("GROUPFIELD"),
                          tags_.Fill("SELECT DISTINCT " + section_.GroupField + from +
                                     " ORDER BY " + section_.GroupField));
        }
        if (section_.Mode != DataMode::Table || section_.TotalField.empty()) return;
        findings_.Try(LineOf("TOTALFIELD"),
                      tags_.Fill("SELECT SUM(" + section_.TotalField + ") AS Total" + from));
        if (IsGrouped() && section_.SQLFilter.empty())
            findings_.Add(LineOf("TOTALFIELD"), "a total of groups needs a SQLFILTER");
    }

    void CheckParts() {
        findings_.CheckTags(LineOf("SQLFIELDS"), tags_, section_.SQLFields);
        findings_.CheckTags(LineOf("SQLTABLES"), tags_, section_.SQLTables);
        findings_.CheckTags(LineOf("SQLFILTER"), tags_, section_.SQLFilter);
        findings_.CheckTags(LineOf("SQLORDER"), tags_, section_.SQLOrder);
        findings_.CheckTags(LineOf("GROUPFIELD"), tags_, section_.GroupField);
        findings_.CheckTags(LineOf("TOTALFIELD"), tags_, section_.TotalField);
    }

    const clsRptData& section_;
    std::size_t number_;
    const KeyLines& lines_;
    Findings& findings_;
    KnownTags tags_ = KnownTags::OfSection();
};

void CheckPage(const ReportFile& report, const KeyLines& lines, Findings& findings) {
    const auto lineOf = [&](const char* key) {
        const auto found = lines.find({kOfPage, key});
        return found == lines.end() ? 0 : found->second;
    };
    findings.CheckTags(lineOf("TITLE"), KnownTags(), report.Title);
    findings.CheckTags(lineOf("SUBTITLE"), KnownTags::OfRun(), report.SubTitle);
    if (report.LoopQuery.empty()) return;
    findings.CheckTags(report.LoopLine, KnownTags::OfRun(), report.LoopQuery);
    findings.Try(report.LoopLine, KnownTags::OfRun().Fill(report.LoopQuery));
}

} // namespace

void CheckStatements(const ReportFile& report, const KeyLines& lines,
                     std::vector<ReportFault>& faults) {
    Findings findings(faults);
    CheckPage(report, lines, findings);
    for (std::size_t i = 0; i < report.Sections.size(); ++i) {
        if (const auto* text = dynamic_cast<const clsRptText*>(report.Sections[i].get()))
            TextCheck(report, *text, findings).Check();
        if (const auto* data = dynamic_cast<const clsRptData*>(report.Sections[i].get()))
            DataCheck(*data, i, lines, findings).Check();
    }
}

} // namespace reports
