// SPDX-License-Identifier: MIT
// A hospital's tables in memory.
#include "tests/vortaq/sql/testcatalog.h"

#include <array>
#include <stdexcept>

namespace vortaq::sql::test {

namespace {

struct TableText {
    std::string_view name; // with '#' for the prefix letter of the twin tables
    std::string_view columns; // name, blank, type, separated by "; "
    std::size_t keyColumns; // the first columns are the key
};

constexpr auto tables = std::to_array<TableText>({
    {"#_CbZyBxDj",
     "OrgCode varchar(20); CoopMedCode varchar(30); IDNo int; DiagNo int; HospitalCode varchar(20); HospitalName "
     "varchar(100); PatientName varchar(50); HouseHolder varchar(50); Sex varchar(4); Age int; AgeUnit varchar(4); "
     "InDate date; OutDate date; DayCount int; JsDate date; PatientNo varchar(30); InHosCount int; IllCode "
     "varchar(20); IllName varchar(100); ExpenseKind varchar(2); TotalFee decimal(15,2); CanFreeFee decimal(15,2); "
     "FreeFee decimal(15,2); DoctorName varchar(50); InputerCode varchar(20); InputerName varchar(50); InterfaceIn "
     "varchar(1); AreaCode varchar(20); ExpressionsID varchar(10); LimitDef varchar(20); Ke decimal(15,2); BillCode "
     "varchar(20); BillNo int; CheckerCode1 varchar(20); CheckerName1 varchar(50); CheckOneFee decimal(15,2); "
     "CheckDate1 date; Checkone varchar(200); CheckerCode varchar(20); CheckerName varchar(50); CheckFee "
     "decimal(15,2); CheckDate date; CheckRemark varchar(200)",
     4},
    {"#_CbZyBxDjZb",
     "OrgCode varchar(20); CoopMedCode varchar(30); IDNo int; DiagNo int; FeeNo int; ItemCode varchar(20); ItemName "
     "varchar(100); FeeTypeCode varchar(10); FeeTypeName varchar(50); IfPass varchar(1); Unit varchar(20); Price "
     "decimal(15,4); Num decimal(15,4); Fee decimal(15,4); CanFreeFee decimal(15,4); KnockOffFee1 decimal(15,4); "
     "KnockOffFee decimal(15,4); YyDate date; InputDate date",
     5},
    {"#_CbZyBxTpb",
     "OrgCode varchar(20); CoopMedCode varchar(30); IDNo int; DiagNo int; ItemCode varchar(20); Status varchar(1)", 5},
    {"#_CbZyZdb",
     "BillCode varchar(20); BillNo int; BillName varchar(100); WriteDate date; Fee decimal(15,2); CanFreeFee "
     "decimal(15,2); CheckFee1 decimal(15,2); CheckFee decimal(15,2); CheckStatus varchar(1); PrincipalName "
     "varchar(50)",
     2},
    {"#_CbZyJsb",
     "OrgCode varchar(20); CoopMedCode varchar(30); IDNo int; DiagNo int; HospitalName varchar(100); HouseHolder "
     "varchar(50); PatientName varchar(50); Sex varchar(4); BirthDay date; RelationName varchar(20); Address "
     "varchar(200); InDate date; OutDate date; DayCount int; PatientNo varchar(30); IllName varchar(100); InHosCount "
     "int; Fee decimal(15,2); CanFreeFee decimal(15,2); FreeFee decimal(15,2); MzFee decimal(15,2); HosFee "
     "decimal(15,2)",
     4},
    {"#_CbZyJsMxb",
     "OrgCode varchar(20); CoopMedCode varchar(30); IDNo int; DiagNo int; FeeTypeCode varchar(10); Fee decimal(15,2); "
     "CanFreeFee decimal(15,2); FreeFee decimal(15,2)",
     5},
    {"p_Ylfwdw", "OrgCode varchar(20); OrgName varchar(100)", 1},
    {"p_CbNhGrXx",
     "CoopMedCode varchar(30); IDNo int; isHouseHolder varchar(1); Address varchar(200); HomeProperty varchar(20)", 2},
    {"p_BxXm", "ItemCode varchar(20); Gg varchar(100)", 1},
    {"p_ZyBxGs", "ExpressionsId varchar(10); ExpressionsName varchar(200)", 1},
    {"p_fylb", "FeeTypeCode varchar(10); FeeTypeName varchar(50)", 1},
    {"p_HomeProperty", "PropertyCode varchar(10); PropertyName varchar(50)", 1},
    {"r_UserRights", "UserCode varchar(20); RoleCode varchar(20)", 2},
    {"r_RoleItem", "RoleCode varchar(20); SubSysCode varchar(10); RightCode varchar(20); IsBillAll varchar(1)", 3},
    {"r_SubSysInfo", "SubSysCode varchar(10)", 1},
    {"r_BillCheckList",
     "RoleCode varchar(20); SubSysCode varchar(10); RightCode varchar(20); OrgCode varchar(20); BillCheck varchar(1)",
     4},
    {"v_Parameter", "UserCode varchar(20); Name varchar(50); Value varchar(200)", 2},
    {"SysObjects", "name varchar(128)", 0},
    {"t_Types", "i int; d decimal(5,2); f float; v varchar(3); long varchar(8000); day date; moment datetime", 1},
});

CatalogTable tableOf(const TableText &text, char prefix)
{
    CatalogTable table;
    table.name = text.name;
    if (table.name.front() == '#')
        table.name.front() = prefix;
    for (std::size_t i = 0; i < text.keyColumns; ++i)
        table.primaryKey.push_back(i);
    std::string_view rest = text.columns;
    while (!rest.empty()) {
        const std::string_view column = rest.substr(0, rest.find("; "));
        rest.remove_prefix(std::min(column.size() + 2, rest.size()));
        const std::size_t blank = column.find(' ');
        const auto type = parseDeclaredType(column.substr(blank + 1));
        if (!type)
            throw std::logic_error("bad column: " + std::string(column));
        table.columns.push_back({std::string(column.substr(0, blank)), *type});
    }
    return table;
}

} // namespace

const Catalog &hospitalCatalog()
{
    static const MemoryCatalog *const catalog = [] {
        static MemoryCatalog filled;
        for (const TableText &text : tables) {
            for (const char prefix : {'o', 's'})
                filled.add(tableOf(text, prefix));
        }
        return &filled;
    }();
    return *catalog;
}

} // namespace vortaq::sql::test
