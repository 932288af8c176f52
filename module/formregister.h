// SPDX-License-Identifier: MIT
// The main forms that exist, owned by the host's application object.
#pragma once

#include <QSet>

class TfrmMain;

namespace module {

/// Forms leave the register when they are destroyed, whoever does it. Forms still there when the application ends, or
/// when the module is unloaded, are destroyed then.
class FormRegister {
public:
    [[nodiscard]] static FormRegister &instance();

    FormRegister(const FormRegister &) = delete;
    FormRegister &operator=(const FormRegister &) = delete;

    [[nodiscard]] TfrmMain *create();
    /// Null when no living form of this module has the address.
    [[nodiscard]] TfrmMain *find(const void *address) const;

    /// The form created last, null before the first one; never cleared.
    [[nodiscard]] TfrmMain *mainForm() const noexcept { return m_mainForm; }

private:
    FormRegister();
    ~FormRegister();
    static void destroyAll();

    QSet<TfrmMain *> m_forms;
    TfrmMain *m_mainForm = nullptr; // may dangle once the form is gone: only ever compared with null
};

} // namespace module
