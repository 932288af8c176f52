-- A small hospital: one record of every sort. Its clock stands at 2024-02-06 09:30.
insert into p_Ylfwdw (OrgCode, OrgName) values ('4201', '城关镇卫生院'), ('4202', '李''家集卫生院'), ('4203', '无单卫生院');

insert into o_CbZyBxDj
  (OrgCode, CoopMedCode, IDNo, DiagNo, HospitalCode, HospitalName, PatientName, HouseHolder, Sex, Age, AgeUnit, InDate,
   OutDate, DayCount, JsDate, PatientNo, InHosCount, IllCode, IllName, ExpenseKind, TotalFee, CanFreeFee, FreeFee,
   DoctorName, InputerCode, InputerName, InterfaceIn, AreaCode, ExpressionsID, LimitDef, Ke)
values
  -- unbilled and discharged
  ('4201', '420100120034', 2, 1, '4201', '城关镇卫生院', '张三', '张大山', '男', 45, '岁', '2024-01-28',
   '2024-02-05', 8, '2024-02-06', 'Z0001', 1, 'J18.900', '肺炎', '21', 1234.5, 1000, 600.25,
   '王医生', '01', '管理员', '2', '420100', '01', '0', 0),
  ('4201', '420100120040', 1, 3, '4201', '城关镇卫生院', 'O''Brien', null, '男', 3, '月', '2024-02-06',
   '2024-02-06', 0, '2024-02-05', 'Z0002', 2, 'K35.800', '急性阑尾炎', '22', 0.1, null, 0.07,
   null, '02', '李会计', '1', '420100', '02', '500', 20.5),
  ('4202', '420200000001', 1, 1, '4202', '李''家集卫生院', '赵六', '赵六', '女', 28, '岁', '2024-02-01',
   '2024-02-04', 3, null, 'Z0003', 1, 'O80.900', '单胎顺产', '23', 2000, 1500.5, 800,
   '钱医生', '02', '李会计', '2', '420200', '01', '0', 0),
  -- still in hospital
  ('4201', '420100120040', 2, 1, '4201', '城关镇卫生院', '小明', 'O''Brien', null, null, '岁', '2024-02-06',
   null, null, null, 'Z0004', 1, null, null, '99', null, null, null,
   '王医生', '01', '管理员', '2', '420100', null, null, null);

insert into o_CbZyBxDj
  (OrgCode, CoopMedCode, IDNo, DiagNo, PatientName, Age, AgeUnit, InDate, OutDate, JsDate, ExpenseKind, TotalFee,
   CanFreeFee, FreeFee, BillCode, BillNo, CheckerCode1, CheckerName1, CheckOneFee, CheckDate1, Checkone, CheckerCode,
   CheckerName, CheckFee, CheckDate, CheckRemark)
values
  -- in bill 12, one of them reviewed
  ('4201', '420100120050', 1, 1, '孙七', 60, '岁', '2024-01-02', '2024-01-12', '2024-01-12', '29', 300.3,
   200.2, 100.1, '4201', 12, '09', '审核员', 98.7, '2024-01-20', '同意', '10',
   '复核员', 97.6, '2024-01-21', '扣1.10'),
  ('4201', '420100120051', 1, 1, '周八', 7, '天', '2024-01-03', '2024-01-09', '2024-01-09', '90', 0.2,
   0.1, null, '4201', 12, null, null, null, null, null, null,
   null, null, null, null),
  -- in bill 13, sent back
  ('4201', '420100120052', 1, 1, '吴九', 51, '岁', '2024-01-05', '2024-01-15', '2024-01-15', '21', 10,
   10, 10, '4201', 13, null, null, null, null, null, null,
   null, null, null, null);

insert into s_CbZyBxDj
  (OrgCode, CoopMedCode, IDNo, DiagNo, HospitalName, PatientName, HouseHolder, Sex, Age, AgeUnit, PatientNo, InHosCount,
   DoctorName, InDate, OutDate, JsDate, ExpenseKind, TotalFee, CanFreeFee, FreeFee, ExpressionsID, LimitDef, BillCode, BillNo)
