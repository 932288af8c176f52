// SPDX-License-Identifier: MIT
// The current user's data sources in the registry.
#include "Common/odbcstore.h"

#include <windows.h>

#include <algorithm>

namespace common {

namespace {

std::wstring wide(const std::string &utf8)
{
    const int bytes = static_cast<int>(utf8.size());
    std::wstring text(static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, utf8.data(), bytes, nullptr, 0)), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, utf8.data(), bytes, text.data(), static_cast<int>(text.size()));
    return text;
}

bool store(const OdbcEntry &entry)
{
    const std::wstring path = L"Software\\ODBC\\ODBC.INI\\" + wide(entry.section);
    HKEY key = nullptr;
    if (RegCreateKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, nullptr, 0, KEY_SET_VALUE, nullptr, &key, nullptr)
        != ERROR_SUCCESS)
        return false;
    const std::wstring value = wide(entry.value);
    const auto bytes = static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t)); // with the end
    const LSTATUS state =
        RegSetValueExW(key, wide(entry.key).c_str(), 0, REG_SZ, reinterpret_cast<const BYTE *>(value.c_str()), bytes);
    RegCloseKey(key);
    return state == ERROR_SUCCESS;
}

} // namespace

bool storeOdbcEntries(const std::vector<OdbcEntry> &entries)
{
    return std::ranges::all_of(entries, store);
}

} // namespace common
