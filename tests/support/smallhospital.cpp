// SPDX-License-Identifier: MIT
#include "tests/support/smallhospital.h"

#include "vortaq/schema/schema.h"

#include <sqlite3.h>

#include <stdexcept>
#include <string>

namespace {

const char *const Rows = R"(
insert into p_Ylfwdw(OrgCode,OrgName) values ('42990101','甲镇卫生院'),('42990102','乙镇卫生院'),('42999901','外县医院');
insert into r_SubSysInfo(SubSysCode) values ('1'),('2');
insert into r_UserRights(UserCode,RoleCode) values ('02','R2');
insert into r_RoleItem(RoleCode,SubSysCode,RightCode,IsBillAll) values ('R2','1','07','2');
insert into r_BillCheckList(RoleCode,SubSysCode,RightCode,OrgCode,BillCheck) values
  ('R2','1','07','42990101','1'),('R2','1','07','42990102','0');
insert into v_User(UserCode,UserName,RightParam) values ('01','管理员','1,2,3,4,5,6,7,8'),('02','李会计','12');
insert into v_Parameter(UserCode,Name,Value) values
  ('','AreaCode','42990100'),('','OrgCode','42990101'),('','OrgName','甲镇卫生院'),('','OrgType','2'),('','OrgGrade','3'),
  ('','isBillAll','1'),('','RightCode','07'),('','DigitalFormat',',0.00;-,0.00'),('','Color-1','10053171'),
  ('','Color-2','16250094'),('','Color-5','16777215'),('','Color-6','12313599'),('','Color-7','13158655'),
  ('02','isBillAll','2');
insert into o_CbZyBxDj(OrgCode,CoopMedCode,IDNo,DiagNo,HospitalCode,HospitalName,PatientName,HouseHolder,Sex,Age,AgeUnit,
  InDate,OutDate,DayCount,JsDate,PatientNo,InHosCount,IllCode,IllName,ExpenseKind,TotalFee,CanFreeFee,FreeFee,DoctorName,
  InputerCode,InputerName,InterfaceIn,AreaCode,ExpressionsID,LimitDef,Ke,BillCode,BillNo) values
 ('42990101','0012',1,3,'42990101','甲镇卫生院','王建国','王大山','男',45,'岁','2026-02-20','2026-03-01',9,'2026-03-01','Z1',1,
  'J18','肺炎','21',100.10,80.05,50.02,'陈医生','01','管理员','1','429901','G1','0',0,null,null),
 ('42990101','0040',2,1,'42990101','甲镇卫生院','李秀英','李家','女',8,'月','2026-03-01','2026-03-05',4,'2026-03-05','Z2',1,
  'K35','阑尾炎','22',200.20,150.00,100.00,'陈医生','01','管理员','2','429901','G1','1500',0,null,null),
 ('42990102','00''7',1,1,'42990102','乙镇卫生院','张伟','张家','男',30,'岁','2026-03-02','2026-03-06',4,'2026-03-06','Z3',2,
  'S72','骨折','90',1300.30,1000.00,600.50,'周医生','02','李会计','2','429901','G2','2800',12.5,null,null),
 ('42990101','0012',1,4,'42990101','甲镇卫生院','王建国','王大山','男',45,'岁','2026-03-07','2026-03-08',1,'2026-03-08','Z4',2,
  'J18','肺炎','29',null,null,null,'陈医生','01','管理员','2','429901',null,null,null,null,null),
 ('42990101','0055',1,1,'42990101','甲镇卫生院','赵敏','赵家','女',27,'岁','2026-03-08',null,null,null,'Z5',1,
  'O80','分娩','23',null,null,null,'陈医生','01','管理员','2','429901',null,null,null,null,null),
 ('42990103','0077',1,1,'42990103','丙村卫生室','钱多','钱家','男',61,'岁','2026-03-08',null,null,null,'Z6',1,
  'I10','高血压','21',null,null,null,'吴医生','01','管理员','2','429901',null,null,null,null,null),
 ('42990102','0080',1,1,'42990102','乙镇卫生院','孙丽','孙家','女',50,'岁','2026-01-02','2026-01-06',4,'2026-01-06','Z7',1,
  'I10','高血压','21',10.00,8.00,5.00,'周医生','02','李会计','2','429901','G1','0',0,'42990102',3);
insert into o_CbZyZdb(BillCode,BillNo,BillName,WriteDate,Fee,CanFreeFee,CheckFee1,CheckFee,CheckStatus,PrincipalName) values
 ('42990102',3,'乙镇卫生院','2026-01-10',10.00,8.00,0,0,'1','李会计');
insert into s_CbZyZdb(BillCode,BillNo,BillName,WriteDate,Fee,CanFreeFee,CheckFee1,CheckFee,CheckStatus,PrincipalName) values
 ('42990101',7,'甲镇卫生院','2025-12-01',90.00,60.00,60,60,'4','管理员');
insert into s_CbZyBxDj(OrgCode,CoopMedCode,IDNo,DiagNo,PatientName,Age,AgeUnit,InDate,OutDate,TotalFee,CanFreeFee,FreeFee,
  BillCode,BillNo) values ('42990101','0090',1,1,'吴刚',70,'岁','2025-11-01','2025-11-09',90.00,60.00,40.00,'42990101',7);
)";

void run(sqlite3 *database, const std::string &sql)
{
    char *message = nullptr;
    if (sqlite3_exec(database, sql.c_str(), nullptr, nullptr, &message) != SQLITE_OK) {
        const std::string text = message == nullptr ? "sqlite" : message;
        sqlite3_free(message);
        throw std::runtime_error(text);
    }
}

} // namespace

void createSmallHospital(const QString &file)
{
    sqlite3 *database = nullptr;
    if (sqlite3_open(file.toUtf8().constData(), &database) != SQLITE_OK)
        throw std::runtime_error("cannot create the database");
    run(database, "pragma synchronous=off");
    run(database, "begin");
    for (const std::string &statement : vortaq::schemaStatements())
        run(database, statement);
    run(database, Rows);
    run(database, "commit");
    sqlite3_close(database);
}