values
  ('4201', '420100120034', 2, 9, '城关镇卫生院', '张三', '张大山', '男', 44, '岁', 'Y0001', 1,
   '王医生', '2023-05-01', '2023-05-09', '2023-05-09', '21', 100.1, 90, 50.05, '01', '0', '4201', 14),
  ('4201', '420100120034', 2, 10, '城关镇卫生院', '张三', '张大山', '男', 44, '岁', 'Y0002', 2,
   '王医生', '2023-06-01', '2023-06-09', '2023-06-09', '22', 0.2, 0.2, null, '01', '0', '4201', 14);

-- Bill 11 has no record left, bill 12 exists in both copies.
insert into o_CbZyZdb (BillCode, BillNo, BillName, WriteDate, Fee, CanFreeFee, CheckFee1, CheckFee, CheckStatus, PrincipalName)
values
  ('4201', 11, '城关镇卫生院', '2024-01-10', 0, 0, 0, 0, '1', '王医生'),
  ('4201', 12, '城关镇卫生院', '2024-01-18', 300.5, 200.3, 98.7, 97.6, '1', '王医生'),
  ('4201', 13, '城关镇卫生院', '2024-01-19', 10, 10, 0, 0, '9', '王医生');
insert into s_CbZyZdb (BillCode, BillNo, BillName, WriteDate, Fee, CanFreeFee, CheckFee1, CheckFee, CheckStatus, PrincipalName)
values
  ('4201', 12, '城关镇卫生院', '2023-07-01', 5, 5, null, null, '4', '王医生'),
  ('4201', 14, '城关镇卫生院', '2023-06-30', 100.3, 90.2, 90.2, 90, '4', '王医生');

insert into o_CbZyBxDjZb
  (OrgCode, CoopMedCode, IDNo, DiagNo, FeeNo, ItemCode, ItemName, FeeTypeCode, FeeTypeName, IfPass, Unit, Price, Num, Fee,
   CanFreeFee, KnockOffFee1, KnockOffFee, YyDate, InputDate)
values
  ('4201', '420100120034', 2, 1, 10, 'X01', '青霉素', '01', '西药费', '1', '支', 1.2345, 10, 12.345, 12.345, 0.5, null, '2024-01-29', '2024-01-30'),
  ('4201', '420100120034', 2, 1, 2, 'X02', '葡萄糖', '01', '西药费', '2', '瓶', 0.1, 3, 0.3, 0, 0, 0, '2024-01-28', '2024-01-28'),
  ('4201', '420100120034', 2, 1, 3, 'J01', '胸透', '02', '检查费', '1', '次', 1221.855, 1, 1221.855, 987.655, null, 12.3, '2024-01-28', '2024-01-29'),
  ('4201', '420100120034', 2, 1, 4, 'Q99', '目录外', '02', '检查费', null, null, null, null, null, null, null, null, null, null);
insert into s_CbZyBxDjZb
  (OrgCode, CoopMedCode, IDNo, DiagNo, FeeNo, ItemCode, ItemName, FeeTypeCode, FeeTypeName, IfPass, Unit, Price, Num, Fee,
   CanFreeFee, KnockOffFee1, KnockOffFee, YyDate, InputDate)
values
  ('4201', '420100120034', 2, 9, 1, 'X01', '青霉素', '01', '西药费', '1', '支', 1, 100.1, 100.1, 90, 1, 2, '2023-05-01', '2023-05-02');
insert into o_CbZyBxTpb (OrgCode, CoopMedCode, IDNo, DiagNo, ItemCode, Status)
values
  ('4201', '420100120034', 2, 1, 'X01', '3'),
  ('4201', '420100120034', 2, 1, 'X02', '1'),
  ('4201', '420100120034', 2, 2, 'J01', '3');

