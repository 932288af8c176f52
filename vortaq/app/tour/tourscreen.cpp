// SPDX-License-Identifier: MIT
// Describes the screen to Qt's offscreen platform, whose own default is smaller than the windows.
#include "vortaq/app/tour/tourscreen.h"

#include <QSize>

#include <algorithm>

namespace vortaq {

namespace {

QtMessageHandler previousHandler = nullptr;

/// The offscreen platform remarks at every window on what it cannot do, which nobody asked of it.
void passOn(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (!message.startsWith(QStringLiteral("This plugin does not support")))
        previousHandler(type, context, message);
}

} // namespace

TourScreen::TourScreen(bool isTour)
{
    QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    if (!isTour || (!platform.isEmpty() && platform != "offscreen"))
        return;
    platform = QByteArrayLiteral("offscreen");
    if (m_configuration.open()) {
        const QSize size = QSize(1440, 900) * std::max(1.0, qEnvironmentVariable("QT_SCALE_FACTOR").toDouble());
        m_configuration.write(R"({"screens":[{"name":"tour","x":0,"y":0,"width":)" + QByteArray::number(size.width())
                              + R"(,"height":)" + QByteArray::number(size.height())
                              + R"(,"logicalDpi":96,"logicalBaseDpi":96,"dpr":1}]})");
        m_configuration.close();
        platform += ":configfile=" + m_configuration.fileName().toUtf8();
    }
    previousHandler = qInstallMessageHandler(&passOn);
    qputenv("QT_QPA_PLATFORM", platform);
}

} // namespace vortaq
