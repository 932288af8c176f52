// SPDX-License-Identifier: MIT
// The schema builds an empty database whose tables, types and indexes serve the statements of the system.
#include "vortaq/schema/schema.h"

#include <sqlite3.h>

#include <algorithm>
#include <cctype>
#include <map>
#include <memory>

#include <gtest/gtest.h>

namespace {

using Row = std::vector<std::string>;
using Rows = std::vector<Row>;

struct CloseDatabase {
    void operator()(sqlite3 *database) const { sqlite3_close(database); }
};

std::string lower(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(),
                   [](char letter) { return static_cast<char>(std::tolower(static_cast<unsigned char>(letter))); });
    return text;
}

class Schema : public testing::Test {
protected:
    void SetUp() override
    {
        sqlite3 *database = nullptr;
        ASSERT_EQ(sqlite3_open(":memory:", &database), SQLITE_OK);
        m_database.reset(database);
        for (const std::string &statement : vortaq::schemaStatements())
            run(statement);
    }

    Rows run(const std::string &sql)
    {
        Rows rows;
        const auto collect = [](void *target, int columns, char **values, char **) {
            Row row;
            for (int i = 0; i < columns; ++i)
                row.emplace_back(values[i] == nullptr ? "NULL" : values[i]);
            static_cast<Rows *>(target)->push_back(std::move(row));
            return 0;
        };
        EXPECT_EQ(sqlite3_exec(m_database.get(), sql.c_str(), collect, &rows, nullptr), SQLITE_OK)
            << sql << ": " << sqlite3_errmsg(m_database.get());
        return rows;
    }

    std::string plan(const std::string &sql)
    {
        std::string text;
        for (const Row &row : run("explain query plan " + sql))
            text += row.at(3) + '\n';
        return text;
    }

    /// Columns with their declared types, both in lower case (the library spells some types its own way).
    std::map<std::string, std::string> columns(const std::string &table)
    {
        std::map<std::string, std::string> result;
        for (const Row &row : run("pragma table_info(" + table + ")"))
            result.emplace(lower(row.at(1)), lower(row.at(2)));
        return result;
    }

    std::vector<std::string> tableNames()
    {
        std::vector<std::string> result;
        for (const Row &row : run("select name from sqlite_master where type in ('table','view') order by name"))
            result.push_back(row.front());
        return result;
    }

    void expectIndexedPlans()
    {
        const auto expectPlan = [this](const std::string &sql, const std::string &step) {
            EXPECT_NE(plan(sql).find(step), std::string::npos) << sql << '\n' << plan(sql);
        };
        expectPlan("select * from o_CbZyBxDj where BillCode='1' and BillNo=2",
                   "o_CbZyBxDj_Bill (BillCode=? AND BillNo=?)");
        expectPlan("update s_CbZyBxDj set BillNo=null where BillCode='1' and BillNo=2",
                   "s_CbZyBxDj_Bill (BillCode=? AND BillNo=?)");
        expectPlan("select a.BillNo from o_CbZyZdb a,o_CbZyBxDj b where a.BillCode=b.BillCode and a.BillNo=b.BillNo"
                   " and a.BillCode='1' group by a.BillNo",
                   "o_CbZyBxDj_Bill (BillCode=? AND BillNo=?)");
        expectPlan("select * from o_CbZyBxDj where OrgCode='1' and BillNo is null", "o_CbZyBxDj_Unbilled (OrgCode=?)");
        expectPlan("select OrgCode,OrgName from p_Ylfwdw where OrgCode in"
                   " (select OrgCode from o_CbZyBxDj where BillNo is null group by OrgCode)",
                   "SCAN o_CbZyBxDj USING INDEX o_CbZyBxDj_Unbilled");
        expectPlan("select * from o_CbZyBxDj where BillNo is null and OutDate is not null", "o_CbZyBxDj_Unbilled");
        expectPlan("select sum(FreeFee) from o_CbZyBxDj where CoopMedCode='1' and IDNo=2",
                   "(CoopMedCode=? AND IDNo=?)");
        expectPlan("select * from s_CbZyBxDjZb where OrgCode='1' and CoopMedCode='2' and IDNo=3 and DiagNo=4",
                   "(CoopMedCode=? AND IDNo=? AND DiagNo=? AND OrgCode=?)");
    }

private:
    std::unique_ptr<sqlite3, CloseDatabase> m_database;
};

TEST_F(Schema, MarksTheFile)
{
    EXPECT_EQ(run("pragma application_id"), (Rows{{std::to_string(vortaq::databaseApplicationId)}}));
    EXPECT_EQ(run("pragma user_version"), (Rows{{std::to_string(vortaq::databaseSchemaVersion)}}));
}

TEST_F(Schema, HasEveryTable)
{
    EXPECT_EQ(tableNames(), (std::vector<std::string>{"SysObjects",   "o_CbZyBxDj",      "o_CbZyBxDjZb", "o_CbZyBxTpb",
                                                      "o_CbZyJsMxb",  "o_CbZyJsb",       "o_CbZyZdb",    "p_BxXm",
                                                      "p_CbNhGrXx",   "p_HomeProperty",  "p_Ylfwdw",     "p_ZyBxGs",
                                                      "p_fylb",       "r_BillCheckList", "r_RoleItem",   "r_SubSysInfo",
                                                      "r_UserRights", "s_CbZyBxDj",      "s_CbZyBxDjZb", "s_CbZyBxTpb",
                                                      "s_CbZyJsMxb",  "s_CbZyJsb",       "s_CbZyZdb",    "v_Parameter",
                                                      "v_Procedure",  "v_User"}));
}

