// SPDX-License-Identifier: MIT
// The pages of the main window. Where the window is smaller than a page can be, the page scrolls, so that its buttons
// and the status bar stay in reach on every screen.
#pragma once

#include <QScrollArea>

namespace vortaq {

class PageArea : public QScrollArea {
    Q_OBJECT

public:
    PageArea(QWidget *pages, QWidget *parent);

signals:
    /// A component of a page offers a line about itself (a QStatusTipEvent), or takes it back with an empty text. Menus
    /// that pass by have their own way to the status bar.
    void tipOffered(const QString &tip);

protected:
    bool event(QEvent *event) override;
};

} // namespace vortaq
