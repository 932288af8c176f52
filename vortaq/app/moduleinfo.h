// SPDX-License-Identifier: MIT
// What a module says of itself.
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace vortaq {

/// A name with the caption that follows it in parentheses, for example Logic(业务管理).
struct CaptionedKey {
    QString key;
    QString caption; ///< the key itself when there is no caption
};

struct ModuleInfo {
    QString library;
    CaptionedKey category; ///< the menu
    CaptionedKey function; ///< the command in it
    QString placement; ///< the fourth field; this host has one menu a category and needs no more
};

/// Reads the comma-separated GBK text of GetModuleInfo; nothing when a field is missing or the bytes are no GBK.
[[nodiscard]] std::optional<ModuleInfo> parseModuleInfo(const QByteArray &gbk);

} // namespace vortaq
