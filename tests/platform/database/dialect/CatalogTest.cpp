#include <gtest/gtest.h>

#include "TestTables.h"

namespace platform::dialect {
namespace {

TEST(Catalog, FindsNamesInAnyCase) {
    EXPECT_EQ(TestCatalog().Find("PERSON")->name, "Person");
    EXPECT_EQ(TestCatalog().Find("person")->Find("CHECK #")->type, FieldType::Text);
    EXPECT_EQ(TestCatalog().Find("people"), nullptr);
    EXPECT_EQ(TestCatalog().Find("Pay")->Find("Name"), nullptr);
}

TEST(Catalog, DeclarationsReadBackAsTheirTypes) {
    using enum FieldType;
    for (const FieldType type : {Integer, Long, Double, Currency, Boolean, Text, Memo})
        EXPECT_EQ(TypeOfDeclaration(DeclarationOf(type)), type) << FieldTypeName(type);
    EXPECT_EQ(TypeOfDeclaration("DATETEXT"), Text);
    EXPECT_EQ(TypeOfDeclaration("something else"), Text);
    EXPECT_EQ(TypeOfDeclaration("currency"), Currency);
}

} // namespace
} // namespace platform::dialect
