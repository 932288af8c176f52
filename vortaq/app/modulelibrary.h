// SPDX-License-Identifier: MIT
// One business module: its shared object, its entry points and the form it made.
#pragma once

#include "module/tarnwell_module.h"
#include "vortaq/app/moduleinfo.h"

#include <QLibrary>
#include <QPointer>
#include <QString>
#include <QWidget>

namespace vortaq {

/// Frees its form and unloads the library when it goes; the application object must still exist then. A module that is
/// busy keeps both.
class ModuleLibrary {
public:
    /// Loads the library. Throws StartupError when the file is missing, lacks an entry point or describes itself
    /// wrongly.
    explicit ModuleLibrary(const QString &file);
    ~ModuleLibrary();
    ModuleLibrary(const ModuleLibrary &) = delete;
    ModuleLibrary &operator=(const ModuleLibrary &) = delete;

    [[nodiscard]] const ModuleInfo &info() const { return m_info; }
    /// The form; null before createForm() and after freeForm().
    [[nodiscard]] QWidget *form() const { return m_form; }

    /// Makes the form when there is none. Throws std::runtime_error with the module's status when that fails.
    QWidget &createForm();
    /// Throws std::runtime_error when the module keeps the form: something of it is still open, or its status tells.
    void freeForm();
    void refresh();

private:
    template <typename Function> Function entry(const char *name);
    [[nodiscard]] ModuleInfo readInfo() const;

    QLibrary m_library;
    TarnwellCreateModule m_create = nullptr;
    TarnwellFreeModule m_free = nullptr;
    TarnwellRefreshModule m_refresh = nullptr;
    TarnwellGetModuleInfo m_getInfo = nullptr;
    ModuleInfo m_info;
    QPointer<QWidget> m_form;
};

} // namespace vortaq
