// SPDX-License-Identifier: MIT
// A box that shows an amount through a display format.
#pragma once

#include <QLineEdit>

#include <optional>

/// Read-only: the amount is set by code, the text follows it. Without an amount the box is empty, as it is at first. An
/// amount that is wider than the box is painted as #### and told by a hint; text() is the amount all the same.
class TdxCurrencyEdit : public QLineEdit {
    Q_OBJECT
    Q_PROPERTY(QString value READ valueText WRITE setValue)
    Q_PROPERTY(QString displayFormat READ displayFormat WRITE setDisplayFormat)

public:
    explicit TdxCurrencyEdit(QWidget *parent = nullptr);

    /// 0 when the box is empty.
    [[nodiscard]] long double value() const noexcept { return m_value.value_or(0); }
    [[nodiscard]] bool hasValue() const noexcept { return m_value.has_value(); }
    void setValue(long double value);
    /// Amount text with blanks around it ("         12.50"); text of blanks only empties the box. Throws
    /// std::invalid_argument, and the box keeps its amount, when the text is no number.
    void setValue(const QString &text);
    void clearValue();

    [[nodiscard]] const QString &displayFormat() const noexcept { return m_displayFormat; }
    /// See toolkit/displayformat.h.
    void setDisplayFormat(const QString &format);

protected:
    void paintEvent(QPaintEvent *event) override;
    bool event(QEvent *event) override;

private:
    /// Where the text stands.
    [[nodiscard]] QRect textPlace() const;
    [[nodiscard]] bool isTooWide() const;
    [[nodiscard]] QString valueText() const;
    void showValue();

    std::optional<long double> m_value;
    QString m_displayFormat;
};
