// SPDX-License-Identifier: MIT
#include "host/clientdataset.h"

#include <QRegularExpression>

#include <charconv>
#include <optional>
#include <stdexcept>

namespace {

struct Comparison {
    QString column;
    std::string text;
};

[[noreturn]] void fail(const QString &message)
{
    throw std::runtime_error(message.toStdString());
}

std::optional<Comparison> parseCondition(const QString &condition)
{
    if (condition.trimmed().isEmpty())
        return std::nullopt;
    static const QRegularExpression pattern(QStringLiteral("^\\s*(\\w+)\\s*=\\s*'((?:[^']|'')*)'\\s*$"),
                                            QRegularExpression::UseUnicodePropertiesOption);
    const QRegularExpressionMatch match = pattern.match(condition);
    if (!match.hasMatch())
        fail(QStringLiteral("筛选条件无效：%1").arg(condition));
    return Comparison{match.captured(1),
                      match.captured(2).replace(QLatin1String("''"), QLatin1String("'")).toStdString()};
}

std::string_view trimmed(std::string_view text)
{
    const std::size_t begin = text.find_first_not_of(' ');
    if (begin == std::string_view::npos)
        return {};
    return text.substr(begin, text.find_last_not_of(' ') - begin + 1);
}

template <typename Number> Number toNumber(std::string_view cell, const QString &name)
{
    if (cell.empty())
        return 0;
    const std::string_view digits = trimmed(cell);
    Number value{};
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (error != std::errc() || end != digits.data() + digits.size()) {
        throw std::invalid_argument(QStringLiteral("“%1”的值“%2”不是有效的数值。")
                                        .arg(name, QString::fromUtf8(cell.data(), static_cast<qsizetype>(cell.size())))
                                        .toStdString());
    }
    return value;
}

} // namespace

TClientDataSet::TClientDataSet(QObject *parent)
    : QObject(parent)
{
}

void TClientDataSet::setData(const QVariant &packet)
{
    auto rows = packet.value<automation::DataPacketPtr>();
    if (!rows)
        fail(QStringLiteral("主程序返回的不是数据集。"));
    m_packet = std::move(rows);
    applyFilter();
}

void TClientDataSet::setFilter(const QString &condition)
{
    parseCondition(condition); // refused here, where it is written, rather than at the next load
    m_filter = condition;
    if (m_filtered)
        applyFilter();
}

void TClientDataSet::setFiltered(bool filtered)
{
    m_filtered = filtered;
    applyFilter();
}

void TClientDataSet::applyFilter()
{
    m_current = 0;
    m_visible.clear();
    const auto comparison = m_filtered && m_packet ? parseCondition(m_filter) : std::nullopt;
    m_usesVisible = comparison.has_value();
    if (!comparison)
        return;
    const int column = fieldIndex(comparison->column);
    for (int row = 0; row < m_packet->rowCount(); ++row) {
        if (!m_packet->isNull(row, column) && m_packet->text(row, column) == comparison->text)
            m_visible.push_back(row);
    }
}

int TClientDataSet::recordCount() const noexcept
{
    if (!m_packet)
        return 0;
    return m_usesVisible ? static_cast<int>(m_visible.size()) : m_packet->rowCount();
}

void TClientDataSet::next() noexcept
{
    if (!eof())
        ++m_current;
}

int TClientDataSet::fieldIndex(const QString &name) const
{
    const int column = m_packet ? m_packet->columnIndex(name) : -1;
    if (column < 0)
        fail(QStringLiteral("数据集中没有字段“%1”。").arg(name));
    return column;
}

int TClientDataSet::packetRow() const
{
    if (eof())
        fail(QStringLiteral("数据集中没有当前记录。"));
    return m_usesVisible ? m_visible[static_cast<std::size_t>(m_current)] : m_current;
}

std::string_view TClientDataSet::cell(const QString &name) const
{
    const int column = fieldIndex(name);
    return m_packet->text(packetRow(), column);
}

QString TClientDataSet::text(const QString &name) const
{
    const std::string_view utf8 = cell(name);
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

bool TClientDataSet::isNull(const QString &name) const
{
    const int column = fieldIndex(name);
    return m_packet->isNull(packetRow(), column);
}

double TClientDataSet::number(const QString &name) const
{
    return toNumber<double>(cell(name), name);
}

int TClientDataSet::integer(const QString &name) const
{
    return toNumber<int>(cell(name), name);
}
