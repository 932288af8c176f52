// SPDX-License-Identifier: MIT
// The texts of data/statements/billpage.h, byte for byte.
#include "data/statements/billpage.h"

#include <gtest/gtest.h>

#include <ostream>

using namespace Qt::Literals::StringLiterals;
using namespace data;

namespace {

struct Row {
    const char *name;
    QString built;
    const char *expected; ///< UTF-8
};

void PrintTo(const Row &row, std::ostream *out)
{
    *out << row.name;
}

class BillPageStatement : public testing::TestWithParam<Row> { };

TEST_P(BillPageStatement, isByteForByte)
{
    EXPECT_EQ(GetParam().built.toStdString(), GetParam().expected);
}

const Row Rows[] = {
    {"ReportedPageBillsOfPagePlain", billsOfPage(ReportedPage, u"4201"_s),
     " select BillCode,BillName,BillNo, convert(varchar(10),WriteDate,126) as WriteDate, Fee,CanFreeFee"
     "  from o_CbZyZdb  where CheckStatus='1'    and BillCode='4201' order by BillCode,BillNo desc "},
    {"ReportedPageBillsOfPageQuotesAndChinese", billsOfPage(ReportedPage, u"42'01"_s),
     " select BillCode,BillName,BillNo, convert(varchar(10),WriteDate,126) as WriteDate, Fee,CanFreeFee"
     "  from o_CbZyZdb  where CheckStatus='1'    and BillCode='42''01' order by BillCode,BillNo desc "},
    {"ReportedPageBillsOfPageEmpty", billsOfPage(ReportedPage, u""_s),
     " select BillCode,BillName,BillNo, convert(varchar(10),WriteDate,126) as WriteDate, Fee,CanFreeFee"
     "  from o_CbZyZdb  where CheckStatus='1'    and BillCode='' order by BillCode,BillNo desc "},
    {"ReportedPageRecordsOfBillPlain", recordsOfBill(ReportedPage, BillKey{u"4201"_s, u"17"_s}),
     " select OrgCode,CoopMedCode,IDNo,DiagNo,HospitalCode,HospitalName,PatientName,HouseHolder,Sex,"
     " cast(Age as varchar(100))+AgeUnit as Age,InDate,DayCount,OutDate,PatientNo,IllCode,IllName,"
     " Str(TotalFee,15,2) as TotalFee,Str(CanFreeFee,15,2) as CanFreeFee, Str(FreeFee,15,2) as FreeFee,"
     "DoctorName,CheckOneFee,Checkone,InterfaceIn,AreaCode, (case when CheckerCode1 is null then '2' else"
     " '1' end) as isCheck,InputerCode,InputerName, (case ExpenseKind when '21' then '普通住院' when '22'"
     " then '单病种住院'     when '23' then '正常分娩住院' when '29' then '其他住院' when '90' then '其他'"
     " end) as ExpenseName from o_CbZyBxDj  where BillCode='4201' and BillNo=17 order by OutDate "},
    {"ReportedPageRecordsOfBillQuotesAndChinese", recordsOfBill(ReportedPage, BillKey{u"院'"_s, u"5 "_s}),
     " select OrgCode,CoopMedCode,IDNo,DiagNo,HospitalCode,HospitalName,PatientName,HouseHolder,Sex,"
     " cast(Age as varchar(100))+AgeUnit as Age,InDate,DayCount,OutDate,PatientNo,IllCode,IllName,"
     " Str(TotalFee,15,2) as TotalFee,Str(CanFreeFee,15,2) as CanFreeFee, Str(FreeFee,15,2) as FreeFee,"
     "DoctorName,CheckOneFee,Checkone,InterfaceIn,AreaCode, (case when CheckerCode1 is null then '2' else"
     " '1' end) as isCheck,InputerCode,InputerName, (case ExpenseKind when '21' then '普通住院' when '22'"
     " then '单病种住院'     when '23' then '正常分娩住院' when '29' then '其他住院' when '90' then '其他'"
     " end) as ExpenseName from o_CbZyBxDj  where BillCode='院''' and BillNo=5  order by OutDate "},
    {"ReportedPageRecordsOfBillEmpty", recordsOfBill(ReportedPage, BillKey{u""_s, u""_s}),
     " select OrgCode,CoopMedCode,IDNo,DiagNo,HospitalCode,HospitalName,PatientName,HouseHolder,Sex,"
     " cast(Age as varchar(100))+AgeUnit as Age,InDate,DayCount,OutDate,PatientNo,IllCode,IllName,"
     " Str(TotalFee,15,2) as TotalFee,Str(CanFreeFee,15,2) as CanFreeFee, Str(FreeFee,15,2) as FreeFee,"
     "DoctorName,CheckOneFee,Checkone,InterfaceIn,AreaCode, (case when CheckerCode1 is null then '2' else"
     " '1' end) as isCheck,InputerCode,InputerName, (case ExpenseKind when '21' then '普通住院' when '22'"
     " then '单病种住院'     when '23' then '正常分娩住院' when '29' then '其他住院' when '90' then '其他'"
     " end) as ExpenseName from o_CbZyBxDj  where BillCode='' and BillNo= order by OutDate "},
    {"StatusOutsidePlain", statusOutside(BillKey{u"4201"_s, u"17"_s}, reportableStatuses()),
     " select CheckStatus from o_CbZyZdb  where BillCode='4201'   and BillNo=17   and CheckStatus not in ("
     " '1','9' ) "},
    {"StatusOutsideQuotesAndChinese", statusOutside(BillKey{u"院'"_s, u"5 "_s}, reportableStatuses()),
     " select CheckStatus from o_CbZyZdb  where BillCode='院'''   and BillNo=5    and CheckStatus not in ("
     " '1','9' ) "},
    {"StatusOutsideEmpty", statusOutside(BillKey{u""_s, u""_s}, reportableStatuses()),
     " select CheckStatus from o_CbZyZdb  where BillCode=''   and BillNo=   and CheckStatus not in ( '1',"
     "'9' ) "},
    {"ReportBillPlain", reportBill(BillKey{u"4201"_s, u"17"_s}),
     " update o_cbzyzdb    set CheckStatus='2'  where BillCode='4201'   and BillNo=17"},
    {"ReportBillQuotesAndChinese", reportBill(BillKey{u"院'"_s, u"5 "_s}),
     " update o_cbzyzdb    set CheckStatus='2'  where BillCode='院'''   and BillNo=5 "},
    {"ReportBillEmpty", reportBill(BillKey{u""_s, u""_s}),
     " update o_cbzyzdb    set CheckStatus='2'  where BillCode=''   and BillNo="},
    {"ReportedPageReleaseAllRecordsPlain", releaseAllRecords(ReportedPage, BillKey{u"4201"_s, u"17"_s}),
     " update o_cbzybxdj set BillCode = null,BillNo = null  where BillCode='4201' and BillNo=17"},
    {"ReportedPageReleaseAllRecordsQuotesAndChinese", releaseAllRecords(ReportedPage, BillKey{u"院'"_s, u"5 "_s}),
     " update o_cbzybxdj set BillCode = null,BillNo = null  where BillCode='院''' and BillNo=5 "},
    {"ReportedPageReleaseAllRecordsEmpty", releaseAllRecords(ReportedPage, BillKey{u""_s, u""_s}),
     " update o_cbzybxdj set BillCode = null,BillNo = null  where BillCode='' and BillNo="},
    {"ReportedPageDeleteBillPlain", deleteBill(ReportedPage, BillKey{u"4201"_s, u"17"_s}),
     " delete from o_cbzyzdb  where BillCode='4201'   and BillNo=17"},
    {"ReportedPageDeleteBillQuotesAndChinese", deleteBill(ReportedPage, BillKey{u"院'"_s, u"5 "_s}),
     " delete from o_cbzyzdb  where BillCode='院'''   and BillNo=5 "},
    {"ReportedPageDeleteBillEmpty", deleteBill(ReportedPage, BillKey{u""_s, u""_s}),
     " delete from o_cbzyzdb  where BillCode=''   and BillNo="},
    {"ReportedPageReleaseRecordPlain",
     releaseRecord(ReportedPage, RecordKey{u"4201"_s, u"420106001200"_s, u"1"_s, u"3"_s}),
     " update o_CbZyBxDj  set BillCode = null,BillNo = null,     CheckerCode1=null,CheckerName1=null,"
     "CheckOneFee=0,CheckDate1=null,Checkone=null,     CheckerCode=null,CheckerName=null,CheckFee=0,"
     "CheckDate=null,CheckRemark=null  where OrgCode='4201'   and CoopMedCode='420106001200'   and IDNO=1"
     " and DiagNo =3"},
    {"ReportedPageReleaseRecordQuotesAndChinese",
     releaseRecord(ReportedPage, RecordKey{u"42'01"_s, u"合作'证''7"_s, u"002"_s, u"-1"_s}),
     " update o_CbZyBxDj  set BillCode = null,BillNo = null,     CheckerCode1=null,CheckerName1=null,"
     "CheckOneFee=0,CheckDate1=null,Checkone=null,     CheckerCode=null,CheckerName=null,CheckFee=0,"
     "CheckDate=null,CheckRemark=null  where OrgCode='42''01'   and CoopMedCode='合作''证''''7'   and"
     " IDNO=002 and DiagNo =-1"},
    {"ReportedPageReleaseRecordEmpty", releaseRecord(ReportedPage, RecordKey{u""_s, u""_s, u""_s, u""_s}),
     " update o_CbZyBxDj  set BillCode = null,BillNo = null,     CheckerCode1=null,CheckerName1=null,"
     "CheckOneFee=0,CheckDate1=null,Checkone=null,     CheckerCode=null,CheckerName=null,CheckFee=0,"
     "CheckDate=null,CheckRemark=null  where OrgCode=''   and CoopMedCode=''   and IDNO= and DiagNo ="},
    {"ReportedPageClearDeductionsPlain",
     clearDeductions(ReportedPage, RecordKey{u"4201"_s, u"420106001200"_s, u"1"_s, u"3"_s}),
     " update o_CbZyBxDjZb  set KnockOffFee1=0,KnockOffFee=0  where OrgCode='4201'   and"
     " CoopMedCode='420106001200'   and IDNO=1 and DiagNo =3   and (isnull(KnockOffFee1,0) <> 0 or"
     " isnull(KnockOffFee,0) <> 0) "},
    {"ReportedPageClearDeductionsQuotesAndChinese",
     clearDeductions(ReportedPage, RecordKey{u"42'01"_s, u"合作'证''7"_s, u"002"_s, u"-1"_s}),
     " update o_CbZyBxDjZb  set KnockOffFee1=0,KnockOffFee=0  where OrgCode='42''01'   and"
     " CoopMedCode='合作''证''''7'   and IDNO=002 and DiagNo =-1   and (isnull(KnockOffFee1,0) <> 0 or"
     " isnull(KnockOffFee,0) <> 0) "},
    {"ReportedPageClearDeductionsEmpty", clearDeductions(ReportedPage, RecordKey{u""_s, u""_s, u""_s, u""_s}),
     " update o_CbZyBxDjZb  set KnockOffFee1=0,KnockOffFee=0  where OrgCode=''   and CoopMedCode=''   and"
     " IDNO= and DiagNo =   and (isnull(KnockOffFee1,0) <> 0 or isnull(KnockOffFee,0) <> 0) "},
    {"RecomputeAfterReleasePlain", recomputeAfterRelease(BillKey{u"4201"_s, u"17"_s}),
     " update o_CbZyZdb set Fee=a.TotalFee,CanFreeFee=a.CanFreeFee  from (select isnull(sum(TotalFee),0)"
     " as TotalFee,isnull(sum(CanFreeFee),0) as CanFreeFee        from o_CbZyBxDj        where"
     " BillCode='4201' and BillNo=17) a  where BillCode='4201' and BillNo=17"},
    {"RecomputeAfterReleaseQuotesAndChinese", recomputeAfterRelease(BillKey{u"院'"_s, u"5 "_s}),
     " update o_CbZyZdb set Fee=a.TotalFee,CanFreeFee=a.CanFreeFee  from (select isnull(sum(TotalFee),0)"
     " as TotalFee,isnull(sum(CanFreeFee),0) as CanFreeFee        from o_CbZyBxDj        where"
     " BillCode='院''' and BillNo=5 ) a  where BillCode='院''' and BillNo=5 "},
    {"RecomputeAfterReleaseEmpty", recomputeAfterRelease(BillKey{u""_s, u""_s}),
     " update o_CbZyZdb set Fee=a.TotalFee,CanFreeFee=a.CanFreeFee  from (select isnull(sum(TotalFee),0)"
     " as TotalFee,isnull(sum(CanFreeFee),0) as CanFreeFee        from o_CbZyBxDj        where BillCode=''"
     " and BillNo=) a  where BillCode='' and BillNo="},
    {"ReportedPageDeleteEmptiedBillPlain", deleteEmptiedBill(ReportedPage, BillKey{u"4201"_s, u"17"_s}),
     " delete from o_CbZyZdb  where BillCode='4201'   and BillNo='17'"},
    {"ReportedPageDeleteEmptiedBillQuotesAndChinese", deleteEmptiedBill(ReportedPage, BillKey{u"院'"_s, u"5 "_s}),
     " delete from o_CbZyZdb  where BillCode='院'''   and BillNo='5 '"},
    {"ReportedPageDeleteEmptiedBillEmpty", deleteEmptiedBill(ReportedPage, BillKey{u""_s, u""_s}),
     " delete from o_CbZyZdb  where BillCode=''   and BillNo=''"},
    {"ReturnedPageBillsOfPagePlain", billsOfPage(ReturnedPage, u"4201"_s),
     " select BillCode,BillName,BillNo, convert(varchar(10),WriteDate,126) as WriteDate, Fee,CanFreeFee"
     "  from o_cbzyzdb  where CheckStatus='9'    and BillCode='4201' order by BillCode,BillNo desc "},
    {"ReturnedPageBillsOfPageQuotesAndChinese", billsOfPage(ReturnedPage, u"42'01"_s),
     " select BillCode,BillName,BillNo, convert(varchar(10),WriteDate,126) as WriteDate, Fee,CanFreeFee"
     "  from o_cbzyzdb  where CheckStatus='9'    and BillCode='42''01' order by BillCode,BillNo desc "},
    {"ReturnedPageBillsOfPageEmpty", billsOfPage(ReturnedPage, u""_s),
     " select BillCode,BillName,BillNo, convert(varchar(10),WriteDate,126) as WriteDate, Fee,CanFreeFee"
     "  from o_cbzyzdb  where CheckStatus='9'    and BillCode='' order by BillCode,BillNo desc "},
    {"ReturnedPageRecordsOfBillPlain", recordsOfBill(ReturnedPage, BillKey{u"4201"_s, u"17"_s}),
     " select OrgCode,CoopMedCode,IDNo,DiagNo,HospitalCode,HospitalName,PatientName,HouseHolder,Sex,"
     " cast(Age as varchar(100))+AgeUnit as Age,InDate,DayCount,OutDate,PatientNo,IllCode,IllName,"
     " Str(TotalFee,15,2) as TotalFee,Str(CanFreeFee,15,2) as CanFreeFee, Str(FreeFee,15,2) as FreeFee,"
     "DoctorName,CheckOneFee,Checkone,InterfaceIn,AreaCode, (case when CheckerCode1 is null then '2' else"
     " '1' end) as isCheck,InputerCode,InputerName,  (case ExpenseKind when '21' then '普通住院' when '22'"
     " then '单病种住院'     when '23' then '正常分娩住院' when '29' then '其他住院' when '90' then '其他'"
     " end) as ExpenseName from o_cbzybxdj  where BillCode='4201' and BillNo=17 order by OutDate "},
    {"ReturnedPageRecordsOfBillQuotesAndChinese", recordsOfBill(ReturnedPage, BillKey{u"院'"_s, u"5 "_s}),
     " select OrgCode,CoopMedCode,IDNo,DiagNo,HospitalCode,HospitalName,PatientName,HouseHolder,Sex,"
     " cast(Age as varchar(100))+AgeUnit as Age,InDate,DayCount,OutDate,PatientNo,IllCode,IllName,"
     " Str(TotalFee,15,2) as TotalFee,Str(CanFreeFee,15,2) as CanFreeFee, Str(FreeFee,15,2) as FreeFee,"
     "DoctorName,CheckOneFee,Checkone,InterfaceIn,AreaCode, (case when CheckerCode1 is null then '2' else"
     " '1' end) as isCheck,InputerCode,InputerName,  (case ExpenseKind when '21' then '普通住院' when '22'"
     " then '单病种住院'     when '23' then '正常分娩住院' when '29' then '其他住院' when '90' then '其他'"
     " end) as ExpenseName from o_cbzybxdj  where BillCode='院''' and BillNo=5  order by OutDate "},
    {"ReturnedPageRecordsOfBillEmpty", recordsOfBill(ReturnedPage, BillKey{u""_s, u""_s}),
     " select OrgCode,CoopMedCode,IDNo,DiagNo,HospitalCode,HospitalName,PatientName,HouseHolder,Sex,"
     " cast(Age as varchar(100))+AgeUnit as Age,InDate,DayCount,OutDate,PatientNo,IllCode,IllName,"
     " Str(TotalFee,15,2) as TotalFee,Str(CanFreeFee,15,2) as CanFreeFee, Str(FreeFee,15,2) as FreeFee,"
     "DoctorName,CheckOneFee,Checkone,InterfaceIn,AreaCode, (case when CheckerCode1 is null then '2' else"
     " '1' end) as isCheck,InputerCode,InputerName,  (case ExpenseKind when '21' then '普通住院' when '22'"
     " then '单病种住院'     when '23' then '正常分娩住院' when '29' then '其他住院' when '90' then '其他'"
     " end) as ExpenseName from o_cbzybxdj  where BillCode='' and BillNo= order by OutDate "},
    {"ReturnedPageReleaseAllRecordsPlain", releaseAllRecords(ReturnedPage, BillKey{u"4201"_s, u"17"_s}),
     " update o_CbZyBxDj set BillCode = null,BillNo = null  where BillCode='4201' and BillNo=17"},
    {"ReturnedPageReleaseAllRecordsQuotesAndChinese", releaseAllRecords(ReturnedPage, BillKey{u"院'"_s, u"5 "_s}),
     " update o_CbZyBxDj set BillCode = null,BillNo = null  where BillCode='院''' and BillNo=5 "},
    {"ReturnedPageReleaseAllRecordsEmpty", releaseAllRecords(ReturnedPage, BillKey{u""_s, u""_s}),
     " update o_CbZyBxDj set BillCode = null,BillNo = null  where BillCode='' and BillNo="},
    {"ReturnedPageDeleteBillPlain", deleteBill(ReturnedPage, BillKey{u"4201"_s, u"17"_s}),
     " delete from o_CbZyZdb  where BillCode='4201'   and BillNo=17"},
    {"ReturnedPageDeleteBillQuotesAndChinese", deleteBill(ReturnedPage, BillKey{u"院'"_s, u"5 "_s}),
     " delete from o_CbZyZdb  where BillCode='院'''   and BillNo=5 "},
    {"ReturnedPageDeleteBillEmpty", deleteBill(ReturnedPage, BillKey{u""_s, u""_s}),
     " delete from o_CbZyZdb  where BillCode=''   and BillNo="},
    {"ReturnedPageReleaseRecordPlain",
     releaseRecord(ReturnedPage, RecordKey{u"4201"_s, u"420106001200"_s, u"1"_s, u"3"_s}),
     " update o_CbZyBxDj set BillCode=null,BillNo=null,     CheckerCode1=null,CheckerName1=null,"
     "CheckOneFee=0,CheckDate1=null,Checkone=null,     CheckerCode=null,CheckerName=null,CheckFee=0,"
     "CheckDate=null,CheckRemark=null  where OrgCode='4201'   and CoopMedCode='420106001200'   and IDNo=1"
     " and DiagNo=3"},
    {"ReturnedPageReleaseRecordQuotesAndChinese",
     releaseRecord(ReturnedPage, RecordKey{u"42'01"_s, u"合作'证''7"_s, u"002"_s, u"-1"_s}),
     " update o_CbZyBxDj set BillCode=null,BillNo=null,     CheckerCode1=null,CheckerName1=null,"
     "CheckOneFee=0,CheckDate1=null,Checkone=null,     CheckerCode=null,CheckerName=null,CheckFee=0,"
     "CheckDate=null,CheckRemark=null  where OrgCode='42''01'   and CoopMedCode='合作''证''''7'   and"
     " IDNo=002 and DiagNo=-1"},
    {"ReturnedPageReleaseRecordEmpty", releaseRecord(ReturnedPage, RecordKey{u""_s, u""_s, u""_s, u""_s}),
     " update o_CbZyBxDj set BillCode=null,BillNo=null,     CheckerCode1=null,CheckerName1=null,"
     "CheckOneFee=0,CheckDate1=null,Checkone=null,     CheckerCode=null,CheckerName=null,CheckFee=0,"
     "CheckDate=null,CheckRemark=null  where OrgCode=''   and CoopMedCode=''   and IDNo= and DiagNo="},
    {"ReturnedPageClearDeductionsPlain",
     clearDeductions(ReturnedPage, RecordKey{u"4201"_s, u"420106001200"_s, u"1"_s, u"3"_s}),
     " update o_CbZyBxDjZb  set KnockOffFee1=0,KnockOffFee=0  where OrgCode='4201'   and"
     " CoopMedCode='420106001200'   and IDNo=1 and DiagNo=3   and (isnull(KnockOffFee1,0) <> 0 or"
     " isnull(KnockOffFee,0) <> 0) "},
    {"ReturnedPageClearDeductionsQuotesAndChinese",
     clearDeductions(ReturnedPage, RecordKey{u"42'01"_s, u"合作'证''7"_s, u"002"_s, u"-1"_s}),
     " update o_CbZyBxDjZb  set KnockOffFee1=0,KnockOffFee=0  where OrgCode='42''01'   and"
     " CoopMedCode='合作''证''''7'   and IDNo=002 and DiagNo=-1   and (isnull(KnockOffFee1,0) <> 0 or"
     " isnull(KnockOffFee,0) <> 0) "},
    {"ReturnedPageClearDeductionsEmpty", clearDeductions(ReturnedPage, RecordKey{u""_s, u""_s, u""_s, u""_s}),
     " update o_CbZyBxDjZb  set KnockOffFee1=0,KnockOffFee=0  where OrgCode=''   and CoopMedCode=''   and"
     " IDNo= and DiagNo=   and (isnull(KnockOffFee1,0) <> 0 or isnull(KnockOffFee,0) <> 0) "},
    {"ReturnedPageDeleteEmptiedBillPlain", deleteEmptiedBill(ReturnedPage, BillKey{u"4201"_s, u"17"_s}),
     " delete from o_CbZyZdb  where BillCode='4201' and BillNo=17"},
    {"ReturnedPageDeleteEmptiedBillQuotesAndChinese", deleteEmptiedBill(ReturnedPage, BillKey{u"院'"_s, u"5 "_s}),
     " delete from o_CbZyZdb  where BillCode='院''' and BillNo=5 "},
    {"ReturnedPageDeleteEmptiedBillEmpty", deleteEmptiedBill(ReturnedPage, BillKey{u""_s, u""_s}),
     " delete from o_CbZyZdb  where BillCode='' and BillNo="},
};

INSTANTIATE_TEST_SUITE_P(Texts, BillPageStatement, testing::ValuesIn(Rows),
                         [](const testing::TestParamInfo<Row> &row) { return row.param.name; });

} // namespace