insert into o_CbZyJsb
  (OrgCode, CoopMedCode, IDNo, DiagNo, HospitalName, HouseHolder, PatientName, Sex, BirthDay, RelationName, Address, InDate,
   OutDate, DayCount, PatientNo, IllName, InHosCount, Fee, CanFreeFee, FreeFee, MzFee, HosFee)
values
  ('4201', '420100120034', 2, 1, '城关镇卫生院', '张大山', '张三', '男', '1978-11-03', '子', '城关镇1号', '2024-01-28',
   '2024-02-05', 8, 'Z0001', '肺炎', 1, 1234.5, 1000, 600.25, 0, 634.25);
insert into s_CbZyJsb
  (OrgCode, CoopMedCode, IDNo, DiagNo, HospitalName, HouseHolder, PatientName, Sex, BirthDay, RelationName, Address, InDate,
   OutDate, DayCount, PatientNo, IllName, InHosCount, Fee, CanFreeFee, FreeFee, MzFee, HosFee)
values
  ('4201', '420100120034', 2, 9, '城关镇卫生院', '张大山', '张三', '男', '1978-11-03', '子', null, '2023-05-01',
   '2023-05-09', 8, 'Y0001', '咽炎', 1, 100.1, 90, 50.05, null, 50.05);
insert into o_CbZyJsMxb (OrgCode, CoopMedCode, IDNo, DiagNo, FeeTypeCode, Fee, CanFreeFee, FreeFee)
values
  ('4201', '420100120034', 2, 1, '02', 1221.86, 987.66, 592.6),
  ('4201', '420100120034', 2, 1, '01', 12.64, 12.34, 7.65);
insert into s_CbZyJsMxb (OrgCode, CoopMedCode, IDNo, DiagNo, FeeTypeCode, Fee, CanFreeFee, FreeFee)
values ('4201', '420100120034', 2, 9, '01', 100.1, 90, 50.05);

insert into p_CbNhGrXx (CoopMedCode, IDNo, isHouseHolder, Address, HomeProperty)
values
  ('420100120034', 1, '1', '城关镇1号', null),
  ('420100120034', 2, '2', '不应打印', '01,02'),
  ('420100120040', 1, '2', '无户主', '');
insert into p_HomeProperty (PropertyCode, PropertyName) values ('01', '一般农户'), ('02', '五保户');
insert into p_BxXm (ItemCode, Gg) values ('X01', '80万单位'), ('x02', '500ml'), ('J01', null);
insert into p_ZyBxGs (ExpressionsId, ExpressionsName) values ('01', '县级''住院''公式'), ('02', '定额');
insert into p_fylb (FeeTypeCode, FeeTypeName) values ('02', '检查费'), ('01', '西药费'), ('0101', '抗生素');

-- The user "zhang" may bill 4202 and 4203; 4201 is written down, but not granted.
insert into r_UserRights (UserCode, RoleCode) values ('zhang', 'r1'), ('wang', 'r2');
insert into r_RoleItem (RoleCode, SubSysCode, RightCode, IsBillAll)
values ('r1', '1', 'R''1', '2'), ('r1', '2', 'R''1', '2'), ('r2', '1', 'R''1', '1');
insert into r_SubSysInfo (SubSysCode) values ('1'), ('2');
insert into r_BillCheckList (RoleCode, SubSysCode, RightCode, OrgCode, BillCheck)
values ('r1', '1', 'R''1', '4201', '2'), ('r1', '1', 'R''1', '4202', '1'), ('r1', '1', 'R''1', '4203', '1'),
  ('r1', '2', 'R''1', '4201', '1'), ('r2', '1', 'R''1', '4201', '1');
insert into v_Procedure (Name, Text) values ('Pro_Zy_FeeInterFace', '');
insert into v_Parameter (UserCode, Name, Value) values ('', 'isBillAll', '1'), ('zhang', 'isBillAll', '2');
