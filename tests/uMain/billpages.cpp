// SPDX-License-Identifier: MIT
#include "tests/uMain/billpages.h"

const BillPageParts Reported = {
    .name = "Reported",
    .status = "1",
    .page = "tbUp",
    .tree = "dxTLUpOrgInfo",
    .treeColumn = "dxTLUpOrgInfoName",
    .grid = "dxTLUpBill",
    .interfaceColumn = "dxTLUpBillInterfaceIn",
    .count = "edtUpBillNum",
    .totalFee = "dxCEUpBillTotal",
    .canFreeFee = "dxCEUpBillFee",
    .menu = "pMUpBill",
    .report = "mUpSave",
    .cancel = "mUpCancel",
    .upload = "N1",
    .cancelOne = "btnUpCancel",
    .uploadOne = "Button1",
    .add = "btnUpAdd",
    .exit = "btnUpExit",
    .billsCarryFees = false,
    .cancelOneQuestion = "您确认对当前记录进行取消制单操作吗？",
    .bills = " select BillCode,BillName,BillNo, convert(varchar(10),WriteDate,126) as WriteDate, Fee,CanFreeFee"
             "  from o_CbZyZdb  where CheckStatus='1'    and BillCode='42990101' order by BillCode,BillNo desc ",
    .records = " select OrgCode,CoopMedCode,IDNo,DiagNo,HospitalCode,HospitalName,PatientName,HouseHolder,Sex,"
               " cast(Age as varchar(100))+AgeUnit as Age,InDate,DayCount,OutDate,PatientNo,IllCode,IllName,"
               " Str(TotalFee,15,2) as TotalFee,Str(CanFreeFee,15,2) as CanFreeFee, Str(FreeFee,15,2) as FreeFee,"
               "DoctorName,CheckOneFee,Checkone,InterfaceIn,AreaCode,"
               " (case when CheckerCode1 is null then '2' else '1' end) as isCheck,InputerCode,InputerName,"
               " (case ExpenseKind when '21' then '普通住院' when '22' then '单病种住院'     when '23' then"
               " '正常分娩住院' when '29' then '其他住院' when '90' then '其他' end) as ExpenseName"
               " from o_CbZyBxDj  where BillCode='42990101' and BillNo=%1 order by OutDate ",
    .releaseAll = " update o_cbzybxdj set BillCode = null,BillNo = null  where BillCode='42990101' and BillNo=%1",
    .deleteBill = " delete from o_cbzyzdb  where BillCode='42990101'   and BillNo=%1",
    .releaseRecord = " update o_CbZyBxDj  set BillCode = null,BillNo = null,"
                     "     CheckerCode1=null,CheckerName1=null,CheckOneFee=0,CheckDate1=null,Checkone=null,"
                     "     CheckerCode=null,CheckerName=null,CheckFee=0,CheckDate=null,CheckRemark=null"
                     "  where OrgCode='42990101'   and CoopMedCode='%1'   and IDNO=%2 and DiagNo =%3",
    .clearDeductions = " update o_CbZyBxDjZb  set KnockOffFee1=0,KnockOffFee=0  where OrgCode='42990101'"
                       "   and CoopMedCode='%1'   and IDNO=%2 and DiagNo =%3"
                       "   and (isnull(KnockOffFee1,0) <> 0 or isnull(KnockOffFee,0) <> 0) ",
    .deleteEmptied = " delete from o_CbZyZdb  where BillCode='42990101'   and BillNo='%1'",
};

const BillPageParts Returned = {
    .name = "Returned",
    .status = "9",
    .page = "tbBack",
    .tree = "dxTLBackOrg",
    .treeColumn = "dxTLBackOrgInfo",
    .grid = "dxTLBackBill",
    .interfaceColumn = "dxTLBackBillInterferIn",
    .count = "edtBackNum",
    .totalFee = "dxCEBackTotal",
    .canFreeFee = "dxCEBackFreeFee",
    .menu = "pMBackBill",
    .report = "mBackUp",
    .cancel = "mBackDelete",
    .upload = "N2",
    .cancelOne = "btnBackCancel",
    .uploadOne = "Button2",
    .add = "btnBackAdd",
    .exit = "btnBackExit",
    .billsCarryFees = true,
    .cancelOneQuestion = "确认对当前记录进行取消制单操作吗？",
    .bills = " select BillCode,BillName,BillNo, convert(varchar(10),WriteDate,126) as WriteDate, Fee,CanFreeFee"
             "  from o_cbzyzdb  where CheckStatus='9'    and BillCode='42990101' order by BillCode,BillNo desc ",
    .records = " select OrgCode,CoopMedCode,IDNo,DiagNo,HospitalCode,HospitalName,PatientName,HouseHolder,Sex,"
               " cast(Age as varchar(100))+AgeUnit as Age,InDate,DayCount,OutDate,PatientNo,IllCode,IllName,"
               " Str(TotalFee,15,2) as TotalFee,Str(CanFreeFee,15,2) as CanFreeFee, Str(FreeFee,15,2) as FreeFee,"
               "DoctorName,CheckOneFee,Checkone,InterfaceIn,AreaCode,"
               " (case when CheckerCode1 is null then '2' else '1' end) as isCheck,InputerCode,InputerName,"
               "  (case ExpenseKind when '21' then '普通住院' when '22' then '单病种住院'     when '23' then"
               " '正常分娩住院' when '29' then '其他住院' when '90' then '其他' end) as ExpenseName"
               " from o_cbzybxdj  where BillCode='42990101' and BillNo=%1 order by OutDate ",
    .releaseAll = " update o_CbZyBxDj set BillCode = null,BillNo = null  where BillCode='42990101' and BillNo=%1",
    .deleteBill = " delete from o_CbZyZdb  where BillCode='42990101'   and BillNo=%1",
    .releaseRecord = " update o_CbZyBxDj set BillCode=null,BillNo=null,"
                     "     CheckerCode1=null,CheckerName1=null,CheckOneFee=0,CheckDate1=null,Checkone=null,"
                     "     CheckerCode=null,CheckerName=null,CheckFee=0,CheckDate=null,CheckRemark=null"
                     "  where OrgCode='42990101'   and CoopMedCode='%1'   and IDNo=%2 and DiagNo=%3",
    .clearDeductions = " update o_CbZyBxDjZb  set KnockOffFee1=0,KnockOffFee=0  where OrgCode='42990101'"
                       "   and CoopMedCode='%1'   and IDNo=%2 and DiagNo=%3"
                       "   and (isnull(KnockOffFee1,0) <> 0 or isnull(KnockOffFee,0) <> 0) ",
    .deleteEmptied = " delete from o_CbZyZdb  where BillCode='42990101' and BillNo=%1",
};

