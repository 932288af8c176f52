// SPDX-License-Identifier: MIT
// A message that appears over a window for a few seconds.
#pragma once

#include <QLabel>
#include <QTimer>

namespace vortaq {

/// Lies in the free part of its window's menu bar, where it hides no data and moves nothing; a longer message takes the
/// whole row and then as many lines as it needs. Lets clicks through, takes no focus, and hides by itself.
class HintLabel : public QLabel {
    Q_OBJECT

public:
    explicit HintLabel(QWidget *window);

    void display(const QString &message);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void place();
    /// The room for one line: beside the menus, or over them when that is too narrow for `needed` pixels.
    [[nodiscard]] QRect strip(int needed) const;

    QTimer m_timer;
};

} // namespace vortaq
