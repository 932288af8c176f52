// SPDX-License-Identifier: MIT
// A text of a template with fields, variables and functions in place.
#pragma once

#include <QString>

#include <vector>

namespace report {

/// What stands between the brackets: "[FreeFee]", "[Sum(Fee)|,0.00]", "[Capital(Sum(Fee))]".
struct Expression {
    enum class Kind {
        Name, ///< a field or a variable
        Sum, ///< sum of a field over the rows that the band closes
        Count ///< number of those rows
    };
    Kind kind = Kind::Name;
    QString name; ///< empty for Count
    bool inCapitals = false; ///< the amount in Chinese capital numerals
    QString format; ///< display format of a number; empty: as it stands

    friend bool operator==(const Expression &, const Expression &) = default;
};

/// A piece of a text: literal text, then an expression unless the text ends here.
struct PatternPiece {
    QString literal;
    bool hasExpression = false;
    Expression expression;

    friend bool operator==(const PatternPiece &, const PatternPiece &) = default;
};

struct TextPattern {
    std::vector<PatternPiece> pieces;
    bool hidesEmpty = false; ///< without a value none of it is printed, so that no unit stands alone

    /// The only content is one expression with a display format, so that the text is a number.
    [[nodiscard]] bool isNumber() const noexcept;
    /// Digits stand in it that must never be cut off.
    [[nodiscard]] bool holdsNumber() const noexcept;
    /// Numbers with a display format are all that it holds beside its literal text.
    [[nodiscard]] bool isAmount() const noexcept;
    /// It is the same whatever the values.
    [[nodiscard]] bool isLiteral() const noexcept;
    [[nodiscard]] bool isEmpty() const noexcept { return pieces.empty(); }
};

/// "[[" stands for one bracket. Throws std::invalid_argument with the reason (UTF-8, in Chinese).
[[nodiscard]] TextPattern parsePattern(const QString &text);

} // namespace report
