// SPDX-License-Identifier: MIT
#include "uMain/BillNotes.h"

#include "toolkit/TdxCurrencyEdit.h"
#include "toolkit/TdxTreeList.h"
#include "toolkit/guard.h"
#include "uMain/billtrees.h"
#include "values/displayformat.h"

#include <QCoreApplication>
#include <QHelpEvent>
#include <QStatusTipEvent>
#include <QToolTip>

#include <stdexcept>
#include <utility>

namespace {

TdxTreeListNode nodeAt(const TdxTreeList &tree, const QModelIndex &index)
{
    if (!index.isValid())
        return {};
    const QModelIndex group = index.parent();
    return group.isValid() ? tree.node(group.row()).child(index.row()) : tree.node(index.row());
}

} // namespace

BillNotes::BillNotes(TdxTreeList &tree, QWidget &page, const TdxCurrencyEdit &money, std::vector<Amount> amounts)
    : QObject(&page)
    , m_tree(tree)
    , m_page(page)
    , m_money(money)
    , m_amounts(std::move(amounts))
{
    m_tree.viewport()->installEventFilter(this);
    m_page.installEventFilter(this);
}

void BillNotes::setChosen(const TdxTreeListNode &bill)
{
    m_chosen = bill ? facts(bill).join(QStringLiteral("，")) : QString();
    if (m_page.isVisible())
        tellStatus(m_chosen);
}

bool BillNotes::eventFilter(QObject *watched, QEvent *event)
{
    bool isDone = false;
    toolkit::guarded(QStringLiteral("显示制单提示"), [&] {
        if (watched == &m_page && event->type() == QEvent::Show)
            tellStatus(m_chosen);
        else if (watched == &m_page && event->type() == QEvent::Hide)
            tellStatus(QString());
        else if (watched != &m_page && event->type() == QEvent::ToolTip) {
            const auto &help = static_cast<const QHelpEvent &>(*event);
            isDone = showTip(help.pos(), help.globalPos());
        }
    });
    return isDone;
}

QStringList BillNotes::facts(const TdxTreeListNode &bill) const
{
    QStringList facts(QStringLiteral("制单号：") + bill.text(billnode::BillNo));
    const QString records = bill.text(billnode::Records);
    if (!records.isEmpty())
        facts.append(QStringLiteral("人次：") + records);
    for (const Amount &amount : m_amounts)
        facts.append(QString::fromUtf8(amount.caption) + QStringLiteral("：") + amountText(bill.text(amount.position)));
    return facts;
}

QString BillNotes::amountText(const QString &amount) const
{
    try {
        return values::formatFloat(m_money.displayFormat(), amount.isEmpty() ? 0 : values::parseAmount(amount));
    } catch (const std::invalid_argument &) {
        return amount; // as in the lists: sums complain about it
    }
}

bool BillNotes::showTip(const QPoint &place, const QPoint &onScreen) const
{
    const QModelIndex index = m_tree.indexAt(place);
    const TdxTreeListNode node = nodeAt(m_tree, index);
    if (!isBillNode(node))
        return false;
    QToolTip::showText(onScreen, (QStringList(node.text(billnode::Text)) + facts(node)).join(u'\n'), m_tree.viewport(),
                       m_tree.visualRect(index));
    return true;
}

void BillNotes::tellStatus(const QString &text)
{
    if (text == std::exchange(m_told, text))
        return; // what the host shows there is not wiped away for nothing
    QStatusTipEvent event(text);
    QCoreApplication::sendEvent(&m_page, &event);
}
