// SPDX-License-Identifier: MIT
// Messages on the screen: a modal error box, and a hint that asks for no click and leaves the focus where it is.
#pragma once

#include "vortaq/app/usermessages.h"

namespace vortaq {

class ScreenMessages : public UserMessages {
public:
    /// A modal box named "alertBox", titled by the host, over the window at work.
    void alert(const QString &message) override;
    /// A label named "hintLabel" over the window at work, which a later hint replaces.
    void hint(const QString &message) override;
};

} // namespace vortaq
