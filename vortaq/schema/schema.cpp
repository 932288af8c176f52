// SPDX-License-Identifier: MIT
// The schema as text, the twin tables written once.
#include "vortaq/schema/schema.h"

#include <array>
#include <string_view>

namespace vortaq {
namespace {

// '#' stands for the table's prefix letter, o or s. The member comes first in the keys: the lifetime sums of a
// member then need no index of their own. Codes compare without regard to letter case, as on the servers.
constexpr std::array<std::string_view, 6> twinTables = {
    R"(create table #_CbZyBxDj (
  OrgCode varchar(20) collate nocase not null,
  CoopMedCode varchar(30) collate nocase not null,
  IDNo int not null,
  DiagNo int not null,
  HospitalCode varchar(20) collate nocase,
  HospitalName varchar(100) collate nocase,
  PatientName varchar(50) collate nocase,
  HouseHolder varchar(50) collate nocase,
  Sex varchar(4) collate nocase,
  Age int,
  AgeUnit varchar(4) collate nocase,
  InDate date,
  OutDate date,
  DayCount int,
  JsDate date,
  PatientNo varchar(30) collate nocase,
  InHosCount int,
  IllCode varchar(20) collate nocase,
  IllName varchar(100) collate nocase,
  ExpenseKind varchar(2) collate nocase,
  TotalFee decimal(15,2),
  CanFreeFee decimal(15,2),
  FreeFee decimal(15,2),
  DoctorName varchar(50) collate nocase,
  InputerCode varchar(20) collate nocase,
  InputerName varchar(50) collate nocase,
  InterfaceIn varchar(1) collate nocase,
  AreaCode varchar(20) collate nocase,
  ExpressionsID varchar(10) collate nocase,
  LimitDef varchar(20) collate nocase,
  Ke decimal(15,2),
  BillCode varchar(20) collate nocase,
  BillNo int,
  CheckerCode1 varchar(20) collate nocase,
  CheckerName1 varchar(50) collate nocase,
  CheckOneFee decimal(15,2),
  CheckDate1 date,
  Checkone varchar(200) collate nocase,
  CheckerCode varchar(20) collate nocase,
  CheckerName varchar(50) collate nocase,
  CheckFee decimal(15,2),
  CheckDate date,
  CheckRemark varchar(200) collate nocase,
  primary key (CoopMedCode, IDNo, DiagNo, OrgCode)
))",
    R"(create table #_CbZyBxDjZb (
  OrgCode varchar(20) collate nocase not null,
  CoopMedCode varchar(30) collate nocase not null,
  IDNo int not null,
  DiagNo int not null,
  FeeNo int not null,
  ItemCode varchar(20) collate nocase,
  ItemName varchar(100) collate nocase,
  FeeTypeCode varchar(10) collate nocase,
  FeeTypeName varchar(50) collate nocase,
  IfPass varchar(1) collate nocase,
  Unit varchar(20) collate nocase,
  Price decimal(15,4),
  Num decimal(15,4),
  Fee decimal(15,4),
  CanFreeFee decimal(15,4),
  KnockOffFee1 decimal(15,4),
  KnockOffFee decimal(15,4),
  YyDate date,
  InputDate date,
  primary key (CoopMedCode, IDNo, DiagNo, OrgCode, FeeNo)
))",
    R"(create table #_CbZyBxTpb (
  OrgCode varchar(20) collate nocase not null,
  CoopMedCode varchar(30) collate nocase not null,
  IDNo int not null,
  DiagNo int not null,
  ItemCode varchar(20) collate nocase not null,
  Status varchar(1) collate nocase,
  primary key (CoopMedCode, IDNo, DiagNo, OrgCode, ItemCode)
))",
    R"(create table #_CbZyZdb (
  BillCode varchar(20) collate nocase not null,
  BillNo int not null,
  BillName varchar(100) collate nocase,
  WriteDate date,
  Fee decimal(15,2),
  CanFreeFee decimal(15,2),
  CheckFee1 decimal(15,2),
  CheckFee decimal(15,2),
  CheckStatus varchar(1) collate nocase,
  PrincipalName varchar(50) collate nocase,
  primary key (BillCode, BillNo)
))",
    R"(create table #_CbZyJsb (
  OrgCode varchar(20) collate nocase not null,
  CoopMedCode varchar(30) collate nocase not null,
  IDNo int not null,
  DiagNo int not null,
  HospitalName varchar(100) collate nocase,
  HouseHolder varchar(50) collate nocase,
  PatientName varchar(50) collate nocase,
  Sex varchar(4) collate nocase,
  BirthDay date,
  RelationName varchar(20) collate nocase,
  Address varchar(200) collate nocase,
  InDate date,
  OutDate date,
  DayCount int,
  PatientNo varchar(30) collate nocase,
  IllName varchar(100) collate nocase,
  InHosCount int,
  Fee decimal(15,2),
  CanFreeFee decimal(15,2),
  FreeFee decimal(15,2),
  MzFee decimal(15,2),
  HosFee decimal(15,2),
  primary key (CoopMedCode, IDNo, DiagNo, OrgCode)
))",
    R"(create table #_CbZyJsMxb (
  OrgCode varchar(20) collate nocase not null,
  CoopMedCode varchar(30) collate nocase not null,
  IDNo int not null,
  DiagNo int not null,
  FeeTypeCode varchar(10) collate nocase not null,
  Fee decimal(15,2),
  CanFreeFee decimal(15,2),
  FreeFee decimal(15,2),
  primary key (CoopMedCode, IDNo, DiagNo, OrgCode, FeeTypeCode)
))"};

