// SPDX-License-Identifier: MIT
// Typing an amount into a cell.
#pragma once

#include <QLineEdit>
#include <QString>

#include <optional>

class TdxTreeListCurrencyColumn;

namespace toolkit::treelist {

/// The amount that a text holds, as it is stored: a sign, up to 13 digits, a point and up to two more, as decimal(15,2)
/// has them. With `thousands`, commas may stand between groups of three digits; they are taken out. Wide characters and
/// the full stop of Chinese input methods count as the narrow ones. Empty when the text is no such amount.
[[nodiscard]] std::optional<QString> typedAmount(const QString &text, bool thousands);

/// Takes nothing that could not become an amount, by whatever way it comes, and says at once what it expects. The text
/// that the cell held is always taken back, amount or not.
class AmountEditor final : public QLineEdit {
    Q_OBJECT

public:
    AmountEditor(const TdxTreeListCurrencyColumn &column, QWidget *parent);

    /// Begins with the cell's text.
    void begin(const QString &text);
    [[nodiscard]] bool hasChanged() const;
    /// Below the editor.
    void tellWhatIsExpected() const;
    /// Below the cell, once the editor has gone.
    void tellItIsDropped() const;

private:
    class Validator;

    [[nodiscard]] QString expected() const;

    bool m_thousands;
    Validator *m_validator;
};

} // namespace toolkit::treelist
