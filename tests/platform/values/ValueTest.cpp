#include "platform/values/Value.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "platform/values/Csv.h"
#include "platform/values/Errors.h"

namespace platform {
namespace {

TEST(Value, EachKindReadsAsTheOthers) {
    struct Case {
        Value value;
        std::int32_t number;
        std::int64_t scaled;
        bool flag;
        const char* text;
    };
    const Case cases[] = {
        {true, 1, 10'000, true, "True"},
        {false, 0, 0, false, "False"},
        {std::int16_t{-3}, -3, -30'000, true, "-3"},
        {std::int32_t{30'000}, 30'000, 300'000'000, true, "30000"},
        {2.5, 2, 25'000, true, "2.5"},
        {Currency::FromScaled(35'000), 4, 35'000, true, "3.5"},
        {Date(1900, 1, 31), 32, 320'000, true, "01/31/1900"},
        {"(1,234.5)", -1234, -12'345'000, true, "(1,234.5)"},
        {"0", 0, 0, false, "0"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(c.value.AsLong(), c.number) << c.text;
        EXPECT_EQ(c.value.AsInteger(), c.number) << c.text;
        EXPECT_EQ(c.value.AsCurrency().Scaled(), c.scaled) << c.text;
        EXPECT_EQ(c.value.AsDouble(), Currency::FromScaled(c.scaled).ToDouble()) << c.text;
        EXPECT_EQ(c.value.AsBoolean(), c.flag) << c.text;
        EXPECT_EQ(c.value.AsText(), c.text);
    }
}

TEST(Value, NullReadsAsNothing) {
    const Value null;
    EXPECT_THROW(static_cast<void>(null.AsBoolean()), ConversionError);
    EXPECT_THROW(static_cast<void>(null.AsInteger()), ConversionError);
    EXPECT_THROW(static_cast<void>(null.AsLong()), ConversionError);
    EXPECT_THROW(static_cast<void>(null.AsDouble()), ConversionError);
    EXPECT_THROW(static_cast<void>(null.AsCurrency()), ConversionError);
    EXPECT_THROW(static_cast<void>(null.AsDate()), ConversionError);
    EXPECT_THROW(static_cast<void>(null.AsText()), ConversionError);
    EXPECT_TRUE(null.IsBlank());
    EXPECT_TRUE(Value("").IsBlank());
    EXPECT_FALSE(Value(" ").IsBlank());
    EXPECT_FALSE(Value(0.0).IsBlank());
    EXPECT_TRUE(Value(Date()).IsNull());
}

TEST(Value, NumbersOutOfRangeOverflow) {
    EXPECT_THROW(static_cast<void>(Value(std::int32_t{32'768}).AsInteger()), OverflowError);
    EXPECT_THROW(static_cast<void>(Value(2'147'483'647.5).AsLong()), OverflowError);
    EXPECT_THROW(static_cast<void>(Value("1e15").AsCurrency()), OverflowError);
    EXPECT_THROW(static_cast<void>(Value(1e10).AsDate()), OverflowError);
    EXPECT_EQ(Value(std::int32_t{-32'768}).AsInteger(), -32'768);
}

TEST(Value, TextsConvertWhereTheyAreWhatIsAsked) {
    EXPECT_TRUE(Value(" true ").AsBoolean());
    EXPECT_FALSE(Value("FALSE").AsBoolean());
    EXPECT_THROW(static_cast<void>(Value("Yes").AsBoolean()), ConversionError);
    EXPECT_THROW(static_cast<void>(Value("").AsBoolean()), ConversionError);
    EXPECT_THROW(static_cast<void>(Value("").AsDouble()), ConversionError);
    EXPECT_THROW(static_cast<void>(Value("x").AsCurrency()), ConversionError);
    EXPECT_EQ(Value("3/4/2024").AsDate(), Date(2024, 3, 4));
    EXPECT_FALSE(Value("").AsDate().IsSet());
    EXPECT_THROW(static_cast<void>(Value("2/30/2024").AsDate()), ConversionError);
    EXPECT_EQ(Value(45'351.99).AsDate(), Date(2024, 2, 29));
}

TEST(Value, ConvertsToTheKindOfAField) {
    const Value text("2.5");
    EXPECT_EQ(text.ConvertTo(FieldType::Integer), Value(std::int16_t{2}));
    EXPECT_EQ(text.ConvertTo(FieldType::Long), Value(std::int32_t{2}));
    EXPECT_EQ(text.ConvertTo(FieldType::Double), Value(2.5));
    EXPECT_EQ(text.ConvertTo(FieldType::Currency), Value(Currency::FromScaled(25'000)));
    EXPECT_EQ(text.ConvertTo(FieldType::Boolean), Value(true));
    EXPECT_EQ(Value(Currency::FromScaled(25'000)).ConvertTo(FieldType::Memo), text);
    EXPECT_EQ(Value("1/2/2024").ConvertTo(FieldType::Date), Value(Date(2024, 1, 2)));
    EXPECT_TRUE(Value("").ConvertTo(FieldType::Date).IsNull());
    for (const auto type : {FieldType::Integer, FieldType::Date, FieldType::Text}) {
        EXPECT_TRUE(Value().ConvertTo(type).IsNull());
    }
    EXPECT_NE(Value(std::int16_t{1}), Value(std::int32_t{1}));
}

TEST(Csv, CellsTellTextFromNothingAndFromNumbers) {
    EXPECT_EQ(CsvCell(Value()), "");
    EXPECT_EQ(CsvCell(""), "\"\"");
    EXPECT_EQ(CsvCell("say \"hi\",\r\nplease"), "\"say \"\"hi\"\",\r\nplease\"");
    EXPECT_EQ(CsvCell("5"), "\"5\"");
    EXPECT_EQ(CsvCell(std::int32_t{-5}), "-5");
    EXPECT_EQ(CsvCell(0.1), "0.1");
    EXPECT_EQ(CsvCell(Currency::FromScaled(-12'345'000)), "-1234.5000");
    EXPECT_EQ(CsvCell(true), "True");
    EXPECT_EQ(CsvCell(Date(2024, 3, 4)), "03/04/2024");
    EXPECT_EQ(CsvText("Check \"#\""), "\"Check \"\"#\"\"\"");
}

} // namespace
} // namespace platform
