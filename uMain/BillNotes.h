// SPDX-License-Identifier: MIT
// What is worth knowing of a bill beyond its node's text.
#pragma once

#include <QObject>
#include <QString>

#include <vector>

class TdxCurrencyEdit;
class TdxTreeList;
class TdxTreeListNode;

/// Number, records and amounts of a bill: as its node's tooltip, and for the chosen bill in the host's status bar as
/// long as the page is in front. Two bills of one day look alike in the tree.
class BillNotes : public QObject {
    Q_OBJECT

public:
    struct Amount {
        const char *caption; ///< UTF-8
        int position; ///< among the node's values
    };

    /// Amounts are shown in the format that `money` has at that time. All are borrowed.
    BillNotes(TdxTreeList &tree, QWidget &page, const TdxCurrencyEdit &money, std::vector<Amount> amounts);

    /// The bill whose records are listed; null for none.
    void setChosen(const TdxTreeListNode &bill);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    [[nodiscard]] QStringList facts(const TdxTreeListNode &bill) const;
    [[nodiscard]] QString amountText(const QString &amount) const;
    [[nodiscard]] bool showTip(const QPoint &place, const QPoint &onScreen) const;
    void tellStatus(const QString &text);

    TdxTreeList &m_tree;
    QWidget &m_page;
    const TdxCurrencyEdit &m_money;
    std::vector<Amount> m_amounts;
    QString m_chosen;
    QString m_told; // what stands in the status bar for this page
};
