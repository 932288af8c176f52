// SPDX-License-Identifier: MIT
// Everything in a demo database adds up and refers to something. Each rule is a query for rows that break it; '#'
// stands for the current and the archive tables in turn, '@' for the same record key in x and d.
#include "tests/vortaq/demo/demodatabase.h"

#include <array>

namespace vortaq::demo {
namespace {

struct Rule {
    const char *name;
    const char *violations;
};

constexpr std::array<Rule, 37> rules = {{
    // Fee lines
    {"LinesAddUpToTheirRecord",
     "select * from #_CbZyBxDj d where cents(TotalFee) <> (select coalesce(sum(cents(x.Fee)),0) from #_CbZyBxDjZb"
     " x where @) or cents(CanFreeFee) <> (select coalesce(sum(cents(x.CanFreeFee)),0) from #_CbZyBxDjZb x where"
     " @)"},
    {"EveryRecordHasALine",
     "select * from #_CbZyBxDj d where not exists (select * from #_CbZyBxDjZb x where FeeNo=1 and @)"},
    {"EveryLineHasARecord", "select * from #_CbZyBxDjZb d where not exists (select * from #_CbZyBxDj x where @)"},
    {"LineNumbersHaveNoGaps",
     "select OrgCode from #_CbZyBxDjZb group by OrgCode,CoopMedCode,IDNo,DiagNo having count(*)<>max(FeeNo)"},
    {"LinesArePriceTimesNumber", "select * from #_CbZyBxDjZb where abs(Price*Num-Fee)>0.00500001 or Num<=0 or Fee<=0"},
    {"LinesReimburseOnlyWhatIsCompensable",
     "select * from #_CbZyBxDjZb where CanFreeFee<0 or CanFreeFee>Fee or (IfPass='2' and CanFreeFee<>0) or IfPass"
     " not in ('1','2')"},
    {"LinesLoseNoMoreThanTheirReimbursablePart",
     "select * from #_CbZyBxDjZb where KnockOffFee1<0 or KnockOffFee<0 or"
     " KnockOffFee1+KnockOffFee>CanFreeFee+0.001"},
    {"LinesLieWithinTheStay",
     "select * from #_CbZyBxDjZb d join #_CbZyBxDj x on @ where YyDate<InDate or YyDate>coalesce(OutDate,"
     "'2024-03-01') or InputDate<YyDate or InputDate>coalesce(OutDate,'2024-03-01')"},
    {"LinesNameTheirFeeType",
     "select * from #_CbZyBxDjZb d where not exists (select * from p_fylb t where t.FeeTypeCode=d.FeeTypeCode and"
     " t.FeeTypeName=d.FeeTypeName)"},
    {"LinesAreInTheItemCatalogue", "select * from #_CbZyBxDjZb where ItemCode not in (select ItemCode from p_BxXm)"},
    {"ApprovalsBelongToALine",
     "select * from #_CbZyBxTpb d where not exists (select * from #_CbZyBxDjZb x where x.ItemCode=d.ItemCode and"
     " @)"},
    {"RefusedItemsAreNotCompensated",
     "select * from #_CbZyBxDjZb d join #_CbZyBxTpb x on x.ItemCode=d.ItemCode and @ where"
     " (Status='3')<>(IfPass='1')"},

    // Settlements
    {"ExactlyDischargedStaysAreSettled",
     "select * from #_CbZyBxDj d where (OutDate is not null)<>exists (select * from #_CbZyJsb x where @) or"
     " (OutDate is null)<>(JsDate is null) or (OutDate is null)<>(DayCount is null)"},
    {"SettlementsRepeatTheirRecord",
     "select * from #_CbZyJsb d left join #_CbZyBxDj x on @ where (d.HospitalName,d.HouseHolder,d.PatientName,"
     "d.Sex,d.InDate,d.OutDate,d.DayCount,d.PatientNo,d.IllName,d.InHosCount,d.Fee,d.CanFreeFee,d.FreeFee) is not"
     " (x.HospitalName,x.HouseHolder,x.PatientName,x.Sex,x.InDate,x.OutDate,x.DayCount,x.PatientNo,x.IllName,"
     "x.InHosCount,x.TotalFee,x.CanFreeFee,x.FreeFee)"},
    {"SettlementsSplitIntoWardAndOutpatient",
     "select * from #_CbZyJsb where cents(MzFee)+cents(HosFee)<>cents(Fee) or MzFee<0 or HosFee<0"},
    {"SettledTypesAddUp",
     "select * from #_CbZyJsb d where (cents(Fee),cents(CanFreeFee),cents(FreeFee)) is not (select"
     " sum(cents(x.Fee)),sum(cents(x.CanFreeFee)),sum(cents(x.FreeFee)) from #_CbZyJsMxb x where @)"},
    {"SettledTypesAreTheTopLevelOfTheLines",
     "select * from #_CbZyJsMxb d where length(FeeTypeCode)<>2 or FeeTypeCode not in (select FeeTypeCode from"
     " p_fylb) or cents(Fee) is not (select sum(cents(x.Fee)) from #_CbZyBxDjZb x where substr(x.FeeTypeCode,1,"
     "2)=d.FeeTypeCode and @) or FreeFee<0 or FreeFee>CanFreeFee"},
    {"EverySettledTypeHasASettlement",
     "select * from #_CbZyJsMxb d where not exists (select * from #_CbZyJsb x where @)"},
    {"ReimbursementFollowsTheFormula",
     "select * from (select *,cents(CanFreeFee-Ke) base,case ExpressionsID when '01' then 80 when '02' then 65"
     " when '03' then 45 when '04' then 100 when '05' then 100 when '06' then 50 end rate,case substr(LimitDef,1,"
     "1) when '0' then 999999999 else substr(LimitDef,2)*100 end most from #_CbZyBxDj where OutDate is not null)"
     " where cents(FreeFee) is not min((base*rate+50)/100,most) or base<0 or Ke<0"},
    {"NothingIsReimbursedBeforeDischarge", "select * from #_CbZyBxDj where OutDate is null and (FreeFee<>0 or Ke<>0)"},

    // Bills and reviews
    {"BillsAddUp",
     "select * from #_CbZyZdb b where (cents(Fee),cents(CanFreeFee),cents(CheckFee1),cents(CheckFee)) is not"
     " (select sum(cents(x.TotalFee)),sum(cents(x.CanFreeFee)),sum(cents(x.CheckOneFee)),sum(cents(x.CheckFee))"
     " from #_CbZyBxDj x where x.BillCode=b.BillCode and x.BillNo=b.BillNo)"},
    {"RecordsBelongToABillOfTheirInstitution",
     "select * from #_CbZyBxDj d where (BillCode is null)<>(BillNo is null) or (BillNo is not null and"
     " (BillCode<>OrgCode or not exists (select * from #_CbZyZdb b where b.BillCode=d.BillCode and"
     " b.BillNo=d.BillNo)))"},
    {"BillsBearTheNameOfTheirInstitution",
     "select * from #_CbZyZdb where (BillCode,BillName) not in (select OrgCode,OrgName from p_Ylfwdw)"},
    {"BillsAreWrittenAfterTheirStaysAreSettled",
     "select * from #_CbZyZdb b join #_CbZyBxDj d on b.BillCode=d.BillCode and b.BillNo=d.BillNo where"
     " WriteDate<JsDate or WriteDate<OutDate or OutDate is null or WriteDate>'2024-03-01'"},
    {"ReviewersFollowTheStatus",
     "select * from #_CbZyBxDj d left join #_CbZyZdb b on b.BillCode=d.BillCode and b.BillNo=d.BillNo where"
     " (CheckerCode1 is not null)<>(coalesce(CheckStatus,'1') in ('3','4','9')) or (CheckStatus='4' and"
     " CheckerCode is null) or (coalesce(CheckStatus,'1') in ('1','2','3') and CheckerCode is not null)"},
    {"ReviewsAreCompleteOrBlank",
     "select * from #_CbZyBxDj where (CheckerCode1 is null and (CheckerName1 is not null or CheckDate1 is not"
     " null or Checkone is not null or CheckOneFee<>0)) or (CheckerCode1 is not null and (CheckerName1 is null or"
     " CheckDate1 is null or Checkone is null or CheckOneFee is null)) or (CheckerCode is null and (CheckerName"
     " is not null or CheckDate is not null or CheckRemark is not null or CheckFee<>0)) or (CheckerCode is not"
     " null and (CheckerName is null or CheckDate is null or CheckRemark is null or CheckFee is null))"},
    {"ApprovedAmountsAreWhatWasNotStruckOut",
     "select * from #_CbZyBxDj d join (select OrgCode o,CoopMedCode c,IDNo i,DiagNo n,sum(cents(KnockOffFee1))"
     " one,sum(cents(KnockOffFee)) two from #_CbZyBxDjZb group by 1,2,3,4) on o=OrgCode and c=CoopMedCode and"
     " i=IDNo and n=DiagNo where (CheckerCode1 is null and one<>0) or (CheckerCode is null and two<>0) or"
     " (CheckerCode1 is not null and cents(CheckOneFee)<>cents(CanFreeFee)-one) or (CheckerCode is not null and"
     " cents(CheckFee)<>cents(CheckOneFee)-two)"},
    {"ReviewsComeAfterTheBill",
     "select * from #_CbZyBxDj d join #_CbZyZdb b on b.BillCode=d.BillCode and b.BillNo=d.BillNo where"
     " CheckDate1<WriteDate or CheckDate<CheckDate1 or CheckDate1>'2024-03-01' or CheckDate>'2024-03-01'"},

    // People and codes
    {"PatientsAreMembers",
     "select * from #_CbZyBxDj d where not exists (select * from p_CbNhGrXx m where m.CoopMedCode=d.CoopMedCode"
     " and m.IDNo=d.IDNo)"},
    {"HouseholdsHaveOneHouseholder",
     "select CoopMedCode from p_CbNhGrXx group by CoopMedCode having sum(isHouseHolder='1')<>1 or min(IDNo)<>1 or"
     " max(IDNo)<>count(*)"},
    {"StaysHappenInOrder",
     "select * from #_CbZyBxDj where InDate>coalesce(OutDate,'2024-03-01') or OutDate>JsDate or"
     " JsDate>'2024-03-01' or DayCount<>max(1,julianday(OutDate)-julianday(InDate))"},
    {"InstitutionsAndFormulasExist",
     "select * from #_CbZyBxDj d where (HospitalCode,HospitalName) not in (select OrgCode,OrgName from p_Ylfwdw)"
     " or OrgCode not in (select OrgCode from p_Ylfwdw) or ExpressionsID not in (select ExpressionsId from"
     " p_ZyBxGs) or ExpenseKind not in ('21','22','23','29','90') or InterfaceIn not in ('1','2')"},
    {"DeliveriesAreOfGrownWomen",
     "select * from #_CbZyBxDj where ExpenseKind='23' and (Sex<>'女' or AgeUnit<>'岁' or Age not between 20 and 41)"},
    {"AgesHaveAUnit",
     "select * from #_CbZyBxDj where not (AgeUnit='岁' and Age between 1 and 110 or AgeUnit='月' and Age between 1"
     " and 11 or AgeUnit='天' and Age between 0 and 30)"},
    {"AgesFollowTheBirthday",
     "select * from #_CbZyBxDj d join #_CbZyJsb x on @ where (strftime('%Y%m%d',d.InDate)-strftime('%Y%m%d',"
     "BirthDay))/10000<>iif(AgeUnit='岁',Age,0) or BirthDay>d.InDate"},

    // Over both sets of tables
    {"MembersCountTheirStays",
     "select CoopMedCode from (select CoopMedCode,IDNo,DiagNo,InDate from o_CbZyBxDj union all select"
     " CoopMedCode,IDNo,DiagNo,InDate from s_CbZyBxDj) group by CoopMedCode,IDNo having count(*)<>max(DiagNo) or"
     " count(distinct DiagNo)<>count(*)"},
    {"NobodyLiesInTwoBeds",
     "with stay as (select CoopMedCode,IDNo,DiagNo,InDate,OutDate from o_CbZyBxDj union all select CoopMedCode,"
     "IDNo,DiagNo,InDate,OutDate from s_CbZyBxDj) select * from stay a join stay b on a.CoopMedCode=b.CoopMedCode"
     " and a.IDNo=b.IDNo and a.DiagNo<b.DiagNo where a.OutDate is null or a.OutDate>=b.InDate"},
}};

std::string forTables(std::string sql, char prefix)
{
    constexpr std::string_view sameRecord =
        "x.OrgCode=d.OrgCode and x.CoopMedCode=d.CoopMedCode and x.IDNo=d.IDNo and x.DiagNo=d.DiagNo";
    for (std::size_t at = sql.find('@'); at != std::string::npos; at = sql.find('@', at))
        sql.replace(at, 1, sameRecord);
    for (std::size_t at = sql.find('#'); at != std::string::npos; at = sql.find('#', at))
        sql[at] = prefix;
    return sql;
}

struct Size {
    const char *name;
    DemoOptions options;
};

class Consistency : public testing::TestWithParam<Size> { };

TEST_P(Consistency, HoldsEverywhere)
{
    const Demo demo(GetParam().options);
    for (const Rule &rule : rules) {
        for (const char prefix : {'o', 's'}) {
            const Rows broken = demo->rows(forTables(rule.violations, prefix));
            EXPECT_TRUE(broken.empty()) << rule.name << " in " << prefix << "_ tables: " << broken.size()
                                        << " rows, first "
                                        << testing::PrintToString(broken.empty() ? Row{} : broken.front());
        }
    }
}

TEST_P(Consistency, FillsEveryTable)
{
    const Demo demo(GetParam().options);
    for (const std::string &table : demo->tables())
        EXPECT_NE(demo->value("select count(*) from " + table), "0") << table;
}

TEST_P(Consistency, StoresWhatTheColumnsDeclare)
{
    const Demo demo(GetParam().options);
    for (const std::string &table : demo->tables()) {
        for (const Row &column : demo->rows("pragma table_info(" + table + ")")) {
            const std::string &name = column.at(1);
            const std::string &type = column.at(2);
            std::string fits;
            if (type.starts_with("varchar("))
                fits = "typeof(%)='text' and length(%)<=" + type.substr(8, type.size() - 9)
                    + " and trim(%)=% and (%<>'' or '" + name + "'='UserCode')";
            else if (type.starts_with("decimal(15,"))
                fits = "typeof(%) in ('integer','real') and round(%," + type.substr(11, 1) + ")=%";
            else if (type == "INT")
                fits = "typeof(%)='integer'";
            else if (type == "date")
                fits = "typeof(%)='text' and date(%)=%";
            ASSERT_FALSE(fits.empty()) << table << '.' << name << ' ' << type;
            for (std::size_t at = fits.find('%'); at != std::string::npos; at = fits.find('%', at))
                fits.replace(at, 1, name);
            EXPECT_EQ(
                demo->value("select count(*) from " + table + " where " + name + " is not null and not (" + fits + ")"),
                "0")
                << table << '.' << name;
        }
    }
}

TEST_P(Consistency, LeavesOnlyTheseColumnsEmpty)
{
    const Demo demo(GetParam().options);
    std::vector<std::string> found;
    for (const std::string &table : demo->tables())
        for (const Row &column : demo->rows("pragma table_info(" + table + ")"))
            if (demo->value("select exists (select * from " + table + " where " + column.at(1) + " is null)") == "1")
                found.push_back(table + '.' + column.at(1));
    EXPECT_EQ(found,
              (std::vector<std::string>{"o_CbZyBxDj.OutDate", "o_CbZyBxDj.DayCount", "o_CbZyBxDj.JsDate",
                                        "o_CbZyBxDj.BillCode", "o_CbZyBxDj.BillNo", "o_CbZyBxDj.CheckerCode1",
                                        "o_CbZyBxDj.CheckerName1", "o_CbZyBxDj.CheckDate1", "o_CbZyBxDj.Checkone",
                                        "o_CbZyBxDj.CheckerCode", "o_CbZyBxDj.CheckerName", "o_CbZyBxDj.CheckDate",
                                        "o_CbZyBxDj.CheckRemark", "p_CbNhGrXx.HomeProperty"}));
}

TEST_P(Consistency, RepeatsOneBillNumberAndNoOther)
{
    const Demo demo(GetParam().options);
    const Rows twice = demo->rows("select o.BillCode,o.BillNo,(select max(BillNo) from s_CbZyZdb where"
                                  " BillCode=o.BillCode) from o_CbZyZdb o join s_CbZyZdb s"
                                  " on o.BillCode=s.BillCode and o.BillNo=s.BillNo");
    ASSERT_EQ(twice.size(), 1U);
    EXPECT_EQ(twice.front().at(0), "42990101");
    EXPECT_EQ(twice.front().at(1), twice.front().at(2));
    EXPECT_EQ(demo->value("select count(*) from o_CbZyBxDj join s_CbZyBxDj"
                          " using (OrgCode,CoopMedCode,IDNo,DiagNo)"),
              "0");
}

INSTANTIATE_TEST_SUITE_P(Demo, Consistency,
                         testing::Values(Size{"Usual", optionsOf(600, 400)}, Size{"Small", optionsOf(300, 100, 7)},
                                         Size{"OtherSeed", optionsOf(900, 100, 123'456'789)},
                                         Size{"FewLines", optionsOf(3'000, 2'000, 2, 1)},
                                         Size{"ManyLines", optionsOf(400, 300, 3, 40)}),
                         [](const auto &test) { return test.param.name; });

} // namespace
} // namespace vortaq::demo
