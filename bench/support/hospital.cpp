// SPDX-License-Identifier: MIT
// Fills the scratch database.
#include "bench/support/hospital.h"

#include "bench/support/plainsqlite.h"
#include "vortaq/schema/schema.h"

namespace bench {

Hospital::Hospital(int candidates, int recordsEach)
{
    const Plain database = openPlain(file());
    run(database.get(), "pragma synchronous = off; pragma journal_mode = wal; begin");
    for (const std::string &statement : vortaq::schemaStatements())
        run(database.get(), statement);
    const std::string count = std::to_string(candidates * recordsEach);
    const std::string each = std::to_string(recordsEach);
    run(database.get(),
        "with recursive n(i) as (select 0 union all select i + 1 from n where i + 1 < " + count
            + "), stay(s, i) as (select i, i / " + each
            + " from n) insert into o_CbZyBxDj (OrgCode, CoopMedCode, IDNo, DiagNo, HospitalCode, HospitalName, "
              "PatientName,"
              " HouseHolder, Sex, Age, AgeUnit, InDate, OutDate, DayCount, JsDate, PatientNo, IllCode, IllName, "
              "ExpenseKind,"
              " TotalFee, CanFreeFee, FreeFee, DoctorName, InputerCode, InputerName, InterfaceIn, AreaCode, "
              "ExpressionsID,"
              " LimitDef, Ke, BillCode, BillNo)"
              " select '4201' || printf('%02d', i % 20), printf('42010%09d', i / 4), i % 4, s % "
            + each
            + ", '420101',"
              " '城关镇中心卫生院', '病人' || s, '户主' || (i / 4), case s % 2 when 0 then '男' else '女' end, s % 90, "
              "'岁',"
              " date('2024-01-01', (s % 300) || ' days'), date('2024-01-09', (s % 300) || ' days'), 8,"
              " date('2024-01-09', (s % 317) || ' days'), 'Z' || s, 'J18.900', '支气管肺炎', '2' || (1 + s % 3),"
              " round(s % 100000 / 7.0 + 100, 2), round(s % 100000 / 9.0 + 50, 2), round(s % 100000 / 11.0, 2), "
              "'王医生', '01',"
              " '管理员', '2', '420101', '01', '0', 20.5, case when s % "
            + each
            + " then '4201' || printf('%02d', i % 20) end,"
              " case when s % "
            + each + " then s / 500 end from stay");
    run(database.get(), "commit; analyze; pragma wal_checkpoint(truncate)");
}

QString Hospital::file() const
{
    return m_folder.filePath(QStringLiteral("bench.db"));
}

std::string keyOf(int candidate)
{
    const auto padded = [](int number, std::size_t width) {
        const std::string text = std::to_string(number);
        return std::string(width - text.size(), '0') + text;
    };
    return "(OrgCode='4201" + padded(candidate % 20, 2) + "' and CoopMedCode='42010" + padded(candidate / 4, 9)
        + "' and IDNo=" + std::to_string(candidate % 4) + " and DiagNo=0)";
}

} // namespace bench
