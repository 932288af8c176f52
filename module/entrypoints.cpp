// SPDX-License-Identifier: MIT
// The four exported entry points.
#include "module/formregister.h"
#include "module/moduleinfo.h"
#include "module/tarnwell_module.h"
#include "toolkit/guard.h"
#include "uMain/TfrmMain.h"

#include <QDebug>

#include <cstring>
#include <memory>

using module::FormRegister;

namespace {

template <typename Body> int32_t caught(Body body) noexcept
{
    try {
        return body();
    } catch (const std::exception &error) {
        qWarning("%s", error.what());
    } catch (...) {
        qWarning("unknown error in an entry point");
    }
    return TARNWELL_UNEXPECTED;
}

} // namespace

int32_t CreateModule(void **form, intptr_t, intptr_t, intptr_t, intptr_t, intptr_t, intptr_t)
{
    if (form == nullptr)
        return TARNWELL_UNEXPECTED;
    return caught([form] {
        *form = static_cast<QWidget *>(FormRegister::instance().create());
        return TARNWELL_OK;
    });
}

int32_t FreeModule(void **form)
{
    return caught([form] {
        if (FormRegister::instance().mainForm() == nullptr)
            return TARNWELL_OK;
        TfrmMain *passed = form == nullptr ? nullptr : FormRegister::instance().find(*form);
        if (passed == nullptr)
            return TARNWELL_UNEXPECTED;
        if (toolkit::HandlerAtWork::any())
            return TARNWELL_BUSY;
        const std::unique_ptr<TfrmMain> destroyed(passed);
        return TARNWELL_OK;
    });
}

int32_t RefreshModule(intptr_t, intptr_t)
{
    return TARNWELL_OK;
}

int32_t GetModuleInfo(intptr_t, char **buffer)
{
    if (buffer == nullptr || *buffer == nullptr)
        return TARNWELL_UNEXPECTED;
    return caught([buffer] {
        std::memcpy(*buffer, module::ModuleInfo.data(), module::ModuleInfo.size());
        return TARNWELL_OK;
    });
}
