// SPDX-License-Identifier: MIT
// The header of a list, with a left band of columns that stay in place when the others scroll sideways.
#pragma once

#include <QHeaderView>

namespace toolkit::treelist {

/// Columns are never moved: visual and logical positions are one. All x are in the viewport's coordinates.
class Header final : public QHeaderView {
    Q_OBJECT

public:
    explicit Header(QWidget *parent);

    void setBand(int columns);
    /// How many leading columns stay in place now: those of the band that leave a quarter of the width to the rest,
    /// so that on a narrow window every column can still be reached.
    [[nodiscard]] int bandColumns() const;
    [[nodiscard]] int bandWidth() const;
    [[nodiscard]] bool isInBand(int column) const { return column < bandColumns(); }
    [[nodiscard]] int cellLeft(int column) const;
    /// The header's own position of what stands at x.
    [[nodiscard]] int unscrolled(int x) const { return x < bandWidth() ? x - offset() : x; }
    /// Whether there is nothing to tell apart: no captions, or a single column (a tree).
    [[nodiscard]] bool isPlain() const { return isHidden() || count() - hiddenSectionCount() == 1; }
    /// The next column in a direction (1 or -1) that is shown; -1 when there is none.
    [[nodiscard]] int shownColumnBeside(int column, int step) const;

    [[nodiscard]] QSize sizeHint() const override;

Q_SIGNALS:
    /// A width changed under the user's mouse.
    void resizedByUser(int column);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    /// The column of the band whose right edge can be dragged at x; -1 for none.
    [[nodiscard]] int bandEdgeAt(int x) const;
    [[nodiscard]] QMouseEvent mapped(const QMouseEvent &event) const;

    int m_band = 0;
    bool m_pressed = false;
    bool m_pressedInBand = false;
    int m_resized = -1; // column of the band whose edge is dragged
    int m_grabOffset = 0;
};

} // namespace toolkit::treelist
