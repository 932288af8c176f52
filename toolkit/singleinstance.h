// SPDX-License-Identifier: MIT
// Modal dialogs of which one instance exists at a time.
#pragma once

#include <memory>
#include <utility>

namespace toolkit {

/// Shows a modal dialog of which one instance exists at a time: `instance` is the unit's reference to it, empty before
/// and after, however the dialog ends.
template <typename Dialog, typename... Arguments>
void showSingleInstance(std::unique_ptr<Dialog> &instance, Arguments &&...arguments)
{
    struct Freed {
        std::unique_ptr<Dialog> &instance;
        ~Freed() { instance.reset(); }
    };
    if (!instance)
        instance = std::make_unique<Dialog>(std::forward<Arguments>(arguments)...);
    const Freed freed{instance};
    instance->ShowModal();
}

} // namespace toolkit
