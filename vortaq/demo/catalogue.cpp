// SPDX-License-Identifier: MIT
// The tables of the demo county.
#include "vortaq/demo/catalogue.h"

#include <algorithm>
#include <array>

namespace vortaq::demo {
namespace {

constexpr std::array<Institution, 11> institutionTable = {{
    {"42990101", "岚溪县人民医院", Level::County, "", 30, 28, 6, 5},
    {"42990102", "岚溪县中医医院", Level::County, "", 12, 12, 3, 2},
    {"42990111", "白石镇中心卫生院", Level::Township, "白石镇", 20, 18, 4, 3},
    {"42990112", "柳河镇卫生院", Level::Township, "柳河镇", 12, 12, 3, 2},
    {"42990113", "石桥乡卫生院", Level::Township, "石桥乡", 8, 8, 2, 1},
    {"42990114", "青山铺镇卫生院", Level::Township, "青山铺镇", 8, 8, 2, 1},
    {"42990115", "黄泥塘乡卫生院", Level::Township, "黄泥塘乡", 0, 5, 2, 1}, // its bills are all archived
    {"42990116", "云雾乡卫生院", Level::Township, "云雾乡", 0, 0, 0, 2}, // nobody has been discharged yet
    {"42990117", "仁爱（Mary's）医院", Level::Township, "", 6, 5, 1, 1},
    {"42990118", "龙潭镇卫生院", Level::Township, "龙潭镇", 0, 0, 0, 0}, // has just opened
    {"42990201", "清江市第一人民医院", Level::OutOfCounty, "", 4, 4, 1, 1},
}};

constexpr std::array<FeeType, 20> feeTypeTable = {{
    {"01", "西药费"},       {"02", "中成药费"},     {"03", "中草药费"},       {"04", "床位费"},
    {"05", "护理费"},       {"06", "检查费"},       {"07", "化验费"},         {"08", "治疗费"},
    {"09", "手术费"},       {"10", "输血费"},       {"11", "输氧费"},         {"12", "其他费"},
    {"0101", "抗微生物药"}, {"0102", "心脑血管药"}, {"0103", "输液及电解质"}, {"0601", "放射检查"},
    {"0602", "超声检查"},   {"0603", "CT检查"},     {"0801", "注射治疗"},     {"0802", "理疗"},
}};

constexpr int antimicrobial = 12;
constexpr int cardiovascular = 13;
constexpr int infusion = 14;
constexpr int radiology = 15;
constexpr int ultrasound = 16;
constexpr int tomography = 17;
constexpr int injection = 18;
constexpr int physiotherapy = 19;

constexpr std::array<FeeItem, 56> feeItemTable = {{
    {"F04001", "普通床位费（三人间）", "三人间", "床日", 180000, 3, 100, 1},
    {"F05001", "二级护理", "日", "日", 60000, 4, 100, 1},
    {"F05002", "一级护理", "日", "日", 120000, 4, 100, 5},
    {"X01001", "注射用青霉素钠", "80万单位", "支", 5600, antimicrobial, 100, 40},
    {"X01002", "注射用头孢曲松钠", "1.0g", "支", 38500, antimicrobial, 100, 20},
    {"X01003", "阿莫西林胶囊", "0.25g×24粒", "盒", 84000, antimicrobial, 100, 4},
    {"X01004", "左氧氟沙星注射液", "0.2g:100ml", "瓶", 126000, antimicrobial, 90, 14},
    {"X01005", "甲硝唑注射液", "0.5g:100ml", "瓶", 23500, antimicrobial, 100, 14},
    {"X01006", "注射用美罗培南", "0.5g", "支", 986000, antimicrobial, 70, 6, true},
    {"X01011", "硝苯地平缓释片", "20mg×30片", "瓶", 96000, cardiovascular, 100, 3},
    {"X01012", "丹参注射液", "10ml", "支", 46500, cardiovascular, 90, 14},
    {"X01013", "阿司匹林肠溶片", "100mg×30片", "盒", 125000, cardiovascular, 100, 2},
    {"X01014", "注射用阿替普酶", "50mg", "支", 51300000, cardiovascular, 60, 1, true},
    {"X01021", "0.9%氯化钠注射液", "250ml", "瓶", 31250, infusion, 100, 30},
    {"X01022", "5%葡萄糖注射液", "500ml", "瓶", 36750, infusion, 100, 30},
    {"X01023", "氯化钾注射液", "1.0g:10ml", "支", 3800, infusion, 100, 10},
    {"X01031", "胰岛素注射液", "400单位:10ml，2～8℃冷藏", "支", 285000, 0, 100, 3},
    {"X01032", "人血白蛋白", "20%，50ml，2～8℃冷藏", "瓶", 3780000, 0, 60, 3, true},
    {"X01033", "复方氨基酸注射液", "250ml", "瓶", 215000, 0, 80, 7},
    {"X01034", "维生素C注射液", "0.5g:2ml", "支", 4275, 0, 100, 20},
    {"X01035", "地塞米松磷酸钠注射液", "5mg:1ml", "支", 5125, 0, 100, 10},
    {"X01036", "奥美拉唑肠溶胶囊", "20mg×14粒", "盒", 189000, 0, 90, 2},
    {"X01037", "布洛芬混悬液", "100ml:2g", "瓶", 168000, 0, 90, 2},
    {"Z02001", "复方丹参滴丸", "27mg×180丸", "瓶", 268000, 1, 90, 2},
    {"Z02002", "蒲地蓝消炎口服液", "10ml×10支", "盒", 326000, 1, 0, 2},
    {"Z02003", "六味地黄丸", "200丸", "瓶", 128000, 1, 80, 2},
    {"Z02004", "板蓝根颗粒", "10g×20袋", "袋", 98000, 1, 100, 2},
    {"C03001", "黄芪", "饮片", "克", 1250, 2, 100, 200},
    {"C03002", "当归", "饮片", "克", 1685, 2, 100, 150},
    {"C03003", "金银花", "饮片", "克", 2930, 2, 100, 100},
    {"C03004", "西洋参", "饮片", "克", 12800, 2, 0, 30},
    {"J06001", "常规心电图", "十二导联", "次", 150000, 5, 100, 2},
    {"J06002", "动态心电图", "24小时", "次", 1200000, 5, 80, 1},
    {"J06101", "胸部正侧位片", "数字化", "次", 650000, radiology, 100, 1},
    {"J06102", "四肢关节正侧位片", "数字化", "次", 600000, radiology, 100, 2, false, "S82"},
    {"J06201", "腹部彩超", "肝胆脾胰", "次", 800000, ultrasound, 90, 1},
    {"J06202", "妇科彩超", "经腹", "次", 700000, ultrasound, 90, 1, false, "O8"},
    {"J06301", "头颅CT平扫", "16排", "次", 2200000, tomography, 70, 1, true},
    {"J06302", "胸部CT平扫", "16排", "次", 2400000, tomography, 70, 1, true},
    {"H07001", "血常规", "五分类", "次", 200000, 6, 100, 3},
    {"H07002", "尿常规", "十一项", "次", 80000, 6, 100, 2},
    {"H07003", "肝功能", "十项", "次", 450000, 6, 100, 2},
    {"H07004", "肾功能", "三项", "次", 240000, 6, 100, 2},
    {"H07005", "空腹血糖", "葡萄糖氧化酶法", "次", 60000, 6, 100, 5},
    {"T08001", "静脉输液", "组", "次", 50000, injection, 100, 14},
    {"T08002", "肌肉注射", "次", "次", 15000, injection, 100, 10},
    {"T08003", "换药（中）", "次", "次", 120000, 7, 100, 6},
    {"T08101", "中频脉冲电治疗", "部位", "次", 180000, physiotherapy, 70, 8},
    {"T08102", "红外线治疗", "区", "次", 80000, physiotherapy, 70, 8},
    {"S09001", "阑尾切除术", "例", "例", 6800000, 8, 90, 1, false, "K35"},
    {"S09002", "单胎顺产接生", "例", "例", 3500000, 8, 100, 1, false, "O80"},
    {"S09003", "清创缝合术（小）", "例", "例", 850000, 8, 90, 2},
    {"B10001", "悬浮红细胞", "1单位，4℃±2℃", "单位", 2100000, 9, 80, 2},
    {"Y11001", "氧气吸入", "小时", "小时", 30000, 10, 100, 48},
    {"Q12001", "陪护床费", "床日", "床日", 50000, 11, 0, 7},
    {"Q12002", "一次性使用输液器", "套", "套", 18350, 11, 50, 14},
}};

constexpr std::array<Formula, 6> formulaTable = {{
    {"01", "乡镇卫生院：（可报销费用-起付线100元）×80%", 10000, 80},
    {"02", "县级医院：（可报销费用-起付线300元）×65%", 30000, 65},
    {"03", "县外医院：（可报销费用-起付线600元）×45%", 60000, 45},
    {"04", "单病种定额补偿", 0, 100},
    {"05", "正常分娩定额补助", 0, 100},
    {"06", "其他：（可报销费用-起付线200元）×50%，限额内", 20000, 50},
}};

constexpr std::array<HomeProperty, 5> homePropertyTable = {{
    {"01", "五保户"},
    {"02", "低保户"},
    {"03", "优抚对象"},
    {"04", "贫困户"},
    {"05", "残疾人家庭"},
}};

} // namespace

std::span<const Institution> institutions()
{
    return institutionTable;
}

std::span<const FeeType> feeTypes()
{
    return feeTypeTable;
}

std::span<const FeeItem> feeItems()
{
    return feeItemTable;
}

int topLevelOf(const FeeType &type)
{
    const auto top = std::find_if(feeTypeTable.begin(), feeTypeTable.begin() + topLevelTypes,
                                  [&type](const FeeType &other) { return other.code == type.code.substr(0, 2); });
    return static_cast<int>(top - feeTypeTable.begin());
}

std::span<const Formula> formulas()
{
    return formulaTable;
}

std::span<const HomeProperty> homeProperties()
{
    return homePropertyTable;
}

} // namespace vortaq::demo
