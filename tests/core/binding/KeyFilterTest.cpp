#include "core/binding/KeyFilter.h"

#include <gtest/gtest.h>

#include <QString>

#include "support/Cases.h"

namespace {

using core::binding::FilterKey;
using core::binding::KeyedBox;

/// The key of a cell: a letter, or 0 for one that is dropped.
char32_t KeyOf(const std::string& cell) {
    if (cell == "dropped") return core::binding::kNoKey;
    if (cell == "backspace") return core::binding::kBackspace;
    return QString::fromStdString(cell).at(0).unicode();
}

TEST(KeyFilter, TakesOrDropsAKey) {
    support::ForEachCase(VESTREL_TEST_DATA "/keys.cases", "keys", [](const support::Case& each) {
        std::u32string text = QString::fromStdString(each["box"]).toStdU32String();
        KeyedBox box;
        box.tag = each["tag"];
        box.caret = text.find(U'^');
        box.text = text.erase(box.caret, 1);
        EXPECT_EQ(FilterKey(box, KeyOf(each["key"])), KeyOf(each["passed"])) << each["what"];
    });
}

TEST(KeyFilter, StopsAtTheGreatestLengthUnlessSomethingIsSelected) {
    KeyedBox box;
    box.tag = "_Zip";
    box.text = U"12345";
    box.maxLength = 5;
    EXPECT_EQ(FilterKey(box, U'6'), core::binding::kNoKey);
    EXPECT_EQ(FilterKey(box, core::binding::kBackspace), core::binding::kBackspace);
    box.selected = 1;
    EXPECT_EQ(FilterKey(box, U'6'), U'6');
    box.selected = 0;
    box.maxLength = 0;
    EXPECT_EQ(FilterKey(box, U'6'), U'6');
}

} // namespace
