// SPDX-License-Identifier: MIT
// Declared types and names in any letter case.
#include "vortaq/sql/Catalog.h"

#include <gtest/gtest.h>

using namespace vortaq::sql;

namespace {

struct Declared {
    const char *name;
    const char *text;
    const char *type; // empty: refused
};

class DeclaredTypes : public testing::TestWithParam<Declared> { };

TEST_P(DeclaredTypes, Read)
{
    const auto type = parseDeclaredType(GetParam().text);
    EXPECT_EQ(type ? typeName(*type) : "", GetParam().type);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, DeclaredTypes,
    testing::Values(Declared{"varchar", "varchar(20)", "varchar(20)"}, Declared{"upper", "VARCHAR(20)", "varchar(20)"},
                    Declared{"blanks", " nvarchar ( 7 ) ", "varchar(7)"}, Declared{"char1", "char", "varchar(1)"},
                    Declared{"nchar", "nchar(3)", "varchar(3)"}, Declared{"int", "int", "int"},
                    Declared{"integer", "Integer", "int"}, Declared{"smallint", "smallint", "int"},
                    Declared{"tinyint", "tinyint", "int"}, Declared{"bigint", "bigint", "decimal(19,0)"},
                    Declared{"money", "money", "decimal(19,4)"}, Declared{"decimal", "decimal(15,2)", "decimal(15,2)"},
                    Declared{"numeric", "numeric( 5 , 0 )", "decimal(5,0)"},
                    Declared{"decimal18", "decimal", "decimal(18,0)"}, Declared{"float", "float", "float"},
                    Declared{"real", "real", "float"}, Declared{"date", "date", "date"},
                    Declared{"datetime", "datetime", "datetime"}, Declared{"datetime3", "datetime(3)", "datetime"},
                    Declared{"smalldatetime", "smalldatetime", "datetime"}, Declared{"blob", "blob", ""},
                    Declared{"empty", "", ""}, Declared{"zero", "varchar(0)", ""},
                    Declared{"long", "varchar(8001)", ""}, Declared{"negative", "varchar(-1)", ""},
                    Declared{"three", "decimal(1,2,3)", ""}, Declared{"scale", "decimal(3,4)", ""},
                    Declared{"digits", "decimal(39,2)", ""}, Declared{"open", "varchar(20", ""},
                    Declared{"word", "varchar(max)", ""}, Declared{"intSize", "int(4)", ""},
                    Declared{"twoSizes", "varchar(1,2)", ""}),
    [](const testing::TestParamInfo<Declared> &row) { return row.param.name; });

TEST(Catalog, FindsTablesAndColumnsInAnyLetterCase)
{
    MemoryCatalog catalog;
    catalog.add({"p_fylb", {{"FeeTypeCode", varcharType(10)}, {"FeeTypeName", varcharType(50)}}, {0}});
    const CatalogTable *table = catalog.find("P_FYLB");
    ASSERT_NE(table, nullptr);
    EXPECT_EQ(table->name, "p_fylb");
    EXPECT_EQ(table->find("feetypename"), 1U);
    EXPECT_EQ(table->find("FeeType"), table->columns.size());
    EXPECT_EQ(catalog.find("p_fylb2"), nullptr);
}

TEST(Catalog, ATableStaysWhereItIsWhenOthersCome)
{
    MemoryCatalog catalog;
    catalog.add({"a", {}, {}});
    const CatalogTable *first = catalog.find("a");
    for (int i = 0; i < 100; ++i)
        catalog.add({"t" + std::to_string(i), {}, {}});
    EXPECT_EQ(catalog.find("A"), first);
}

TEST(Catalog, LettersBeyondAsciiKeepTheirCase)
{
    EXPECT_TRUE(sameName("Ä1病", "Ä1病"));
    EXPECT_FALSE(sameName("Ä", "ä"));
    EXPECT_EQ(foldName("AbÄ"), "abÄ");
}

} // namespace
