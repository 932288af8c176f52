// SPDX-License-Identifier: MIT
// The line below a list with one cell a column (totals).
#pragma once

#include <QWidget>

#include <functional>
#include <vector>

namespace toolkit::treelist {

class Header;

/// Cells stand under their columns and follow the header's widths, scrolling and band.
class Footer final : public QWidget {
    Q_OBJECT

public:
    using AlignmentOf = std::function<Qt::Alignment(int column)>;

    Footer(QWidget *parent, const Header &header, AlignmentOf alignmentOf);

    void setText(int column, const QString &text);
    [[nodiscard]] QString text(int column) const;
    void clear();

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void paintCell(QPainter &painter, int column) const;

    const Header &m_header;
    AlignmentOf m_alignmentOf;
    std::vector<QString> m_texts;
};

} // namespace toolkit::treelist
