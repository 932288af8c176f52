// SPDX-License-Identifier: MIT
// What is wrong with a template, and where.
#pragma once

#include <QString>

#include <stdexcept>

namespace report {

/// `what()` reads "文件, 第N行: 原因" (UTF-8).
class TemplateError : public std::runtime_error {
public:
    TemplateError(const QString &file, int line, const QString &reason)
        : std::runtime_error(QStringLiteral("%1, 第%2行: %3").arg(file, QString::number(line), reason).toStdString())
        , m_line(line)
    {
    }

    /// Counts from 1.
    [[nodiscard]] int line() const noexcept { return m_line; }

private:
    int m_line;
};

} // namespace report
