#include "reports/clsRptText.h"

#include <algorithm>

#include "platform/values/Conversions.h"
#include "reports/ReportError.h"
#include "reports/Tags.h"

namespace reports {

void clsRptText::Queue(TextCommandKind kind, std::string_view text, int line) {
    TextCommand& command = commands_.emplace_back();
    command.Kind = kind;
    command.FileLine = line;
    command.Text = text;
}

void clsRptText::QueueShape(TextCommandKind kind, std::string_view coordinates, int line) {
    std::array<std::int16_t, 4> read{};
    for (std::int16_t& coordinate : read) {
        const auto piece = coordinates.substr(0, coordinates.find(','));
        coordinates.remove_prefix(std::min(coordinates.size(), piece.size() + 1));
        coordinate = platform::StrToInt16(piece);
    }
    Queue(kind, {}, line);
    commands_.back().Coordinates = read;
}

void clsRptText::Paragraph(std::string_view text, int line) {
    Queue(TextCommandKind::Paragraph, text, line);
}

void clsRptText::SQLQuery(std::string_view sql, int line) {
    Queue(TextCommandKind::Sql, sql, line);
}

void clsRptText::Calc(std::string_view expression, int line) {
    Queue(TextCommandKind::Calc, expression, line);
}

void clsRptText::SepLine(std::string_view text, int line) {
    Queue(TextCommandKind::SepLine, text, line);
}

void clsRptText::Table(std::string_view text, int line) {
    Queue(TextCommandKind::Table, text, line);
}

void clsRptText::DrawGrid(int line) {
    Queue(TextCommandKind::Grid, {}, line);
}

void clsRptText::DrawLine(std::string_view coordinates, int line) {
    QueueShape(TextCommandKind::Line, coordinates, line);
}

void clsRptText::DrawBox(std::string_view coordinates, int line) {
    QueueShape(TextCommandKind::Box, coordinates, line);
}

void clsRptText::Locate(std::string_view coordinates, int line) {
    QueueShape(TextCommandKind::Locate, coordinates, line);
}

void clsRptText::TagFormat(std::string_view tag, std::string_view format, int line) {
    tagFormats_.push_back({std::string(tag), std::string(format), line});
}

std::string clsRptText::Expand(std::string text) const {
    if (text.find('%') == std::string::npos) return text;
    ReplaceTag(text, "%LOOPID%", LoopId);
    ReplaceTag(text, "%SELECTEDID%", std::to_string(SelectedId));
    ReplaceTag(text, "%SELECTEDDESCRIPTION%", SelectedDescription);
    ReplaceTag(text, "%SELECTEDYEAR%", ShowYear);
    ReplaceTag(text, "%STARTDATE%", StartDate.ToText());
    ReplaceTag(text, "%ENDDATE%", EndDate.ToText());
    for (const ReportVariable& variable : variables_)
        ReplaceTag(text, "%" + variable.Name + "%", TextOf(variable.Value));
    ExpandSystemTags(text);
    return text;
}

void clsRptText::ShowData(platform::PrintSurface& page) {
    variables_.clear();
    for (const TextCommand& command : commands_) {
        if (command.Kind == TextCommandKind::Sql) RunSql(command);
        if (command.Kind == TextCommandKind::Calc) RunCalc(command);
    }
    ApplyTagFormats();
    for (const TextCommand& command : commands_)
        AtLine(command.FileLine, [&] { Draw(command, page); });
}

} // namespace reports
