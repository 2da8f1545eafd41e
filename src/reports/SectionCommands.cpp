#include "reports/SectionCommands.h"

#include <algorithm>
#include <array>

#include "platform/values/Conversions.h"
#include "platform/values/Format.h"
#include "platform/values/Text.h"

namespace reports {

namespace {

using Line = const DefinitionLine&;
using OfText = void (*)(clsRptText&, Line);
using OfData = void (*)(clsRptData&, Line);

constexpr OfText kNotInText = nullptr;
constexpr OfData kNotInData = nullptr;

Detail DetailOf(std::string_view word) {
    if (platform::EqualIgnoringCase(word, "FULL")) return Detail::Full;
    if (platform::EqualIgnoringCase(word, "SUMMARY")) return Detail::Summary;
    return Detail::Always;
}

// The value itself, for a property that is a text.
template <auto Member>
void DataText(clsRptData& section, Line line) {
    section.*Member = line.value;
}

template <auto Member>
void DataAttribute(clsRptData& section, Line line) {
    section.Attributes.*Member = line.value;
}

template <auto Command>
void TextWithValue(clsRptText& section, Line line) {
    (section.*Command)(line.value, line.number);
}

// Attributes go to the command queued last; before the first command they are lost.
template <auto Member>
void TextAttribute(clsRptText& section, Line line) {
    if (TextCommand* command = section.Last()) command->*Member = line.value;
}

template <auto Member>
void TextFlag(clsRptText& section, Line line) {
    if (TextCommand* command = section.Last()) command->*Member = platform::StrToBool(line.value);
}

/// The number is read even if there is no command for it, since what is not a number ends the run.
template <auto Member>
void TextNumber(clsRptText& section, Line line) {
    const std::int16_t number = platform::StrToInt16(line.value);
    if (TextCommand* command = section.Last()) command->*Member = number;
}

template <auto Member>
void TextTable(clsRptText& section, Line line) {
    if (TextCommand* command = section.Last()) command->Table.*Member = line.value;
}

void TextAppend(clsRptText& section, Line line) {
    if (TextCommand* command = section.Last()) command->Text += line.value;
}

constexpr auto kCommands = std::to_array<SectionCommand>({
    {"DETAILLEVEL", [](clsRptText& s, Line l) { s.DetailLevel = DetailOf(l.value); },
     [](clsRptData& s, Line l) { s.DetailLevel = DetailOf(l.value); }},
    {"SQLQUERY", TextWithValue<&clsRptText::SQLQuery>, DataText<&clsRptData::SQLQuery>},

    // Of [DATA].
    {"SQLFIELDS", kNotInText, DataText<&clsRptData::SQLFields>},
    {"SQLTABLES", kNotInText, DataText<&clsRptData::SQLTables>},
    {"SQLFILTER", kNotInText, DataText<&clsRptData::SQLFilter>},
    {"SQLORDER", kNotInText, DataText<&clsRptData::SQLOrder>},
    {"SHOWTABLE", kNotInText, [](clsRptData& s, Line) { s.SetMode_Table(); }},
    {"SHOWRECORDS", kNotInText, [](clsRptData& s, Line) { s.SetMode_Records(); }},
    {"SHOWAMORTIZATION", kNotInText, [](clsRptData& s, Line) { s.SetMode_Amortization(); }},
    {"SHOWDEPRECIATION", kNotInText, [](clsRptData& s, Line) { s.SetMode_Depreciation(); }},
    {"SHOWDEPRTABLE", kNotInText, [](clsRptData& s, Line) { s.SetMode_DeprTable(); }},
    {"SHOWGRANDTOTAL", kNotInText, [](clsRptData& s, Line) { s.ShowGrandTotal = true; }},
    {"TOTALFIELD", kNotInText, DataText<&clsRptData::TotalField>},
    {"TOTALDESCRIPTION", kNotInText, DataText<&clsRptData::TotalDesc>},
    {"GROUPFIELD", kNotInText, DataText<&clsRptData::GroupField>},
    {"GROUPDESCRIPTION", kNotInText, DataText<&clsRptData::GroupDesc>},
    {"HEADLINE", kNotInText, DataText<&clsRptData::HeadLine>},
    {"FOOTLINE", kNotInText, DataText<&clsRptData::FootLine>},
    {"HEADTEXT", kNotInText, DataText<&clsRptData::HeadText>},
    {"FOOTTEXT", kNotInText, DataText<&clsRptData::FootText>},
    {"LINEBETWEEN", kNotInText,
     [](clsRptData& s, Line l) { s.LineBetween = platform::StrToBool(l.value); }},
    {"MAXRECORDS", kNotInText,
     [](clsRptData& s, Line l) { s.MaxRecords = platform::StrToInt16(l.value); }},

    // Of [TEXT]: commands, then their attributes.
    {"PARAGRAPH", TextWithValue<&clsRptText::Paragraph>, kNotInData},
    {"TABLE", TextWithValue<&clsRptText::Table>, kNotInData},
    {"SEPLINE", TextWithValue<&clsRptText::SepLine>, kNotInData},
    {"CALC", TextWithValue<&clsRptText::Calc>, kNotInData},
    {"DRAWGRID", [](clsRptText& s, Line l) { s.DrawGrid(l.number); }, kNotInData},
    {"DRAWBOX", TextWithValue<&clsRptText::DrawBox>, kNotInData},
    {"DRAWLINE", TextWithValue<&clsRptText::DrawLine>, kNotInData},
    {"LOCATE", TextWithValue<&clsRptText::Locate>, kNotInData},
    {"APPEND", TextAppend, kNotInData},
    {"FONTNAME", TextAttribute<&TextCommand::FontName>, kNotInData},
    {"TEXTCOLOR", TextAttribute<&TextCommand::TextColor>, kNotInData},
    {"FONTSIZE", TextNumber<&TextCommand::FontSize>, kNotInData},
    {"FONTBOLD", TextFlag<&TextCommand::FontBold>, kNotInData},
    {"FONTITALIC", TextFlag<&TextCommand::FontItalic>, kNotInData},
    {"FONTUNDERLINE", TextFlag<&TextCommand::FontUnderline>, kNotInData},
    {"PENCOLOR", TextAttribute<&TextCommand::PenColor>, kNotInData},
    {"PENWIDTH", TextNumber<&TextCommand::PenWidth>, kNotInData},
    {"FILLCOLOR", TextAttribute<&TextCommand::FillColor>, kNotInData},
    {"TABLEFORMAT", TextAttribute<&TextCommand::TableFormat>, kNotInData},
    {"TABLEHEADER", TextAttribute<&TextCommand::TableHeader>, kNotInData},
    {"FORMATCURRENCY",
     [](clsRptText& s, Line l) { s.TagFormat(l.value, platform::kMoneyFormat); }, kNotInData},
    {"FORMATDATE", [](clsRptText& s, Line l) { s.TagFormat(l.value, platform::kDateFormat); },
     kNotInData},

    // Attributes of the tables of both.
    {"TABLEBORDER", TextTable<&TableAttributes::Border>, DataAttribute<&TableAttributes::Border>},
    {"TABLECOLBOLD", TextTable<&TableAttributes::ColBold>,
     DataAttribute<&TableAttributes::ColBold>},
    {"TABLEALIGNCURRENCY", TextTable<&TableAttributes::AlignCurrency>,
     DataAttribute<&TableAttributes::AlignCurrency>},
});

} // namespace

const SectionCommand* FindSectionCommand(std::string_view key) {
    const auto found = std::ranges::find(kCommands, key, &SectionCommand::key);
    return found == kCommands.end() ? nullptr : &*found;
}

} // namespace reports
