// SPDX-License-Identifier: MIT
#include "report/template/attributes.h"

#include "report/template/templateerror.h"

#include <cmath>
#include <utility>

namespace report {

namespace {

constexpr double MostMillimetres = 2000;
constexpr double LeastPoints = 4;
constexpr double MostPoints = 200;

struct SideName {
    QStringView name;
    Sides side;
};
constexpr SideName SideNames[] = {{u"left", LeftSide},     {u"top", TopSide},  {u"right", RightSide},
                                  {u"bottom", BottomSide}, {u"all", AllSides}, {u"none", NoSide}};

} // namespace

Attributes::Attributes(const QXmlStreamAttributes &attributes, QString file, int line, QString element)
    : m_attributes(attributes)
    , m_file(std::move(file))
    , m_line(line)
    , m_element(std::move(element))
{
}

void Attributes::fail(const char *name, const QString &reason) const
{
    throw TemplateError(m_file, m_line,
                        QStringLiteral("<%1> 的属性 %2 %3").arg(m_element, QString::fromLatin1(name), reason));
}

void Attributes::checkAllTaken() const
{
    if (m_attributes.isEmpty())
        return;
    throw TemplateError(
        m_file, m_line,
        QStringLiteral("<%1> 没有名为 %2 的属性").arg(m_element, m_attributes.front().qualifiedName().toString()));
}

std::optional<QString> Attributes::text(const char *name)
{
    const QLatin1String wanted(name);
    for (qsizetype at = 0; at < m_attributes.size(); ++at) {
        if (m_attributes[at].qualifiedName() == wanted) {
            QString value = m_attributes[at].value().toString();
            m_attributes.remove(at);
            return value;
        }
    }
    return std::nullopt;
}

Unit Attributes::lengthOf(const char *name, QStringView text) const
{
    bool ok = false;
    const double millimetres = text.trimmed().toDouble(&ok);
    if (!ok || !(millimetres >= 0 && millimetres <= MostMillimetres))
        fail(name, QStringLiteral("应是 0 到 2000 之间的毫米数，现为“%1”").arg(text));
    return static_cast<Unit>(std::lround(millimetres * UnitsPerMillimetre));
}

std::optional<Unit> Attributes::length(const char *name)
{
    const auto given = text(name);
    if (!given)
        return std::nullopt;
    return lengthOf(name, *given);
}

Unit Attributes::requiredLength(const char *name)
{
    const auto given = length(name);
    if (!given)
        fail(name, QStringLiteral("没有写"));
    return *given;
}

std::optional<int> Attributes::fontSize(const char *name)
{
    const auto given = text(name);
    if (!given)
        return std::nullopt;
    bool ok = false;
    const double points = given->toDouble(&ok);
    if (!ok || !(points >= LeastPoints && points <= MostPoints))
        fail(name, QStringLiteral("应是 4 到 200 之间的磅数，现为“%1”").arg(*given));
    return static_cast<int>(std::lround(points * 10));
}

std::optional<int> Attributes::count(const char *name, int most)
{
    const auto given = text(name);
    if (!given)
        return std::nullopt;
    bool ok = false;
    const int value = given->toInt(&ok);
    if (!ok || value < 1 || value > most)
        fail(name, QStringLiteral("应是 1 到 %1 之间的整数，现为“%2”").arg(QString::number(most), *given));
    return value;
}

std::optional<bool> Attributes::yesOrNo(const char *name)
{
    static constexpr Choice<bool> Choices[] = {{u"yes", true}, {u"no", false}};
    return choice<bool>(name, Choices);
}

std::optional<QRgb> Attributes::colour(const char *name)
{
    const auto given = text(name);
    if (!given)
        return std::nullopt;
    bool ok = false;
    const unsigned value = QStringView(*given).mid(1).toUInt(&ok, 16);
    if (!ok || given->size() != 7 || !given->startsWith(u'#'))
        fail(name, QStringLiteral("应写成 #RRGGBB，现为“%1”").arg(*given));
    return 0xFF000000U | value;
}

std::optional<std::vector<Unit>> Attributes::widths(const char *name, Unit total)
{
    const auto given = text(name);
    if (!given)
        return std::nullopt;
    std::vector<Unit> widths;
    std::optional<std::size_t> rest;
    Unit sum = 0;
    for (const QStringView part : QStringView(*given).split(u',')) {
        if (part.trimmed() == u"*") {
            if (rest)
                fail(name, QStringLiteral("只能有一个“*”"));
            rest = widths.size();
            widths.push_back(0);
            continue;
        }
        widths.push_back(lengthOf(name, part));
        sum += widths.back();
        if (sum > total)
            fail(name, QStringLiteral("各栏之和超出可用的宽度（%1 毫米）").arg(total / UnitsPerMillimetre));
    }
    if (rest)
        widths[*rest] = total - sum;
    return widths;
}

std::optional<Sides> Attributes::sides(const char *name)
{
    const auto given = text(name);
    if (!given)
        return std::nullopt;
    Sides sides = NoSide;
    for (const QStringView part : QStringView(*given).split(u' ', Qt::SkipEmptyParts)) {
        bool known = false;
        for (const SideName &each : SideNames) {
            if (each.name == part) {
                sides |= each.side;
                known = true;
            }
        }
        if (!known)
            fail(name, QStringLiteral("只能是 all、none，或 left、top、right、bottom 中的几个"));
    }
    return sides;
}

} // namespace report
