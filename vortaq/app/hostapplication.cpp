// SPDX-License-Identifier: MIT
// Catches what handlers let through.
#include "vortaq/app/hostapplication.h"

#include "automation/error.h"
#include "automation/errordisplay.h"

namespace vortaq {

HostApplication::HostApplication(int &argc, char **argv)
    : QApplication(argc, argv)
{
}

bool HostApplication::notify(QObject *receiver, QEvent *event)
{
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception &error) {
        automation::displayError(automation::messageOf(error));
    } catch (...) {
        automation::displayError(QStringLiteral("发生了未知的错误。"));
    }
    return true;
}

} // namespace vortaq