const BillPageParts History = [] {
    BillPageParts parts = Reported;
    parts.name = "History";
    parts.page = "TabSheet2";
    parts.tree = "dxTLOldOrg";
    parts.treeColumn = "dxTLOldOrgInfo";
    parts.grid = "dxTLOldBill";
    parts.interfaceColumn = "dxTLOldBillInterferIn";
    parts.count = "edtOldNum";
    parts.totalFee = "dxCEOldTotal";
    parts.canFreeFee = "dxCEOldCan";
    return parts;
}();

namespace {

const char *const Bills = R"(
insert into o_CbZyZdb(BillCode,BillNo,BillName,WriteDate,Fee,CanFreeFee,CheckFee1,CheckFee,CheckStatus,PrincipalName)
 values ('42990101',19,'甲镇卫生院','2026-02-28',null,null,0,0,'%1','管理员'),
        ('42990101',20,'甲镇卫生院','2026-03-01',5.50,null,0,0,'%1','管理员'),
        ('42990101',21,'甲镇卫生院','2026-03-02',1200.30,950.15,0,0,'%1','管理员'))";

const char *const Records = R"(
insert into o_CbZyBxDj(OrgCode,CoopMedCode,IDNo,DiagNo,HospitalCode,HospitalName,PatientName,HouseHolder,Sex,Age,AgeUnit,
  InDate,OutDate,DayCount,PatientNo,IllCode,IllName,ExpenseKind,TotalFee,CanFreeFee,FreeFee,DoctorName,InputerCode,
  InputerName,InterfaceIn,AreaCode,BillCode,BillNo,CheckerCode1,CheckerName1,CheckOneFee,CheckDate1,Checkone,CheckerCode,
  CheckerName,CheckFee,CheckDate,CheckRemark) values
 ('42990101','01''1',3,2,'42990101','甲镇卫生院','周强','周家','男',33,'岁','2026-02-01','2026-02-07',6,'Z31','J18','肺炎',
  '21',1000.10,800.05,500,'陈医生','01','管理员','1','429901','42990101',21,'K1','钱审',700,'2026-03-03','同意','K2','孙审',
  650,'2026-03-04','无'),
 ('42990101','0102',2,1,'42990101','甲镇卫生院','吴芳','吴家','女',40,'岁','2026-02-03','2026-02-09',6,'Z32','K35','阑尾炎',
  '22',200.20,150.10,99,'陈医生','01','管理员','2','429901','42990101',21,null,null,null,null,null,null,null,null,null,null),
 ('42990101','0103',1,1,'42990101','甲镇卫生院','郑和','郑家','男',51,'岁','2026-02-04','2026-02-08',4,'Z33','I10','高血压',
  '90',5.50,null,null,'陈医生','01','管理员','2','429901','42990101',20,null,null,null,null,null,null,null,null,null,null))";

const char *const FeeLines = R"(
insert into o_CbZyBxDjZb(OrgCode,CoopMedCode,IDNo,DiagNo,FeeNo,ItemCode,ItemName,FeeTypeCode,FeeTypeName,IfPass,Fee,
  KnockOffFee1,KnockOffFee) values
 ('42990101','01''1',3,2,1,'A1','青霉素','01','西药费','1',600,12.5,0),
 ('42990101','01''1',3,2,2,'A2','化验','03','化验费','1',300,null,7),
 ('42990101','01''1',3,2,3,'A3','床位','05','床位费','2',100.10,0,null))";

} // namespace

void BillPageTest::open(const BillPageParts &page, const Desk::Options &options)
{
    m_page = &page;
    m_desk.emplace(options);
    m_desk->sqlite(ofBill(Bills, page.status).toUtf8().constData());
    m_desk->sqlite(Records);
    m_desk->sqlite(FeeLines);
    m_desk->open();
    hands::showPage(form(), page.page);
    (void)said();
}

void BillPageTest::reviewElsewhere(const char *status) const
{
    m_desk->sqlite(ofBill("update o_CbZyZdb set CheckStatus='%1' where BillNo=21", status).toUtf8().constData());
}

void BillPageTest::choose(Bill bill)
{
    hands::clickNode(tree(), 0, bill);
    (void)said();
}

QString BillPageTest::totals() const
{
    QStringList texts;
    for (const char *name : {m_page->count, m_page->totalFee, m_page->canFreeFee})
        texts.append(hands::find<QLineEdit>(form(), name).text());
    return texts.join(QLatin1Char('|'));
}

QStringList BillPageTest::triggerAndConfirm(const char *item)
{
    m_desk->conversation().answerYes();
    hands::trigger(form(), item);
    return said();
}

QStringList BillPageTest::clickAndConfirm(const char *button)
{
    m_desk->conversation().answerYes();
    hands::click(form(), button);
    return said();
}
