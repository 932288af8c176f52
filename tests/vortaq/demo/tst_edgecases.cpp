// SPDX-License-Identifier: MIT
// What a trainer or a test wants to find in the demo hospitals is there.
#include "tests/vortaq/demo/demodatabase.h"

#include <array>
#include <cmath>

namespace vortaq::demo {
namespace {

struct Find {
    const char *name;
    const char *where; ///< what follows "select count(*) from"
};

constexpr std::array<Find, 40> finds = {{
    {"BillMadeAtTheCountyHospital", "o_CbZyZdb where BillCode='42990101' and CheckStatus='1'"},
    {"BillReported", "o_CbZyZdb where BillCode='42990101' and CheckStatus='2'"},
    {"BillFirstReviewed", "o_CbZyZdb where BillCode='42990101' and CheckStatus='3' and CheckFee1>0 and CheckFee=0"},
    {"BillSecondReviewed", "o_CbZyZdb where BillCode='42990101' and CheckStatus='4' and CheckFee>0"},
    {"BillReturned", "o_CbZyZdb where BillCode='42990101' and CheckStatus='9'"},
    {"ArchivedBill", "s_CbZyZdb where BillCode='42990101' and CheckStatus='4'"},
    {"BillOfTheClerksHospital", "o_CbZyZdb where BillCode='42990111' and CheckStatus='1'"},
    {"StruckOutAtTheFirstReview", "o_CbZyBxDjZb where KnockOffFee1>0 and KnockOffFee=0"},
    {"StruckOutAtTheSecondReview", "o_CbZyBxDjZb where KnockOffFee>0"},
    {"ArchivedStrikeOut", "s_CbZyBxDjZb where KnockOffFee>0"},
    {"ApprovalGranted", "o_CbZyBxTpb where Status='3'"},
    {"ApprovalPending", "o_CbZyBxTpb where Status='1'"},
    {"ApprovalRefused", "o_CbZyBxTpb where Status='2'"},
    {"ArchivedApproval", "s_CbZyBxTpb where Status='3'"},
    {"StruckOutAlthoughApproved",
     "o_CbZyBxDjZb join o_CbZyBxTpb using (OrgCode,CoopMedCode,IDNo,DiagNo,ItemCode) where Status='3'"
     " and KnockOffFee1+KnockOffFee>0"},
    {"InHospital", "o_CbZyBxDj where OutDate is null and InDate<'2024-03-01'"},
    {"AdmittedToday", "o_CbZyBxDj where OutDate is null and InDate='2024-03-01'"},
    {"DischargedToday", "o_CbZyBxDj where OutDate='2024-03-01' and InDate<'2024-03-01'"},
    {"BothToday", "o_CbZyBxDj where OutDate='2024-03-01' and InDate='2024-03-01'"},
    {"DischargedEarlier", "o_CbZyBxDj where BillNo is null and OutDate<'2024-03-01'"},
    {"SettledADayLater", "o_CbZyBxDj where JsDate>OutDate"},
    {"OrdinaryStay", "o_CbZyBxDj where ExpenseKind='21'"},
    {"SingleDisease", "o_CbZyBxDj where ExpenseKind='22' and LimitDef like '2%'"},
    {"NormalDelivery", "o_CbZyBxDj where ExpenseKind='23'"},
    {"OtherStay", "o_CbZyBxDj where ExpenseKind='29' and LimitDef='1500'"},
    {"Other", "o_CbZyBxDj where ExpenseKind='90'"},
    {"NoLimit", "o_CbZyBxDj where LimitDef='0'"},
    {"Baby", "o_CbZyBxDj where AgeUnit='月'"},
    {"Newborn", "o_CbZyBxDj where AgeUnit='天'"},
    {"SecondStayOfAMember", "o_CbZyBxDj where DiagNo=2"},
    {"MemberInBothTables", "o_CbZyBxDj join s_CbZyBxDj using (CoopMedCode,IDNo)"},
    {"TreatedElsewhere", "o_CbZyBxDj where HospitalCode<>OrgCode"},
    {"ThroughTheInterface", "o_CbZyBxDj where InterfaceIn='1'"},
    {"DeductedAmount", "o_CbZyBxDj where Ke>0"},
    {"ApostropheInAnIllness", "o_CbZyBxDj where IllName like '%''%'"},
    {"ApostropheInABillName", "o_CbZyZdb where BillName like '%''%'"},
    {"DegreeSign", "o_CbZyBxDj where IllName like '%℃%'"},
    {"SeveralHomeProperties", "p_CbNhGrXx where HomeProperty='0103'"},
    {"UnknownHomeProperty", "p_CbNhGrXx where HomeProperty='99'"},
    {"OutpatientPart", "o_CbZyJsb where MzFee>0"},
}};

class EdgeCases : public testing::Test {
protected:
    static void SetUpTestSuite() { s_demo = std::make_unique<Demo>(optionsOf(600, 400)); }
    static void TearDownTestSuite() { s_demo.reset(); }

