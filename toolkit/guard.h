// SPDX-License-Identifier: MIT
// Between an event and its handler: an error that the handler lets out reaches the host's error display, with the name
// of what the clerk was doing, and the program goes on.
#pragma once

#include "automation/error.h"
#include "automation/errordisplay.h"

#include <QObject>

#include <type_traits>
#include <utility>

namespace toolkit {

/// A handler at work, from its first line to its last: it may stand below a dialog that it opened, or let events run in
/// the middle of a change.
class HandlerAtWork {
public:
    HandlerAtWork() noexcept;
    ~HandlerAtWork();
    HandlerAtWork(const HandlerAtWork &) = delete;
    HandlerAtWork &operator=(const HandlerAtWork &) = delete;

    /// Whether any handler of the module is at work.
    [[nodiscard]] static bool any() noexcept;
};

/// "载入窗口时出错：", a line break and the error; the error alone when `doing` is empty.
[[nodiscard]] QString errorWhile(const QString &doing, const QString &error);

/// Runs `action`; returns whether it ended without an error. `doing` is what the clerk calls it, such as "载入窗口".
template <typename Action> bool guarded(const QString &doing, Action &&action) noexcept
{
    const HandlerAtWork atWork;
    try {
        std::forward<Action>(action)();
        return true;
    } catch (...) {
        automation::displayError(errorWhile(doing, automation::messageOfCurrent()));
    }
    return false;
}

/// For what only passes an event on: the handlers behind it say what they do.
template <typename Action> bool guarded(Action &&action) noexcept
{
    return guarded(QString(), std::forward<Action>(action));
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
QMetaObject::Connection connectGuarded(const Sender *sender, Signal signal, const QObject *context,
                                       const QString &doing, Handler handler)
{
    return QObject::connect(sender, signal, context, [doing, handler = std::move(handler)](auto &&...arguments) {
        guarded(doing, [&] { callHandler(handler, std::forward<decltype(arguments)>(arguments)...); });
    });
}

/// The same within a component, where there is nothing that a clerk has a name for.
template <typename Sender, typename Signal, typename Handler>
QMetaObject::Connection connectGuarded(const Sender *sender, Signal signal, const QObject *context, Handler handler)
{
    return connectGuarded(sender, signal, context, QString(), std::move(handler));
}

} // namespace toolkit
