// SPDX-License-Identifier: MIT
// The rows of a code look-up, narrowed down as the clerk types.
#pragma once

#include "vortaq/app/lookup/lookupmatch.h"

#include "automation/datapacket.h"

#include <QAbstractTableModel>

#include <vector>

namespace vortaq {

class LookupModel : public QAbstractTableModel {
    Q_OBJECT

public:
    LookupModel(automation::DataPacketPtr rows, int codeColumn, LookupMatch match, QObject *parent = nullptr);

    /// Keeps the rows in which the code or another column contains `text`, letter case ignored; an empty text keeps
    /// all.
    void setFilter(const QString &text);
    /// The packet's row behind a shown one.
    [[nodiscard]] int packetRow(int shownRow) const { return m_shown[static_cast<std::size_t>(shownRow)]; }

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    [[nodiscard]] bool matches(int row, const QString &text) const;
    [[nodiscard]] QString cell(int row, int column) const;

    automation::DataPacketPtr m_rows;
    int m_codeColumn;
    LookupMatch m_match;
    std::vector<int> m_shown;
};

} // namespace vortaq
