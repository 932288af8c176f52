// SPDX-License-Identifier: MIT
// A surface over a control, to be drawn on at any time.
#pragma once

#include <QImage>
#include <QWidget>

namespace common {

/// Lies over its control, of which it is a child, and follows its size; what was drawn stays until clear(). Keys and
/// mouse go to the control. Over a grid, or whatever else scrolls, it covers the whole control with header and scroll
/// bars, not the viewport alone: what was drawn stays in its place when the rows scroll.
class DrawingSurface final : public QWidget {
    Q_OBJECT

public:
    explicit DrawingSurface(QWidget &control);

    /// What a QPainter draws on, in the control's coordinates. Call update() when the painter is done. The image is
    /// replaced when the control is resized.
    [[nodiscard]] QImage &image() noexcept { return m_image; }
    void clear();

    // QObject
    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void follow();

    QWidget &m_control;
    QImage m_image;
};

} // namespace common
