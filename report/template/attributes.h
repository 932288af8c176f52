// SPDX-License-Identifier: MIT
// The attributes of one element, each read with its type; what is wrong with one is reported at its line.
#pragma once

#include "report/geometry.h"
#include "report/template/template.h"

#include <QString>
#include <QStringList>
#include <QXmlStreamAttributes>

#include <optional>
#include <span>
#include <vector>

namespace report {

/// Every function takes the attribute it asks for; checkAllTaken() then refuses the others. All throw TemplateError.
class Attributes {
public:
    Attributes(const QXmlStreamAttributes &attributes, QString file, int line, QString element);

    template <typename Value> struct Choice {
        QStringView name;
        Value value;
    };

    [[nodiscard]] std::optional<QString> text(const char *name);
    /// Millimetres, 0 to 2000.
    [[nodiscard]] std::optional<Unit> length(const char *name);
    [[nodiscard]] Unit requiredLength(const char *name);
    /// Points, 4 to 200, in tenths.
    [[nodiscard]] std::optional<int> fontSize(const char *name);
    /// A whole number from 1 to `most`.
    [[nodiscard]] std::optional<int> count(const char *name, int most);
    [[nodiscard]] std::optional<bool> yesOrNo(const char *name);
    [[nodiscard]] std::optional<QRgb> colour(const char *name);
    /// Widths by commas; "*" takes what the others leave of `total`.
    [[nodiscard]] std::optional<std::vector<Unit>> widths(const char *name, Unit total);
    /// "all", "none", or some of left, top, right, bottom by blanks.
    [[nodiscard]] std::optional<Sides> sides(const char *name);

    template <typename Value>
    [[nodiscard]] std::optional<Value> choice(const char *name, std::span<const Choice<Value>> choices)
    {
        const auto given = text(name);
        if (!given)
            return std::nullopt;
        QStringList allowed;
        for (const Choice<Value> &each : choices) {
            if (each.name == *given)
                return each.value;
            allowed.append(each.name.toString());
        }
        fail(name, QStringLiteral("只能是 %1").arg(allowed.join(QStringLiteral("、"))));
    }

    void checkAllTaken() const;
    [[noreturn]] void fail(const char *name, const QString &reason) const;

private:
    [[nodiscard]] Unit lengthOf(const char *name, QStringView text) const;

    QXmlStreamAttributes m_attributes;
    QString m_file;
    int m_line;
    QString m_element;
};

} // namespace report
