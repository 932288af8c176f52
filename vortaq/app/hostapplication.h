// SPDX-License-Identifier: MIT
// The application object: no exception of an event handler gets past it.
#pragma once

#include <QApplication>

namespace vortaq {

class HostApplication : public QApplication {
    Q_OBJECT

public:
    HostApplication(int &argc, char **argv);

    /// Hands an escaping exception to the error display and lets the program go on.
    bool notify(QObject *receiver, QEvent *event) override;
};

} // namespace vortaq
