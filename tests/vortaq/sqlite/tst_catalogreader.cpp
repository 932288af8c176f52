// SPDX-License-Identifier: MIT
// The catalogue is what the database itself declares.
#include "vortaq/sqlite/CatalogReader.h"

#include "tests/vortaq/sqlite/testdatabase.h"
#include "vortaq/sqlite/Connection.h"

#include <gtest/gtest.h>

namespace {

using namespace vortaq;

class Catalogue : public testing::Test {
protected:
    Catalogue()
        : m_connection(m_database.file(), {false, std::chrono::milliseconds(100)})
        , m_catalog(m_connection)
    {
        m_catalog.refresh();
    }

    /// "name type[ key][ nocase][ indexed], ..." of a table.
    std::string describe(const std::string &name)
    {
        const sql::CatalogTable *table = m_catalog.find(name);
        if (table == nullptr)
            return "no table";
        const sqlite::StoredTable &details = sqlite::CatalogReader::details(*table);
        std::string result = table->name + (details.hasRowId ? " with row numbers:" : ":");
        for (std::size_t i = 0; i < table->columns.size(); ++i) {
            result += " " + table->columns[i].name + " " + sql::typeName(table->columns[i].type);
            for (std::size_t place = 0; place < table->primaryKey.size(); ++place)
                result += table->primaryKey[place] == i ? " key" + std::to_string(place + 1) : "";
            result += details.noCase[i] ? " nocase" : "";
            result += details.indexed[i] ? " indexed" : "";
            result += ";";
        }
        return result;
    }

    test::TestDatabase m_database;
    sqlite::Connection m_connection;
    sqlite::CatalogReader m_catalog;
};

TEST_F(Catalogue, ATableAsDeclared)
{
    m_database.run(
        "create table Own (B int not null, A varchar(20) collate nocase not null, Fee DECIMAL(15,2), Plain char(3),"
        " D date, primary key (A, B)); create index Own_D on Own (D, Plain)");
    EXPECT_EQ(describe("oWN"),
              "Own with row numbers: B int key2 indexed; A varchar(20) key1 nocase indexed; Fee decimal(15,2);"
              " Plain varchar(3) indexed; D date indexed;");
}

TEST_F(Catalogue, ATableWithoutRowNumbers)
{
    m_database.run("create table Own (A int primary key) without rowid");
    EXPECT_EQ(describe("Own"), "Own: A int key1 indexed;");
}

// SQLite lets such keys hold nulls, or texts that are one text to the hospital's statements.
TEST_F(Catalogue, AKeyThatDoesNotTellRowsApartIsNone)
{
    m_database.run("create table Nulls (A int not null, B int, primary key (A, B))");
    EXPECT_EQ(describe("Nulls"), "Nulls with row numbers: A int indexed; B int indexed;");
    m_database.run("create table Cases (A int not null, B varchar(9) not null, primary key (A, B))");
    EXPECT_EQ(describe("Cases"), "Cases with row numbers: A int indexed; B varchar(9) indexed;");
}

TEST_F(Catalogue, AColumnCalledRowidHidesTheRowNumber)
{
    m_database.run("create table Own (RowId int)");
    EXPECT_EQ(describe("Own"), "Own: RowId int;");
}

TEST_F(Catalogue, AView)
{
    EXPECT_EQ(describe("sysobjects").substr(0, 17), "SysObjects: name ");
}

TEST_F(Catalogue, ColumnsOfUnusableTypesAreLeftOut)
{
    m_database.run("create table Own (A int, Picture blob, Note text, Untyped)");
    EXPECT_EQ(describe("Own"), "Own with row numbers: A int; Note varchar(8000); Untyped varchar(8000);");
}

TEST_F(Catalogue, UnknownTables)
{
    EXPECT_EQ(describe("Own"), "no table");
    EXPECT_EQ(describe("sqlite_master"), "no table");
    EXPECT_EQ(describe("sqlite_schema"), "no table");
}

TEST_F(Catalogue, ANewDeclarationIsSeen)
{
    EXPECT_EQ(describe("Own"), "no table");
    m_database.run("create table Own (A int)");
    m_catalog.refresh();
    EXPECT_EQ(describe("Own"), "Own with row numbers: A int;");
    m_database.run("alter table Own add column B date");
    m_catalog.refresh();
    EXPECT_EQ(describe("Own"), "Own with row numbers: A int; B date;");
    m_database.run("drop table Own");
    m_catalog.refresh();
    EXPECT_EQ(describe("Own"), "no table");
}

} // namespace
