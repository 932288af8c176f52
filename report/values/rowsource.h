// SPDX-License-Identifier: MIT
// The rows of a client data set as they stood when a report began.
#pragma once

#include "automation/datapacket.h"

#include <QString>

#include <vector>

class TClientDataSet;

namespace report {

/// Shares the data set's packet; later changes of the data set do not reach it.
class RowSource {
public:
    RowSource() = default;
    /// Takes the visible rows. The data set stands on its first row afterwards. One that was never loaded has no rows
    /// and no columns.
    explicit RowSource(TClientDataSet &dataSet);

    [[nodiscard]] int rowCount() const noexcept { return m_rowCount; }
    /// -1 when there is none of that name, letter case ignored.
    [[nodiscard]] int column(const QString &name) const { return m_packet ? m_packet->columnIndex(name) : -1; }
    /// Empty for null.
    [[nodiscard]] QString text(int row, int column) const;

private:
    automation::DataPacketPtr m_packet;
    std::vector<int> m_visible; // packet rows, when a filter leaves some out
    int m_rowCount = 0;
};

} // namespace report