TEST_F(Schema, ArchiveTablesMirrorTheCurrentOnes)
{
    for (const std::string suffix : {"CbZyBxDj", "CbZyBxDjZb", "CbZyBxTpb", "CbZyZdb", "CbZyJsb", "CbZyJsMxb"})
        EXPECT_EQ(run("pragma table_info(o_" + suffix + ")"), run("pragma table_info(s_" + suffix + ")")) << suffix;
}

TEST_F(Schema, DeclaresOnlyTypesOfTheServerDatabases)
{
    for (const std::string &table : tableNames()) {
        for (const auto &[name, type] : columns(table)) {
            const bool known = type == "int" || type == "date" || type == "decimal(15,2)" || type == "decimal(15,4)"
                || (type.starts_with("varchar(") && type.ends_with(')'));
            EXPECT_TRUE(known) << table << '.' << name << " is " << type;
        }
    }
}

TEST_F(Schema, KeysThatStatementsLeaveUnquotedAreNumbers)
{
    for (const std::string table : {"o_CbZyBxDj", "o_CbZyBxDjZb", "o_CbZyBxTpb", "o_CbZyJsb", "o_CbZyJsMxb"}) {
        EXPECT_EQ(columns(table).at("idno"), "int") << table;
        EXPECT_EQ(columns(table).at("diagno"), "int") << table;
    }
    EXPECT_EQ(columns("p_CbNhGrXx").at("idno"), "int");
    EXPECT_EQ(columns("o_CbZyBxDj").at("billno"), "int");
    EXPECT_EQ(columns("o_CbZyZdb").at("billno"), "int");
}

TEST_F(Schema, BareNamesInJoinsAreUnambiguous)
{
    // The rights filter selects a bare OrgCode out of four tables.
    for (const std::string table : {"r_UserRights", "r_RoleItem", "r_SubSysInfo"})
        EXPECT_FALSE(columns(table).contains("orgcode")) << table;
    EXPECT_TRUE(columns("r_BillCheckList").contains("orgcode"));

    // The fee list names the record key and the use date bare beside the item catalogue.
    const auto catalogue = columns("p_BxXm");
    for (const auto &[name, type] : columns("o_CbZyBxDjZb"))
        EXPECT_TRUE(name == "itemcode" || !catalogue.contains(name)) << name;

    // The history list names these bare in the join of bills and records.
    for (const std::string name : {"writedate", "checkstatus"})
        EXPECT_FALSE(columns("o_CbZyBxDj").contains(name)) << name;
}

TEST_F(Schema, RefusesASecondBillOrRecordOfTheSameKey)
{
    const auto refused = [this](const std::string &values) {
        run("insert into " + values);
        const Rows before = run("select total_changes()");
        run("insert or ignore into " + values);
        return before == run("select total_changes()");
    };
    EXPECT_TRUE(refused("o_CbZyZdb(BillCode,BillNo) values('4201',1)"));
    EXPECT_TRUE(refused("s_CbZyZdb(BillCode,BillNo) values('4201',1)"));
    EXPECT_TRUE(refused("o_CbZyBxDj(OrgCode,CoopMedCode,IDNo,DiagNo) values('4201','0012',1,3)"));
    EXPECT_TRUE(refused("o_CbZyJsb(OrgCode,CoopMedCode,IDNo,DiagNo) values('4201','0012',1,3)"));
    EXPECT_TRUE(refused("o_CbZyBxDjZb(OrgCode,CoopMedCode,IDNo,DiagNo,FeeNo) values('4201','0012',1,3,1)"));
}

TEST_F(Schema, ListsFindTheirRowsByIndex)
{
    expectIndexedPlans();
}

TEST_F(Schema, ListsFindTheirRowsByIndexInALargeDatabaseWithStatistics)
{
    run("analyze");
    run("insert into sqlite_stat1 values('o_CbZyBxDj','o_CbZyBxDj_Bill','600000 75000 50'),"
        "('o_CbZyBxDj','o_CbZyBxDj_Unbilled','400000 40000'),"
        "('o_CbZyBxDj','sqlite_autoindex_o_CbZyBxDj_1','1000000 2 2 1 1'),"
        "('s_CbZyBxDj','s_CbZyBxDj_Bill','200000 22223 50'),"
        "('o_CbZyZdb','sqlite_autoindex_o_CbZyZdb_1','12000 1500 1')");
    run("analyze sqlite_schema"); // reads the statistics anew
    expectIndexedPlans();
}

TEST_F(Schema, TextComparesWithoutLetterCase)
{
    run("insert into p_Ylfwdw values('42a','One')");
    EXPECT_EQ(run("select OrgName from p_Ylfwdw where OrgCode='42A' and OrgName='oNE'"), (Rows{{"One"}}));
    for (const std::string &table : tableNames()) {
        const std::string ddl = run("select sql from sqlite_master where name='" + table + "'").at(0).at(0);
        if (table == "SysObjects")
            continue;
        for (std::size_t at = ddl.find("varchar("); at != std::string::npos; at = ddl.find("varchar(", at + 1))
            EXPECT_EQ(ddl.substr(ddl.find(')', at), 16), ") collate nocase") << table;
    }
}

TEST_F(Schema, NamesTablesAndProceduresInTheSystemView)
{
    const std::string question = "select name from SysObjects where name ='Pro_Zy_FeeInterFace'";
    EXPECT_EQ(run(question), Rows{});
    run("insert into v_Procedure values('Pro_Zy_FeeInterFace','...')");
    EXPECT_EQ(run(question), (Rows{{"Pro_Zy_FeeInterFace"}}));
    EXPECT_EQ(run("select name from SysObjects where name='o_CbZyZdb'"), (Rows{{"o_CbZyZdb"}}));
}

} // namespace
