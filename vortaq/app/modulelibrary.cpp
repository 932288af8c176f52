// SPDX-License-Identifier: MIT
// Loads a module and drives its entry points.
#include "vortaq/app/modulelibrary.h"

#include "vortaq/app/exitcode.h"

#include <QDir>
#include <QFileInfo>

#include <array>
#include <cstdint>
#include <cstring>

namespace vortaq {

namespace {

void checkStatus(std::int32_t status, const QString &entry)
{
    if (status == TARNWELL_OK)
        return;
    if (status == TARNWELL_BUSY)
        throw std::runtime_error("功能中还有打开的窗口或者没有完成的操作，请先完成或者关闭，再试一次。");
    const QString code = QString::number(static_cast<std::uint32_t>(status), 16).toUpper();
    throw std::runtime_error(QStringLiteral("模块的 %1 失败，错误码 0x%2。").arg(entry, code).toStdString());
}

} // namespace

ModuleLibrary::ModuleLibrary(const QString &file)
    : m_library(QFileInfo(file).absoluteFilePath())
{
    const QString shown = QDir::toNativeSeparators(m_library.fileName());
    if (!QFileInfo::exists(m_library.fileName()))
        throw StartupError(ExitCode::Module, QStringLiteral("找不到模块“%1”。").arg(shown));
    if (!m_library.load()) {
        throw StartupError(ExitCode::Module,
                           QStringLiteral("无法装入模块“%1”：%2").arg(shown, m_library.errorString()));
    }
    m_create = entry<TarnwellCreateModule>("CreateModule");
    m_free = entry<TarnwellFreeModule>("FreeModule");
    m_refresh = entry<TarnwellRefreshModule>("RefreshModule");
    m_getInfo = entry<TarnwellGetModuleInfo>("GetModuleInfo");
    m_info = readInfo();
}

ModuleLibrary::~ModuleLibrary()
{
    if (m_form) {
        void *form = m_form;
        if (m_free(&form) == TARNWELL_BUSY)
            return; // its code is still running
    }
    m_library.unload();
}

template <typename Function> Function ModuleLibrary::entry(const char *name)
{
    const QFunctionPointer found = m_library.resolve(name);
    if (!found) {
        throw StartupError(ExitCode::Module,
                           QStringLiteral("模块“%1”没有入口“%2”。")
                               .arg(QDir::toNativeSeparators(m_library.fileName()), QLatin1String(name)));
    }
    return reinterpret_cast<Function>(found);
}

ModuleInfo ModuleLibrary::readInfo() const
{
    // The entry point checks no length, so the buffer leaves room for wordier modules.
    std::array<char, 4096> bytes{};
    char *buffer = bytes.data();
    checkStatus(m_getInfo(0, &buffer), QStringLiteral("GetModuleInfo"));
    bytes.back() = '\0';
    const std::optional<ModuleInfo> info = parseModuleInfo(QByteArray(bytes.data()));
    if (!info)
        throw StartupError(
            ExitCode::Module,
            QStringLiteral("模块“%1”的说明无法识别。").arg(QDir::toNativeSeparators(m_library.fileName())));
    return *info;
}

QWidget &ModuleLibrary::createForm()
{
    if (!m_form) {
        void *form = nullptr;
        checkStatus(m_create(&form, 0, 0, 0, 0, 0, 0), QStringLiteral("CreateModule"));
        m_form = static_cast<QWidget *>(form);
    }
    return *m_form;
}

void ModuleLibrary::freeForm()
{
    if (!m_form)
        return;
    void *form = m_form;
    checkStatus(m_free(&form), QStringLiteral("FreeModule"));
}

void ModuleLibrary::refresh()
{
    checkStatus(m_refresh(0, 0), QStringLiteral("RefreshModule"));
}

} // namespace vortaq
