// SPDX-License-Identifier: MIT
// Codes, rights and users of the demo county.
#include "vortaq/demo/referencetables.h"

#include "vortaq/demo/catalogue.h"
#include "vortaq/demo/inserter.h"

#include <array>

namespace vortaq::demo {
namespace {

using Text = std::string_view;

void writeCodes(sqlite3 *database)
{
    Inserter institution(database, "p_Ylfwdw", "OrgCode,OrgName");
    for (const Institution &each : institutions())
        institution.text(each.code).text(each.name).run();
    Inserter item(database, "p_BxXm", "ItemCode,Gg");
    for (const FeeItem &each : feeItems())
        item.text(each.code).text(each.packing).run();
    Inserter type(database, "p_fylb", "FeeTypeCode,FeeTypeName");
    for (const FeeType &each : feeTypes())
        type.text(each.code).text(each.name).run();
    Inserter formula(database, "p_ZyBxGs", "ExpressionsId,ExpressionsName");
    for (const Formula &each : formulas())
        formula.text(each.id).text(each.name).run();
    Inserter property(database, "p_HomeProperty", "PropertyCode,PropertyName");
    for (const HomeProperty &each : homeProperties())
        property.text(each.code).text(each.name).run();
}

/// Role R01 bills for everybody. Role R02 is granted two institutions; its other entries grant nothing, because the
/// check mark is missing, or they belong to another right or another subsystem.
void writeRights(sqlite3 *database)
{
    Inserter subsystem(database, "r_SubSysInfo", "SubSysCode");
    for (const Text code : {Text("1"), Text("2")})
        subsystem.text(code).run();

    Inserter user(database, "r_UserRights", "UserCode,RoleCode");
    user.text("01").text("R01").run();
    user.text("02").text("R02").run();

    Inserter right(database, "r_RoleItem", "RoleCode,SubSysCode,RightCode,IsBillAll");
    right.text("R01").text("1").text("010301").text("1").run();
    right.text("R02").text("1").text("010301").text("2").run();
    right.text("R02").text("1").text("010302").text("2").run();
    right.text("R02").text("2").text("010301").text("2").run();

    Inserter granted(database, "r_BillCheckList", "RoleCode,SubSysCode,RightCode,OrgCode,BillCheck");
    const auto grant = [&granted](Text subsystemCode, Text rightCode, int institution, Text mark) {
        granted.text("R02").text(subsystemCode).text(rightCode);
        granted.text(institutions()[static_cast<std::size_t>(institution)].code).text(mark).run();
    };
    grant("1", "010301", clerksHospital, "1");
    grant("1", "010301", secondGrantedHospital, "1");
    grant("1", "010301", countyHospital, "2");
    grant("1", "010302", archiveOnlyHospital, "1");
    grant("2", "010301", inHospitalOnlyHospital, "1");
}

void writeUsers(sqlite3 *database)
{
    Inserter user(database, "v_User", "UserCode,UserName,RightParam");
    user.text("01").text("管理员").text("1,2,3,4,5,6,7,8").run();
    user.text("02").text("李会计").text("1,2,3,5").run();
}

void writeParameters(sqlite3 *database)
{
    struct Parameter {
        Text user;
        Text name;
        Text value;
    };
    const Institution &county = institutions()[countyHospital];
    const Institution &township = institutions()[clerksHospital];
    // Colours are Windows colour integers, 0x00BBGGRR in decimal.
    const auto parameters = std::to_array<Parameter>({
        {"", "AreaCode", areaCode},
        {"", "RightCode", "010301"},
        {"", "DigitalFormat", ",0.00;-,0.00"},
        {"", "Color-1", "11890479"}, // focused row: blue, dark enough for white writing
        {"", "Color-2", "16512238"}, // every second row: a breath of blue
        {"", "Color-5", "16579580"}, // behind the rows: nearly white
        {"", "Color-6", "10744319"}, // specially approved items: light yellow
        {"", "Color-7", "13424383"}, // items struck out at the second review: light red
        {"01", "OrgCode", county.code},
        {"01", "OrgName", county.name},
        {"01", "OrgType", "1"},
        {"01", "OrgGrade", "2"},
        {"01", "isBillAll", "1"},
        {"02", "OrgCode", township.code},
        {"02", "OrgName", township.name},
        {"02", "OrgType", "2"},
        {"02", "OrgGrade", "1"},
        {"02", "isBillAll", "2"},
    });
    Inserter row(database, "v_Parameter", "UserCode,Name,Value");
    for (const Parameter &parameter : parameters)
        row.text(parameter.user).text(parameter.name).text(parameter.value).run();
}

} // namespace

void writeReferenceTables(sqlite3 *database)
{
    writeCodes(database);
    writeRights(database);
    writeUsers(database);
    writeParameters(database);
}

} // namespace vortaq::demo