    static const Demo &demo() { return *s_demo; }

private:
    static inline std::unique_ptr<Demo> s_demo;
};

TEST_F(EdgeCases, AreAllThere)
{
    for (const Find &find : finds)
        EXPECT_NE(demo()->value(std::string("select count(*) from ") + find.where), "0") << find.name;
}

TEST_F(EdgeCases, CurrentStatusesAreThereInASmallDatabaseOfAnySeed)
{
    for (const std::uint64_t seed : {1, 2, 3, 4, 5}) {
        const Demo small(optionsOf(300, 100, seed));
        EXPECT_EQ(small->value("select group_concat(CheckStatus,'') from (select distinct CheckStatus from o_CbZyZdb"
                               " where BillCode='42990101' order by 1)"),
                  "12349");
    }
}

TEST_F(EdgeCases, InstitutionsAreWhatTheyAreMeantToBe)
{
    // Bills only in the archive, although there are unbilled patients.
    EXPECT_EQ(demo()->value("select count(*) from o_CbZyZdb where BillCode='42990115'"), "0");
    EXPECT_NE(demo()->value("select count(*) from s_CbZyZdb where BillCode='42990115'"), "0");
    EXPECT_NE(demo()->value("select count(*) from o_CbZyBxDj where OrgCode='42990115' and BillNo is null"), "0");
    // Nobody discharged yet.
    EXPECT_NE(demo()->value("select count(*) from o_CbZyBxDj where OrgCode='42990116'"), "0");
    EXPECT_EQ(demo()->value("select count(*) from o_CbZyBxDj where OrgCode='42990116' and OutDate is not null"), "0");
    // Just opened.
    EXPECT_EQ(demo()->value("select count(*) from o_CbZyBxDj where OrgCode='42990118'"), "0");
    // One lies outside the area and has unbilled patients all the same.
    EXPECT_EQ(demo()->rows("select OrgCode from p_Ylfwdw where OrgCode not like '429901%'"), (Rows{{"42990201"}}));
    EXPECT_NE(demo()->value("select count(*) from o_CbZyBxDj where OrgCode='42990201' and BillNo is null"), "0");
}

TEST_F(EdgeCases, SettlementSheetsHaveADozenTopLevelFeeTypes)
{
    EXPECT_EQ(demo()->value("select count(*) from p_fylb where length(FeeTypeCode)=2"), "12");
    EXPECT_NE(demo()->value("select count(*) from p_fylb where length(FeeTypeCode)=4"), "0");
    EXPECT_EQ(demo()->value("select count(distinct FeeTypeCode) from o_CbZyJsMxb"), "12");
    EXPECT_NE(demo()->value("select count(*) from o_CbZyBxDjZb where length(FeeTypeCode)=4"), "0");
}

TEST_F(EdgeCases, RightsGrantTheClerkTwoInstitutions)
{
    const std::string granted =
        "select d.OrgCode from r_UserRights a,r_RoleItem b,r_SubSysInfo c,r_BillCheckList d where"
        " a.RoleCode=b.RoleCode and b.SubSysCode=c.SubSysCode and b.RoleCode=d.RoleCode and b.RightCode=d.RightCode"
        " and b.SubSysCode=d.SubSysCode and b.IsBillAll='2' and c.SubSysCode='1' and d.BillCheck='1'"
        " and a.UserCode='%' and b.RightCode=(select Value from v_Parameter where Name='RightCode')"
        " order by d.OrgCode";
    const auto grantedTo = [&](const std::string &user) {
        std::string sql = granted;
        return demo()->rows(sql.replace(sql.find('%'), 1, user));
    };
    EXPECT_EQ(grantedTo("02"), (Rows{{"42990111"}, {"42990112"}}));
    EXPECT_EQ(grantedTo("01"), Rows{});
    for (const std::string org : {"42990111", "42990112"})
        EXPECT_NE(demo()->value("select count(*) from o_CbZyBxDj where BillNo is null and OrgCode='" + org + "'"), "0");
}

TEST_F(EdgeCases, UsersHaveEveryParameter)
{
    EXPECT_EQ(demo()->rows("select UserCode,UserName,RightParam from v_User order by UserCode"),
              (Rows{{"01", "管理员", "1,2,3,4,5,6,7,8"}, {"02", "李会计", "1,2,3,5"}}));
    for (const std::string user : {"01", "02"}) {
        for (const std::string name :
             {"AreaCode", "OrgCode", "OrgName", "OrgType", "OrgGrade", "isBillAll", "RightCode", "DigitalFormat",
              "Color-1", "Color-2", "Color-5", "Color-6", "Color-7"})
            EXPECT_EQ(demo()->value("select count(*) from v_Parameter where UserCode in ('','" + user + "') and Name='"
                                    + name + "'"),
                      "1")
                << user << ' ' << name;
        EXPECT_EQ(demo()->value("select count(*) from p_Ylfwdw where (OrgCode,OrgName)=(select max(Value) filter"
                                " (where Name='OrgCode'),max(Value) filter (where Name='OrgName') from v_Parameter"
                                " where UserCode='"
                                + user + "')"),
                  "1");
    }
    EXPECT_EQ(demo()->value("select Value from v_Parameter where Name='isBillAll' and UserCode='01'"), "1");
    EXPECT_EQ(demo()->value("select Value from v_Parameter where Name='isBillAll' and UserCode='02'"), "2");
    EXPECT_EQ(demo()->value("select Value from v_Parameter where Name='DigitalFormat'"), ",0.00;-,0.00");
}

double luminance(int windowsColour)
{
    const auto channel = [windowsColour](int shift) {
        const double part = ((windowsColour >> shift) & 0xFF) / 255.0;
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * channel(0) + 0.7152 * channel(8) + 0.0722 * channel(16);
}

TEST_F(EdgeCases, ColoursCanBeReadOn)
{
    const auto colour = [](const std::string &name) {
        return std::stoi(demo()->value("select Value from v_Parameter where Name='" + name + "'"));
    };
    EXPECT_GT(1.05 / (luminance(colour("Color-1")) + 0.05), 4.5); // white on the focused row
    for (const std::string name : {"Color-2", "Color-5", "Color-6", "Color-7"})
        EXPECT_GT((luminance(colour(name)) + 0.05) / 0.05, 12) << name; // black on the others
}

TEST_F(EdgeCases, FollowTheDay)
{
    for (const QDate today : {QDate(2024, 2, 29), QDate(1999, 12, 31), QDate(2031, 1, 1)}) {
        const Demo other(DemoOptions{300, 100, 1, today, 0});
        const std::string iso = today.toString(Qt::ISODate).toStdString();
        EXPECT_EQ(other->value("select max(InDate) from o_CbZyBxDj"), iso);
        EXPECT_EQ(other->value("select max(OutDate) from o_CbZyBxDj"), iso);
        EXPECT_LE(other->value("select max(WriteDate) from o_CbZyZdb"), iso);
        EXPECT_GE(other->value("select min(WriteDate) from o_CbZyZdb"),
                  today.addDays(-200).toString(Qt::ISODate).toStdString());
    }
}

} // namespace
} // namespace vortaq::demo
