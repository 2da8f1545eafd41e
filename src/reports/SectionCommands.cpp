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
constexpr bool kCommand = false;
constexpr bool kAttribute = true;

Detail DetailOf(std::string_view word) {
    if (platform::EqualIgnoringCase(word, "FULL")) return Detail::Full;
    if (platform::EqualIgnoringCase(word, "SUMMARY")) return Detail::Summary;
    return Detail::Always;
}

// Returns the value itself, for a text property.
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

// Attributes apply to the command queued last; before the first command they are ignored.
template <auto Member>
void TextAttribute(clsRptText& section, Line line) {
    if (TextCommand* command = section.Last()) command->*Member = line.value;
}

template <auto Member>
void TextFlag(clsRptText& section, Line line) {
    if (TextCommand* command = section.Last()) command->*Member = platform::StrToBool(line.value);
}

/// The number is read even without a command to take it, because text that is not a number ends the
/// run.
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
    {"DETAILLEVEL", kCommand, [](clsRptText& s, Line l) { s.DetailLevel = DetailOf(l.value); },
     [](clsRptData& s, Line l) { s.DetailLevel = DetailOf(l.value); }},
    {"SQLQUERY", kCommand, TextWithValue<&clsRptText::SQLQuery>, DataText<&clsRptData::SQLQuery>},

    // Commands of [DATA].
    {"SQLFIELDS", kCommand, kNotInText, DataText<&clsRptData::SQLFields>},
    {"SQLTABLES", kCommand, kNotInText, DataText<&clsRptData::SQLTables>},
    {"SQLFILTER", kCommand, kNotInText, DataText<&clsRptData::SQLFilter>},
    {"SQLORDER", kCommand, kNotInText, DataText<&clsRptData::SQLOrder>},
    {"SHOWTABLE", kCommand, kNotInText, [](clsRptData& s, Line) { s.SetMode_Table(); }},
    {"SHOWRECORDS", kCommand, kNotInText, [](clsRptData& s, Line) { s.SetMode_Records(); }},
    {"SHOWAMORTIZATION", kCommand, kNotInText,
     [](clsRptData& s, Line) { s.SetMode_Amortization(); }},
    {"SHOWDEPRECIATION", kCommand, kNotInText,
     [](clsRptData& s, Line) { s.SetMode_Depreciation(); }},
    {"SHOWDEPRTABLE", kCommand, kNotInText, [](clsRptData& s, Line) { s.SetMode_DeprTable(); }},
    {"SHOWGRANDTOTAL", kCommand, kNotInText, [](clsRptData& s, Line) { s.ShowGrandTotal = true; }},
    {"TOTALFIELD", kCommand, kNotInText, DataText<&clsRptData::TotalField>},
    {"TOTALDESCRIPTION", kCommand, kNotInText, DataText<&clsRptData::TotalDesc>},
    {"GROUPFIELD", kCommand, kNotInText, DataText<&clsRptData::GroupField>},
    {"GROUPDESCRIPTION", kCommand, kNotInText, DataText<&clsRptData::GroupDesc>},
    {"HEADLINE", kCommand, kNotInText, DataText<&clsRptData::HeadLine>},
    {"FOOTLINE", kCommand, kNotInText, DataText<&clsRptData::FootLine>},
    {"HEADTEXT", kCommand, kNotInText, DataText<&clsRptData::HeadText>},
    {"FOOTTEXT", kCommand, kNotInText, DataText<&clsRptData::FootText>},
    {"LINEBETWEEN", kCommand, kNotInText,
     [](clsRptData& s, Line l) { s.LineBetween = platform::StrToBool(l.value); }},
    {"MAXRECORDS", kCommand, kNotInText,
     [](clsRptData& s, Line l) { s.MaxRecords = platform::StrToInt16(l.value); }},

    // Commands of [TEXT], then their attributes.
    {"PARAGRAPH", kCommand, TextWithValue<&clsRptText::Paragraph>, kNotInData},
    {"TABLE", kCommand, TextWithValue<&clsRptText::Table>, kNotInData},
    {"SEPLINE", kCommand, TextWithValue<&clsRptText::SepLine>, kNotInData},
    {"CALC", kCommand, TextWithValue<&clsRptText::Calc>, kNotInData},
    {"DRAWGRID", kCommand, [](clsRptText& s, Line l) { s.DrawGrid(l.number); }, kNotInData},
    {"DRAWBOX", kCommand, TextWithValue<&clsRptText::DrawBox>, kNotInData},
    {"DRAWLINE", kCommand, TextWithValue<&clsRptText::DrawLine>, kNotInData},
    {"LOCATE", kCommand, TextWithValue<&clsRptText::Locate>, kNotInData},
    {"APPEND", kAttribute, TextAppend, kNotInData},
    {"FONTNAME", kAttribute, TextAttribute<&TextCommand::FontName>, kNotInData},
    {"TEXTCOLOR", kAttribute, TextAttribute<&TextCommand::TextColor>, kNotInData},
    {"FONTSIZE", kAttribute, TextNumber<&TextCommand::FontSize>, kNotInData},
    {"FONTBOLD", kAttribute, TextFlag<&TextCommand::FontBold>, kNotInData},
    {"FONTITALIC", kAttribute, TextFlag<&TextCommand::FontItalic>, kNotInData},
    {"FONTUNDERLINE", kAttribute, TextFlag<&TextCommand::FontUnderline>, kNotInData},
    {"PENCOLOR", kAttribute, TextAttribute<&TextCommand::PenColor>, kNotInData},
    {"PENWIDTH", kAttribute, TextNumber<&TextCommand::PenWidth>, kNotInData},
    {"FILLCOLOR", kAttribute, TextAttribute<&TextCommand::FillColor>, kNotInData},
    {"TABLEFORMAT", kAttribute, TextAttribute<&TextCommand::TableFormat>, kNotInData},
    {"TABLEHEADER", kAttribute, TextAttribute<&TextCommand::TableHeader>, kNotInData},
    {"FORMATCURRENCY", kCommand,
     [](clsRptText& s, Line l) { s.TagFormat(l.value, platform::kMoneyFormat, l.number); },
     kNotInData},
    {"FORMATDATE", kCommand,
     [](clsRptText& s, Line l) { s.TagFormat(l.value, platform::kDateFormat, l.number); },
     kNotInData},

    // Attributes of the tables of both.
    {"TABLEBORDER", kAttribute, TextTable<&TableAttributes::Border>,
     DataAttribute<&TableAttributes::Border>},
    {"TABLECOLBOLD", kAttribute, TextTable<&TableAttributes::ColBold>,
     DataAttribute<&TableAttributes::ColBold>},
    {"TABLEALIGNCURRENCY", kAttribute, TextTable<&TableAttributes::AlignCurrency>,
     DataAttribute<&TableAttributes::AlignCurrency>},
});

} // namespace

const SectionCommand* FindSectionCommand(std::string_view key) {
    const auto found = std::ranges::find(kCommands, key, &SectionCommand::key);
    return found == kCommands.end() ? nullptr : &*found;
}

} // namespace reports
