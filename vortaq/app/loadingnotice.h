// SPDX-License-Identifier: MIT
// In the status bar while the form on the screen has not been loaded.
#pragma once

#include <QWidget>

namespace vortaq {

/// Says that the form is not loaded and offers to try again; the button takes the focus that is given to the notice.
class LoadingNotice : public QWidget {
    Q_OBJECT

public:
    explicit LoadingNotice(QWidget *parent = nullptr);

signals:
    void retryWanted();
};

} // namespace vortaq
