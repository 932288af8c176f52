// SPDX-License-Identifier: MIT
#include "report/values/rowsource.h"

#include "host/clientdataset.h"

namespace report {

RowSource::RowSource(TClientDataSet &dataSet)
    : m_packet(dataSet.packet())
    , m_rowCount(dataSet.recordCount())
{
    if (!m_packet || m_rowCount == m_packet->rowCount())
        return;
    m_visible.reserve(static_cast<std::size_t>(m_rowCount));
    for (dataSet.first(); !dataSet.eof(); dataSet.next())
        m_visible.push_back(dataSet.packetRow());
    dataSet.first();
}

QString RowSource::text(int row, int column) const
{
    const int packetRow = m_visible.empty() ? row : m_visible[static_cast<std::size_t>(row)];
    const std::string_view utf8 = m_packet->text(packetRow, column);
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

} // namespace report
