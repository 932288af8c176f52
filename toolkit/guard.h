// SPDX-License-Identifier: MIT
// Between an event and its handler: an error that the handler lets out reaches the host's error display, and the
// program goes on.
#pragma once

#include "automation/error.h"
#include "automation/errordisplay.h"

#include <QObject>

#include <type_traits>
#include <utility>

namespace toolkit {

/// Runs `action`; returns whether it ended without an error.
template <typename Action> bool guarded(Action &&action) noexcept
{
    try {
        std::forward<Action>(action)();
        return true;
    } catch (const std::exception &error) {
        automation::displayError(automation::messageOf(error));
    } catch (...) {
        automation::displayError(QStringLiteral("未知错误。"));
    }
    return false;
}

/// Calls `handler` with the signal's arguments, or with none when it takes none.
template <typename Handler, typename... Arguments> void callHandler(const Handler &handler, Arguments &&...arguments)
{
    if constexpr (std::is_invocable_v<const Handler &, Arguments...>)
        handler(std::forward<Arguments>(arguments)...);
    else
        handler();
}

/// Connects a signal to a handler that runs guarded. `handler` takes the signal's arguments or none.
template <typename Sender, typename Signal, typename Handler>
QMetaObject::Connection connectGuarded(const Sender *sender, Signal signal, const QObject *context, Handler handler)
{
    return QObject::connect(sender, signal, context, [handler = std::move(handler)](auto &&...arguments) {
        guarded([&] { callHandler(handler, std::forward<decltype(arguments)>(arguments)...); });
    });
}

} // namespace toolkit
