// SPDX-License-Identifier: MIT
// A message that appears over a window for a few seconds.
#pragma once

#include <QLabel>
#include <QTimer>

namespace vortaq {

/// Lies over the top of its parent, lets clicks through, takes no focus, and hides by itself.
class HintLabel : public QLabel {
    Q_OBJECT

public:
    explicit HintLabel(QWidget *window);

    void display(const QString &message);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void place();

    QTimer m_timer;
};

} // namespace vortaq
