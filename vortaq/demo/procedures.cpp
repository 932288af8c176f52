// SPDX-License-Identifier: MIT
// What the settlement procedures ask, for either set of tables.
#include "vortaq/demo/procedures.h"

#include "vortaq/demo/inserter.h"

#include <string>
#include <string_view>

namespace vortaq::demo {

namespace {

/// One query, with '#' for the letter of the tables and '|' for the sign behind the amount. Type '1' is the settlement
/// at discharge, the only one there is.
constexpr std::string_view settlement =
    R"(select isnull((select '1&'+cast(isnull(a.FreeFee,0) as varchar(20))+'|住院'+cast(isnull(a.DayCount,0) as varchar(10))
+'天，医疗费用'+cast(isnull(a.Fee,0) as varchar(20))+'元，其中可补偿'+cast(isnull(a.CanFreeFee,0) as varchar(20))
+'元，本次补偿'+cast(isnull(a.FreeFee,0) as varchar(20))+'元'
+'，药品费用'+cast(isnull((select sum(b.Fee) from #_CbZyJsMxb b where b.OrgCode=a.OrgCode
 and b.CoopMedCode=a.CoopMedCode and b.IDNo=a.IDNo and b.DiagNo=a.DiagNo
 and b.FeeTypeCode in ('01','02','03')),0) as varchar(20))+'元。'
from #_CbZyJsb a where a.OrgCode=@OrgCode and a.CoopMedCode=@CoopMedCode and a.IDNo=@IDNo and a.DiagNo=@DiagNo
 and @Type='1'),'0&这次住院还没有结算，没有补偿信息。'))";

std::string forTables(char prefix)
{
    std::string text;
    for (const char character : settlement)
        text += character == '#' ? prefix : character == '|' ? '#' : character;
    return text;
}

} // namespace

void writeProcedures(sqlite3 *database)
{
    Inserter procedure(database, "v_Procedure", "Name,Text");
    procedure.text("Pro_Zy_FeeInterFace").text(forTables('o')).run();
    procedure.text("Pro_Zy_SFeeInterFace").text(forTables('s')).run();
}

} // namespace vortaq::demo
