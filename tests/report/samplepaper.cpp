// SPDX-License-Identifier: MIT
#include "tests/report/samplepaper.h"

#include "automation/datapacket.h"
#include "host/clientdataset.h"
#include "values/displayformat.h"

#include <QStringList>
#include <QVariant>

#include <cstddef>
#include <iterator>

namespace samplepaper {

void fill(TClientDataSet &dataSet, const std::vector<QString> &columns, const Rows &rows)
{
    automation::DataPacketBuilder builder(columns);
    for (const std::vector<std::string> &row : rows) {
        for (const std::string &cell : row)
            builder.append(cell);
    }
    dataSet.setData(QVariant::fromValue(builder.finish()));
}

std::vector<QString> names(const char *list)
{
    const QStringList parts = QString::fromLatin1(list).split(u',');
    return {parts.begin(), parts.end()};
}

void fillSettlement(TClientDataSet &dataSet)
{
    const std::string calculation = "总费用6843.52元，可报销费用5412.05元，起付线100元，补偿比例80%；"
                                    "计算：（5412.05-100.00）×80%=4249.64元。本年度累计补偿未超过封顶线。";
    fill(dataSet,
         names("CoopMedCode,HospitalName,HouseHolder,PatientName,Sex,BirthDay,RelationName,Address,InDate,OutDate,"
               "DayCount,PatientNo,IllName,InHosCount,Fee,CanFreeFee,FreeFee,MzFee,HosFee,HomeProperty,LimitDef,"
               "ExpressionsName,PrintInfo,TSumTotalFee,TSumFree"),
         {{"4299011100023",
           "白石镇中心卫生院",
           "欧阳建国",
           "欧阳小梅",
           "女",
           "1961-03-18",
           "配偶",
           "岚溪县白石镇柳树湾村三组28号",
           "2026-10-12",
           "2026-10-24",
           "12",
           "ZY20260187",
           "急性结石性胆囊炎；胆总管结石；高血压病3级（极高危）；2型糖尿病",
           "2",
           "6843.5200",
           "5412.0500",
           "4249.6400",
           "0.0000",
           "4249.6400",
           "低保户/优抚对象",
           "限额10000",
           "乡镇卫生院：（可报销费用-起付线100元）×80%",
           calculation,
           "11930.2700",
           "7012.3300"}});
}

void answerFees(const QString &name, QVariant &value)
{
    static const char *const Types[] = {"西药费", "中成药费", "中草药费", "床位费", "护理费", "检查费",
                                        "化验费", "治疗费",   "手术费",   "输血费", "输氧费", "其他费"};
    static const double Fees[] = {2318.46, 268, 0.01, 216, 144, 780, 445.05, 536, 1850, 286};
    static const double Reimbursable[] = {2012.05, 241.2, 0.01, 216, 144, 702, 445.05, 500, 1151.74, 0};
    if (!name.startsWith(u'F'))
        return;
    const int index = values::parseInteger(name.right(2)) - 1;
    const QString kind = name.chopped(2);
    if (kind.compare(u"FTYPE", Qt::CaseInsensitive) == 0)
        value = QString::fromUtf8(Types[index]);
    else if (index >= 10)
        return;
    else if (kind == u"FTFee")
        value = Fees[index];
    else if (kind == u"FCFee")
        value = Reimbursable[index];
    else if (kind == u"FUFee")
        value = Fees[index] - Reimbursable[index];
}

void fillFeeHeader(TClientDataSet &dataSet)
{
    fill(dataSet,
         names("HospitalName,CoopMedCode,PatientName,Sex,Age,PatientNo,HouseHolder,InDate,InHosCount,DoctorName,"
               "Address"),
         {{"白石镇中心卫生院", "4299011100023", "欧阳小梅", "女", "65岁", "ZY20260187", "欧阳建国", "2026-10-12", "2",
           "张秀英", "岚溪县白石镇柳树湾村三组28号"}});
}

void fillFeeItems(TClientDataSet &dataSet, int count, int perDay)
{
    struct Item {
        const char *name;
        const char *packing;
        const char *unit;
        int price; // hundredths
    };
    static const Item Items[] = {{"普通床位费（三人间）", "三人间", "床日", 1800},
                                 {"二级护理", "日", "日", 600},
                                 {"注射用头孢曲松钠", "1.0g", "支", 385},
                                 {"0.9%氯化钠注射液", "250ml", "瓶", 312},
                                 {"腹腔镜下胆囊切除术（含胆总管探查及T管引流术，术中造影另计）", "例", "例", 68000},
                                 {"胰岛素注射液", "400单位:10ml，2～8℃冷藏", "支", 2850},
                                 {"血常规", "五分类", "次", 2000},
                                 {"一次性使用输液器", "套", "套", 183}};
    static const int Lengths[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    Rows rows;
    int month = 1;
    int day = 1;
    for (int at = 0; at < count; ++at) {
        const Item &item = Items[static_cast<std::size_t>(at) % std::size(Items)];
        if (at > 0 && at % perDay == 0 && ++day > Lengths[month - 1]) {
            day = 1;
            month = month % 12 + 1;
        }
        const int quantity = 1 + at % 5;
        const auto money = [](int cents) {
            const QString digits = QString::number(cents).rightJustified(3, u'0');
            return (digits.chopped(2) + u'.' + digits.right(2)).toStdString();
        };
        const QString date = QStringLiteral("2026-%1-%2").arg(month, 2, 10, QChar(u'0')).arg(day, 2, 10, QChar(u'0'));
        rows.push_back({item.name, item.packing, item.unit, std::to_string(quantity) + ".00", money(item.price),
                        money(item.price * quantity), date.toStdString(), at % 7 == 0 ? "否" : "是"});
    }
    fill(dataSet, names("ItemName,Gg,Unit,Num,Price,Fee,YyDate,IfPass"), rows);
}

void answerUser(const QString &name, QVariant &value)
{
    if (name.compare(u"UserName", Qt::CaseInsensitive) == 0)
        value = QStringLiteral("李会计");
}

} // namespace samplepaper