constexpr std::array<std::string_view, 14> singleTables = {
    "create table p_Ylfwdw (OrgCode varchar(20) collate nocase not null primary key, OrgName varchar(100) collate "
    "nocase)",
    R"(create table p_CbNhGrXx (
  CoopMedCode varchar(30) collate nocase not null,
  IDNo int not null,
  isHouseHolder varchar(1) collate nocase,
  Address varchar(200) collate nocase,
  HomeProperty varchar(20) collate nocase,
  primary key (CoopMedCode, IDNo)
))",
    "create table p_BxXm (ItemCode varchar(20) collate nocase not null primary key, Gg varchar(100) collate nocase)",
    "create table p_ZyBxGs (ExpressionsId varchar(10) collate nocase not null primary key, ExpressionsName "
    "varchar(200) collate nocase)",
    "create table p_fylb (FeeTypeCode varchar(10) collate nocase not null primary key, FeeTypeName varchar(50) collate "
    "nocase)",
    "create table p_HomeProperty (PropertyCode varchar(10) collate nocase not null primary key, PropertyName "
    "varchar(50) collate nocase)",
    R"(create table r_UserRights (
  UserCode varchar(20) collate nocase not null,
  RoleCode varchar(20) collate nocase not null,
  primary key (UserCode, RoleCode)
))",
    R"(create table r_RoleItem (
  RoleCode varchar(20) collate nocase not null,
  SubSysCode varchar(10) collate nocase not null,
  RightCode varchar(20) collate nocase not null,
  IsBillAll varchar(1) collate nocase,
  primary key (RoleCode, SubSysCode, RightCode)
))",
    "create table r_SubSysInfo (SubSysCode varchar(10) collate nocase not null primary key)",
    R"(create table r_BillCheckList (
  RoleCode varchar(20) collate nocase not null,
  SubSysCode varchar(10) collate nocase not null,
  RightCode varchar(20) collate nocase not null,
  OrgCode varchar(20) collate nocase not null,
  BillCheck varchar(1) collate nocase,
  primary key (RoleCode, SubSysCode, RightCode, OrgCode)
))",
    R"(create table v_User (
  UserCode varchar(20) collate nocase not null primary key,
  UserName varchar(50) collate nocase not null,
  RightParam varchar(200) collate nocase not null
))",
    R"(create table v_Parameter (
  UserCode varchar(20) collate nocase not null,
  Name varchar(50) collate nocase not null,
  Value varchar(200) collate nocase not null,
  primary key (UserCode, Name)
))",
    "create table v_Procedure (Name varchar(128) collate nocase not null primary key, Text varchar(8000) collate "
    "nocase not null)",
    // The cast gives the view's column a declared type.
    R"(create view SysObjects(name) as
  select cast(name as varchar(128)) from sqlite_master where type in ('table', 'view')
  union all
  select Name from v_Procedure)"};

// Bills find their records, and an institution's unbilled records are found among millions of billed ones. Each
// record is in one of the two indexes only: were the unbilled ones in the index by bill too, the planner would prefer
// it for lists that need nothing but the institution, and read every record.
constexpr std::array<std::string_view, 3> indexes = {
    "create index o_CbZyBxDj_Bill on o_CbZyBxDj (BillCode, BillNo) where BillNo is not null",
    "create index s_CbZyBxDj_Bill on s_CbZyBxDj (BillCode, BillNo) where BillNo is not null",
    "create index o_CbZyBxDj_Unbilled on o_CbZyBxDj (OrgCode) where BillNo is null"};

std::string withPrefix(std::string_view statement, char prefix)
{
    std::string text(statement);
    text[text.find('#')] = prefix;
    return text;
}

} // namespace

std::vector<std::string> schemaTableStatements()
{
    std::vector<std::string> result;
    result.push_back("pragma application_id = " + std::to_string(databaseApplicationId));
    result.push_back("pragma user_version = " + std::to_string(databaseSchemaVersion));
    for (const char prefix : {'o', 's'})
        for (const std::string_view table : twinTables)
            result.push_back(withPrefix(table, prefix));
    result.insert(result.end(), singleTables.begin(), singleTables.end());
    return result;
}

std::vector<std::string> schemaIndexStatements()
{
    return {indexes.begin(), indexes.end()};
}

std::vector<std::string> schemaStatements()
{
    std::vector<std::string> result = schemaTableStatements();
    for (std::string &index : schemaIndexStatements())
        result.push_back(std::move(index));
    return result;
}

} // namespace vortaq
