// SPDX-License-Identifier: MIT
// A line of plain text that gives way: what does not fit is elided, and the tooltip has it whole.
#pragma once

#include <QLabel>

namespace vortaq {

class ElidedLabel : public QLabel {
    Q_OBJECT

public:
    explicit ElidedLabel(Qt::TextElideMode mode, QWidget *parent = nullptr);

    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    [[nodiscard]] QString shownText() const;

    Qt::TextElideMode m_mode;
};

} // namespace vortaq
