// SPDX-License-Identifier: MIT
// Filters and shows the rows of a look-up.
#include "vortaq/app/lookup/lookupmodel.h"

#include <string_view>

namespace vortaq {

LookupModel::LookupModel(automation::DataPacketPtr rows, int codeColumn, LookupMatch match, QObject *parent)
    : QAbstractTableModel(parent)
    , m_rows(std::move(rows))
    , m_codeColumn(codeColumn)
    , m_match(match)
{
    setFilter({});
}

void LookupModel::setFilter(const QString &text)
{
    beginResetModel();
    m_shown.clear();
    for (int row = 0; row < m_rows->rowCount(); ++row) {
        if (text.isEmpty() || matches(row, text))
            m_shown.push_back(row);
    }
    endResetModel();
}

bool LookupModel::matches(int row, const QString &text) const
{
    for (int column = 0; column < m_rows->columnCount(); ++column) {
        const bool asked = column == m_codeColumn ? m_match.byCode : m_match.byName;
        if (asked && cell(row, column).contains(text, Qt::CaseInsensitive))
            return true;
    }
    return false;
}

QString LookupModel::cell(int row, int column) const
{
    const std::string_view text = m_rows->text(row, column);
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

int LookupModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_shown.size());
}

int LookupModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_rows->columnCount();
}

QVariant LookupModel::data(const QModelIndex &index, int role) const
{
    if (role != Qt::DisplayRole || !index.isValid())
        return {};
    return cell(packetRow(index.row()), index.column());
}

QVariant LookupModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole || orientation != Qt::Horizontal || section < 0 || section >= columnCount())
        return {};
    return m_rows->columnNames()[static_cast<std::size_t>(section)];
}

} // namespace vortaq
