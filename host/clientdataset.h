// SPDX-License-Identifier: MIT
// A row set in memory: loaded whole from the host's data packet, read by column name.
#pragma once

#include "automation/datapacket.h"

#include <QObject>
#include <QString>
#include <QVariant>

#include <string_view>
#include <vector>

/// Reads the packet in place; loading costs nothing per row. After setData() the first row is the current one and the
/// filter is still what it was. Columns are named without regard to letter case; reading an unknown column, or reading
/// without a current row, throws std::runtime_error.
class TClientDataSet : public QObject {
    Q_OBJECT

public:
    explicit TClientDataSet(QObject *parent = nullptr);

    /// Takes what OpenSql returned and replaces all rows. Throws std::runtime_error for anything but a data packet; the
    /// rows stay as they were then.
    void setData(const QVariant &packet);
    /// The rows as loaded, whatever the filter; null before the first load.
    [[nodiscard]] const automation::DataPacketPtr &packet() const noexcept { return m_packet; }

    /// One comparison of a column with a quoted text, such as " FeeTypeCode='01'"; empty text passes every row. Letter
    /// case of the text counts. Throws std::runtime_error for any other condition.
    void setFilter(const QString &condition);
    /// Switching the filter on or off goes to the first visible row.
    void setFiltered(bool filtered);

    [[nodiscard]] int recordCount() const noexcept; ///< visible rows
    [[nodiscard]] bool isEmpty() const noexcept { return recordCount() == 0; }
    [[nodiscard]] bool eof() const noexcept { return m_current >= recordCount(); }
    void first() noexcept { m_current = 0; }
    void next() noexcept;

    [[nodiscard]] int fieldIndex(const QString &name) const;
    [[nodiscard]] QString text(const QString &name) const; ///< empty for null
    [[nodiscard]] bool isNull(const QString &name) const;
    [[nodiscard]] double number(const QString &name) const; ///< 0 for null; throws std::invalid_argument for other text
    [[nodiscard]] int integer(const QString &name) const; ///< as number()

    /// Position in packet() of the current row.
    [[nodiscard]] int packetRow() const;

private:
    void applyFilter();
    [[nodiscard]] std::string_view cell(const QString &name) const;

    automation::DataPacketPtr m_packet;
    QString m_filter;
    bool m_filtered = false;
    bool m_usesVisible = false;
    std::vector<int> m_visible; // packet rows that pass the filter, in order; unused while every row passes
    int m_current = 0;
};
