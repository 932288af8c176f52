// SPDX-License-Identifier: MIT
// The line below a list with one cell a column (totals).
#pragma once

#include <QWidget>

#include <functional>
#include <vector>

class TdxTreeListColumn;

namespace toolkit::treelist {

class Header;

/// Cells stand under their columns and follow the header's widths, scrolling and band.
class Footer final : public QWidget {
    Q_OBJECT

public:
    using ColumnAt = std::function<const TdxTreeListColumn &(int position)>;

    Footer(QWidget *parent, const Header &header, ColumnAt columnAt);

    void setText(int column, const QString &text);
    [[nodiscard]] QString text(int column) const;
    void clear();

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    /// The whole text of a cell that cuts it short, as a hint.
    bool event(QEvent *event) override;

private:
    [[nodiscard]] QRect cellRect(int column) const;
    void paintCell(QPainter &painter, int column) const;
    /// The column whose cell is seen at x; -1 for none.
    [[nodiscard]] int columnSeenAt(int x) const;

    const Header &m_header;
    ColumnAt m_columnAt;
    std::vector<QString> m_texts;
};

} // namespace toolkit::treelist
