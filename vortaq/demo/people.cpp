// SPDX-License-Identifier: MIT
// The tables of names and places.
#include "vortaq/demo/people.h"

#include "vortaq/demo/random.h"

#include <array>

namespace vortaq::demo {
namespace {

using Texts = std::string_view;

constexpr auto surnames = std::to_array<Texts>(
    {"王", "李", "张", "刘", "陈", "杨", "赵", "黄", "周", "吴", "徐", "孙", "胡", "朱", "高",   "林",  "何", "郭",
     "马", "罗", "梁", "宋", "郑", "谢", "韩", "唐", "冯", "于", "董", "萧", "程", "曹", "袁",   "邓",  "许", "傅",
     "沈", "曾", "彭", "吕", "苏", "卢", "蒋", "蔡", "贾", "丁", "魏", "薛", "叶", "阎", "欧阳", "上官"});

constexpr auto maleFirst = std::to_array<Texts>({"建", "国", "志", "文", "德", "永", "家", "光", "春", "水",
                                                 "长", "福", "金", "世", "明", "天", "启", "学", "宗", "喆"});
constexpr auto maleSecond =
    std::to_array<Texts>({"华", "军", "平", "强", "林", "生", "根", "民", "祥", "清", "海", "山",
                          "宝", "才", "富", "贵", "顺", "辉", "斌", "勇", "涛", "堃", "来", "保"});
constexpr auto femaleFirst = std::to_array<Texts>({"秀", "桂", "玉", "春", "小", "金", "素", "美", "丽", "冬",
                                                   "月", "惠", "翠", "雪", "晓", "凤", "彩", "银", "红", "珺"});
constexpr auto femaleSecond =
    std::to_array<Texts>({"英", "兰", "珍", "芳", "梅", "莲", "华", "香", "琴", "娥", "云", "凤",
                          "霞", "燕", "萍", "玲", "娟", "花", "芬", "琼", "妹", "姣", "蓉", "仙"});

constexpr auto townNames =
    std::to_array<Texts>({"白石镇", "柳河镇", "石桥乡", "青山铺镇", "黄泥塘乡", "云雾乡", "龙潭镇"});
constexpr auto villageNames =
    std::to_array<Texts>({"大屋村", "石板村", "桥头村", "樟树村", "新塘村", "上湾村", "下湾村", "枫林村", "茶亭村",
                          "井边村", "竹山村", "荷叶村", "双溪村", "马鞍村", "油坊村", "古岭村"});

constexpr auto doctorNames = std::to_array<Texts>(
    {"陈国栋", "李淑芬", "王志远", "张秀兰", "刘建平", "赵晓红", "黄文斌", "周玉珍", "吴海涛", "徐丽萍", "孙德胜",
     "胡桂英", "朱明辉", "高春燕", "林永昌", "何素琴", "郭长林", "马惠玲", "罗天佑", "梁小梅", "宋启明", "郑雪莲"});

constexpr std::array<std::array<Clerk, 2>, 11> clerks = {{
    {{{"010101", "方晓敏"}, {"010102", "田家旺"}}},
    {{{"010201", "金玉霞"}, {"010202", "石文军"}}},
    {{{"02", "李会计"}, {"011102", "潘小琴"}}},
    {{{"011201", "廖春生"}, {"011202", "姚美华"}}},
    {{{"011301", "邹光明"}, {"011302", "熊翠云"}}},
    {{{"011401", "陆永福"}, {"011402", "孔晓燕"}}},
    {{{"011501", "白志刚"}, {"011502", "崔金凤"}}},
    {{{"011601", "康水生"}, {"011602", "毛银花"}}},
    {{{"011701", "江海棠"}, {"011702", "史德荣"}}},
    {{{"011801", "顾长青"}, {"011802", "侯丽娟"}}},
    {{{"020101", "邵建国"}, {"020102", "孟雪梅"}}},
}};

} // namespace

std::string_view randomSurname(Random &random)
{
    return random.pick(surnames);
}

std::string personName(std::string_view surname, std::string_view sex, Random &random)
{
    std::string name(surname);
    const bool isMale = sex == male;
    if (random.percent(80))
        name += isMale ? random.pick(maleFirst) : random.pick(femaleFirst);
    name += isMale ? random.pick(maleSecond) : random.pick(femaleSecond);
    return name;
}

std::span<const std::string_view> towns()
{
    return townNames;
}

std::span<const std::string_view> villages()
{
    return villageNames;
}

std::span<const std::string_view> doctors()
{
    return doctorNames;
}

Clerk clerkOf(int institution, int which)
{
    return clerks.at(static_cast<std::size_t>(institution)).at(static_cast<std::size_t>(which));
}

} // namespace vortaq::demo
