// SPDX-License-Identifier: MIT
// The two bill pages as the tests know them: component names, texts and statements as they stand, and some bills.
#pragma once

#include "tests/support/desk.h"
#include "tests/support/hands.h"
#include "tests/uMain/expected.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QMenu>

#include <optional>

/// In statements %1 is a bill's number; in those about a record %1 to %3 are its certificate, as it stands within
/// quotes, its IDNo and its DiagNo.
struct BillPageParts {
    const char *name;
    const char *status; ///< CheckStatus of the bills listed
    const char *page;
    const char *tree;
    const char *treeColumn;
    const char *grid;
    const char *interfaceColumn;
    const char *count;
    const char *totalFee;
    const char *canFreeFee;
    const char *menu;
    const char *report;
    const char *cancel;
    const char *upload;
    const char *cancelOne;
    const char *uploadOne;
    const char *add;
    const char *exit;
    bool billsCarryFees;
    const char *cancelOneQuestion;
    const char *bills;
    const char *records;
    const char *releaseAll;
    const char *deleteBill;
    const char *releaseRecord;
    const char *clearDeductions;
    const char *deleteEmptied;
};

extern const BillPageParts Reported;
extern const BillPageParts Returned;
extern const BillPageParts History; ///< the page "历史制单查询", as far as it is like them; lists bills in status "1"

/// Which page a test is about, in its name.
inline std::string pageName(const testing::TestParamInfo<const BillPageParts *> &info)
{
    return info.param->name;
}

/// Beside the small hospital's own rows, bills of 42990101 in the page's status:
///
///   | BillNo | WriteDate  | Fee     | CanFreeFee | records                                                          |
///   | 21     | 2026-03-02 | 1200.30 | 950.15     | 周强 (01'1, 3, 2; 1000.10, 800.05; reviewed twice), 吴芳 (0102, 2,
///   1; 200.20, 150.10) | | 20     | 2026-03-01 | 5.50    | null       | 郑和 (0103, 1, 1; 5.50, null) | | 19     |
///   2026-02-28 | null    | null       | none                                                             |
///
/// 周强 has three fee lines, two of them with deductions.
class BillPageTest : public testing::TestWithParam<const BillPageParts *> {
protected:
    enum Bill { Two = 0, Single = 1, Empty = 2 }; // places in the tree
    static constexpr const char *numbers[] = {"21", "20", "19"};

    /// The page in front, with its bills; nothing focused but the group.
    void open(const BillPageParts &page, const Desk::Options &options = Desk::Options());
    void open(const Desk::Options &options = Desk::Options()) { open(*GetParam(), options); }
    /// Gives bill 21 another status behind the page's back.
    void reviewElsewhere(const char *status) const;

    [[nodiscard]] QWidget &form() const { return m_desk->form(); }
    [[nodiscard]] TdxTreeList &tree() const { return hands::find<TdxTreeList>(form(), m_page->tree); }
    [[nodiscard]] TdxTreeList &grid() const { return hands::find<TdxTreeList>(form(), m_page->grid); }
    /// Clicks a bill and forgets what was said meanwhile.
    void choose(Bill bill);
    /// Count and the two sums as they are shown.
    [[nodiscard]] QString totals() const;
    [[nodiscard]] QStringList said() { return m_desk->conversation().take(); }
    /// What is said when a menu item is chosen, or a button clicked, and the question answered with Yes.
    [[nodiscard]] QStringList triggerAndConfirm(const char *item);
    [[nodiscard]] QStringList clickAndConfirm(const char *button);

    [[nodiscard]] static QString ofBill(const char *statement, const char *number)
    {
        return QString::fromUtf8(statement).arg(QString::fromUtf8(number));
    }
    [[nodiscard]] static QString ask(const char *question, bool yes = true)
    {
        return QStringLiteral("ask(确认,%1)=%2")
            .arg(QString::fromUtf8(question), yes ? QStringLiteral("yes") : QStringLiteral("no"));
    }
    [[nodiscard]] QStringList records(const char *number) const
    {
        return expected::query(ofBill(m_page->records, number));
    }
    [[nodiscard]] QStringList ownTree() const
    {
        return m_page == &Reported ? expected::reportedBills() : expected::returnedBills();
    }
    [[nodiscard]] QStringList billRows() const
    {
        return m_desk->rows("select BillNo,Fee,CanFreeFee,CheckStatus from o_CbZyZdb where BillCode='42990101' "
                            "order by BillNo desc");
    }

    const BillPageParts *m_page = nullptr;
    std::optional<Desk> m_desk;
};
