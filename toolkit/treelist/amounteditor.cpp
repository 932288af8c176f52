// SPDX-License-Identifier: MIT
// What may be typed, and what the clerk is told about the rest.
#include "toolkit/treelist/amounteditor.h"

#include "toolkit/TdxTreeListColumn.h"
#include "toolkit/datatip.h"
#include "values/displayformat.h"

#include <QApplication>
#include <QTimer>
#include <QValidator>

namespace toolkit::treelist {

namespace {

constexpr qsizetype WholeDigits = 13;
constexpr qsizetype Decimals = 2;
constexpr qsizetype GroupSize = 3;

bool isDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

QChar narrow(QChar character)
{
    constexpr char16_t wideOffset = u'０' - u'0';
    if (character >= u'！' && character <= u'～')
        return QChar(static_cast<char16_t>(character.unicode() - wideOffset));
    return character == u'。' ? u'.' : character.isSpace() ? u' ' : character;
}

/// Digits with commas where each group behind the first has three.
bool isGrouped(QStringView whole)
{
    const auto groups = whole.split(u',');
    for (qsizetype i = 0; i < groups.size(); ++i) {
        const bool fits = i == 0 ? groups[i].size() <= GroupSize : groups[i].size() == GroupSize;
        if (groups.size() > 1 && (!fits || groups[i].isEmpty()))
            return false;
    }
    return true;
}

/// Whether the text is an amount, may become one, or never will.
QValidator::State stateOf(QStringView text, bool thousands)
{
    if (!text.isEmpty() && (text.front() == u'-' || text.front() == u'+'))
        text = text.sliced(1);
    const qsizetype point = text.indexOf(u'.');
    const QStringView whole = point < 0 ? text : text.first(point);
    const QStringView fraction = point < 0 ? QStringView() : text.sliced(point + 1);
    const auto isPlace = [thousands](QChar character) {
        return isDigit(character) || (thousands && character == u',');
    };
    const bool possible = !whole.startsWith(u',') && std::ranges::all_of(whole, isPlace)
        && std::ranges::all_of(fraction, isDigit) && whole.size() - whole.count(u',') <= WholeDigits
        && fraction.size() <= Decimals;
    if (!possible)
        return QValidator::Invalid;
    const bool complete = std::ranges::any_of(text, isDigit) && isGrouped(whole);
    return complete ? QValidator::Acceptable : QValidator::Intermediate;
}

QString narrowed(QString text)
{
    std::ranges::transform(text, text.begin(), narrow);
    return text;
}

} // namespace

std::optional<QString> typedAmount(const QString &text, bool thousands)
{
    QString amount = narrowed(text).trimmed();
    if (stateOf(amount, thousands) != QValidator::Acceptable)
        return std::nullopt;
    return amount.remove(u',');
}

class AmountEditor::Validator final : public QValidator {
public:
    Validator(bool thousands, QObject *parent)
        : QValidator(parent)
        , m_thousands(thousands)
    {
    }

    void setBeginning(const QString &text) { m_beginning = text; }
    [[nodiscard]] const QString &beginning() const { return m_beginning; }

    State validate(QString &text, int &position) const override
    {
        if (text == m_beginning)
            return Acceptable;
        const qsizetype before = text.size();
        text = narrowed(text);
        while (text.startsWith(u' '))
            text.remove(0, 1);
        position = static_cast<int>(std::max<qsizetype>(0, position - (before - text.size())));
        while (text.endsWith(u' '))
            text.chop(1);
        position = std::min(position, static_cast<int>(text.size()));
        return stateOf(text, m_thousands);
    }

private:
    bool m_thousands;
    QString m_beginning;
};

AmountEditor::AmountEditor(const TdxTreeListCurrencyColumn &column, QWidget *parent)
    : QLineEdit(parent)
    , m_thousands(values::showsThousands(column.displayFormat()))
    , m_validator(new Validator(m_thousands, this))
{
    setValidator(m_validator);
    setInputMethodHints(Qt::ImhFormattedNumbersOnly);
    connect(this, &QLineEdit::inputRejected, this, &AmountEditor::tellWhatIsExpected);
}

void AmountEditor::begin(const QString &text)
{
    m_validator->setBeginning(text);
    setText(text);
}

bool AmountEditor::hasChanged() const
{
    return text() != m_validator->beginning();
}

QString AmountEditor::expected() const
{
    return QStringLiteral("这里只能输入金额：最多%1位整数和%2位小数，例如 %3。")
        .arg(WholeDigits)
        .arg(Decimals)
        .arg(m_thousands ? QStringLiteral("1,234.50") : QStringLiteral("1234.50"));
}

void AmountEditor::tellWhatIsExpected() const
{
    showDataTip(mapToGlobal(rect().bottomLeft()), expected(), parentWidget(), geometry());
}

void AmountEditor::tellItIsDropped() const
{
    const QString text = QStringLiteral("没有输完的金额未采用，仍为原来的数值。\n") + expected();
    const QPoint place = mapToGlobal(rect().bottomLeft());
    // The rest of the click, or of the change of focus, would take the hint away again.
    const int delay = QGuiApplication::mouseButtons() == Qt::NoButton ? 0 : QApplication::doubleClickInterval();
    QTimer::singleShot(delay, parentWidget(), [place, text, list = parentWidget(), area = geometry()] {
        if (list->isActiveWindow())
            showDataTip(place, text, list, area);
    });
}

} // namespace toolkit::treelist
