// SPDX-License-Identifier: MIT
// Whatever a clerk and the reviewers do to bills, in whatever order, the books stay right.
#include "tests/support/desk.h"
#include "tests/support/hands.h"
#include "tests/support/modalvisit.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <numeric>
#include <random>
#include <vector>

namespace {

// Many days, so that they can be tested side by side; a clerk's window stays open through the sequences of a day.
constexpr int Days = 40;
constexpr int SequencesADay = 50;
constexpr int Steps = 10;

const std::array Tables = {"o_CbZyBxDj", "s_CbZyBxDj", "o_CbZyBxDjZb", "o_CbZyZdb", "s_CbZyZdb"};

// A made and a returned bill to begin with, and records enough to make more.
const std::array Fixture = {
    "update o_CbZyBxDj set TotalFee=0.10,CanFreeFee=0.10,FreeFee=0 where OutDate is not null and TotalFee is null",
    "insert into o_CbZyZdb(BillCode,BillNo,BillName,WriteDate,Fee,CanFreeFee,CheckFee1,CheckFee,CheckStatus) values "
    "('42990101',8,'甲镇卫生院','2026-03-01',0.30,0.03,0,0,'1'),('42990101',9,'甲镇卫生院','2026-03-02',70.07,7.70,0,0,"
    "'9')",
    "insert into "
    "o_CbZyBxDj(OrgCode,CoopMedCode,IDNo,DiagNo,PatientName,OutDate,TotalFee,CanFreeFee,FreeFee,BillCode,BillNo)"
    " values ('42990101','a',1,1,'甲','2026-02-01',0.10,0.01,0,'42990101',8),"
    "('42990101','a',1,2,'甲','2026-02-02',0.20,0.02,0,'42990101',8),"
    "('42990102','a',1,2,'乙','2026-02-03',70.00,7.00,1,'42990101',9),"
    "('42990101','b''b',2,1,'丙','2026-02-04',0.07,0.70,1,'42990101',9),"
    "('42990101','c',1,1,'丁','2026-02-05',12345678.91,999.99,1,null,null),"
    "('42990101','d',1,1,'戊','2026-02-06',0.01,0.00,0,null,null),"
    "('42990102','e',1,1,'己','2026-02-07',33.33,33.33,3,null,null)",
};

/// One line for each thing that is wrong.
const char *const Wrongs = R"(
select 'fee of bill', BillNo from o_CbZyZdb z where round(ifnull(Fee, 0) * 100) <>
  (select round(ifnull(sum(TotalFee), 0) * 100) from o_CbZyBxDj b where b.BillCode = z.BillCode and b.BillNo = z.BillNo)
union all
select 'reimbursable fee of bill', BillNo from o_CbZyZdb z where round(ifnull(CanFreeFee, 0) * 100) <>
  (select round(ifnull(sum(CanFreeFee), 0) * 100) from o_CbZyBxDj b where b.BillCode = z.BillCode and b.BillNo = z.BillNo)
union all
select 'bill without records', BillNo from o_CbZyZdb z where not exists
  (select 1 from o_CbZyBxDj b where b.BillCode = z.BillCode and b.BillNo = z.BillNo)
union all
select 'record without its bill', CoopMedCode from o_CbZyBxDj b where BillNo is not null and not exists
  (select 1 from o_CbZyZdb z where b.BillCode = z.BillCode and b.BillNo = z.BillNo)
union all
select 'half a bill key', CoopMedCode from o_CbZyBxDj where (BillCode is null) <> (BillNo is null)
union all
select 'number twice', BillNo from o_CbZyZdb o where exists
  (select 1 from s_CbZyZdb s where s.BillCode = o.BillCode and s.BillNo = o.BillNo)
)";

struct BillPageNames {
    const char *page;
    const char *tree;
    const char *grid;
    const char *patient;
    const char *report;
    const char *cancel;
    const char *cancelOne;
    const char *add;
};
constexpr BillPageNames Pages[] = {
    {"tbUp", "dxTLUpOrgInfo", "dxTLUpBill", "dxTLUpBillPatientName", "mUpSave", "mUpCancel", "btnUpCancel", "btnUpAdd"},
    {"tbBack", "dxTLBackOrg", "dxTLBackBill", "dxTLBackBillPatientName", "mBackUp", "mBackDelete", "btnBackCancel",
     "btnBackAdd"},
};

/// A clerk who does anything, and reviewers who do too.
class Muddle {
public:
    Muddle()
    {
        for (const char *sql : Fixture)
            m_desk.sqlite(sql);
        for (const std::string table : Tables)
            m_desk.sqlite(("create temp table fresh_" + table + " as select * from main." + table).c_str());
        m_desk.open();
        m_records = records();
        EXPECT_EQ(wrongs(), "");
    }

    /// From fresh books on.
    void begin(unsigned seed)
    {
        m_random.seed(seed);
        m_story.clear();
        for (const std::string table : Tables) {
            m_desk.sqlite(("delete from " + table).c_str());
            m_desk.sqlite(("insert into " + table + " select * from fresh_" + table).c_str());
        }
        reopen();
        ASSERT_EQ(records(), m_records);
    }

    void step()
    {
        using Action = const char *(Muddle::*)();
        static constexpr Action actions[] = {&Muddle::make,    &Muddle::make,    &Muddle::add,     &Muddle::add,
                                             &Muddle::takeOut, &Muddle::takeOut, &Muddle::takeOut, &Muddle::cancel,
                                             &Muddle::report,  &Muddle::report,  &Muddle::review,  &Muddle::sendBack,
                                             &Muddle::archive};
        (void)m_desk.conversation().take();
        const char *name = (this->*actions[below(std::size(actions))])();
        m_story += std::string(name) + ' ';
        SCOPED_TRACE(m_story);
        EXPECT_EQ(wrongs(), "");
        EXPECT_EQ(records(), m_records) << "a record was lost or doubled";
        EXPECT_TRUE(m_desk.errors().isEmpty()) << m_desk.errors().join(u'|').toStdString();
        EXPECT_TRUE(m_desk.conversation().take().filter(QStringLiteral("Alert")).isEmpty());
    }

    /// How many actions found something to act on.
    [[nodiscard]] int done() const { return m_done; }

private:
    [[nodiscard]] std::size_t below(std::size_t end) { return m_random() % end; }
    [[nodiscard]] QWidget &form() const { return m_desk.form(); }
    [[nodiscard]] std::string wrongs() const { return m_desk.rows(Wrongs).join(u'\n').toStdString(); }
    [[nodiscard]] QStringList records() const
    {
        return m_desk.rows("select OrgCode, CoopMedCode, IDNo, DiagNo, TotalFee, CanFreeFee from o_CbZyBxDj union all "
                           "select OrgCode, CoopMedCode, IDNo, DiagNo, TotalFee, CanFreeFee from s_CbZyBxDj "
                           "order by 1, 2, 3, 4");
    }

    void tickSome(TdxTreeList &grid)
    {
        std::vector<int> rows(static_cast<std::size_t>(grid.count()));
        std::iota(rows.begin(), rows.end(), 0);
        std::shuffle(rows.begin(), rows.end(), m_random);
        rows.resize(std::min(rows.size(), 1 + below(3)));
        for (const int row : rows)
            hands::clickCell(grid, row, "dxTLUpCheck");
    }

    const char *make()
    {
        hands::showPage(form(), "TabSheet3");
        auto &candidates = hands::find<TdxTreeList>(hands::find<QWidget>(form(), "TabSheet3"), "dxTLUp");
        if (candidates.count() == 0)
            return "(make)";
        tickSome(candidates);
        hands::click(form(), "btnSave");
        ++m_done;
        return "make";
    }

    /// Clicks some bill of some page; null when that page has none.
    const BillPageNames *chooseBill()
    {
        const BillPageNames &page = Pages[below(std::size(Pages))];
        auto &tree = hands::find<TdxTreeList>(form(), page.tree);
        if (tree.count() == 0)
            return nullptr;
        hands::showPage(form(), page.page);
        hands::clickNode(tree, 0, static_cast<int>(below(static_cast<std::size_t>(tree.topNode().childCount()))));
        ++m_done;
        return &page;
    }

    const char *add()
    {
        const BillPageNames *page = chooseBill();
        if (page == nullptr)
            return "(add)";
        const bool save = below(4) != 0;
        const ModalVisit visit(QStringLiteral("frmAddBill"), [this, save](QWidget &dialog) {
            auto &candidates = hands::find<TdxTreeList>(dialog, "dxTLUp");
            if (candidates.count() == 0)
                return;
            tickSome(candidates);
            hands::click(dialog, save ? "btnSave" : "btnCancel");
        });
        hands::click(form(), page->add);
        return save ? "add" : "thinkBetter";
    }

    const char *takeOut()
    {
        const BillPageNames *page = chooseBill();
        if (page == nullptr)
            return "(takeOut)";
        auto &grid = hands::find<TdxTreeList>(form(), page->grid);
        hands::clickCell(grid, static_cast<int>(below(static_cast<std::size_t>(grid.count()))), page->patient);
        m_desk.conversation().answerYes();
        hands::click(form(), page->cancelOne);
        return "takeOut";
    }

    const char *cancel()
    {
        const BillPageNames *page = chooseBill();
        if (page == nullptr)
            return "(cancel)";
        m_desk.conversation().answerYes();
        hands::trigger(form(), page->cancel);
        return "cancel";
    }

    const char *report()
    {
        const BillPageNames *page = chooseBill();
        if (page == nullptr)
            return "(report)";
        m_desk.conversation().answerYes();
        hands::trigger(form(), page->report);
        return "report";
    }

    // ---- outside, after which the clerk opens the form anew

    void reopen() const
    {
        form().hide();
        form().show();
    }

    const char *review()
    {
        m_desk.sqlite("update o_CbZyBxDj set CheckerCode1='K1',CheckOneFee=1 where BillNo in "
                      "(select BillNo from o_CbZyZdb where BillCode='42990101' and CheckStatus='2')");
        m_desk.sqlite("update o_CbZyZdb set CheckStatus='4' where CheckStatus='3'");
        m_desk.sqlite("update o_CbZyZdb set CheckStatus='3' where CheckStatus='2'");
        reopen();
        return "review";
    }

    const char *sendBack()
    {
        m_desk.sqlite("update o_CbZyZdb set CheckStatus='9' where CheckStatus in ('2','3')");
        reopen();
        return "sendBack";
    }

    const char *archive()
    {
        for (const char *sql :
             {"insert into s_CbZyBxDj select * from o_CbZyBxDj where BillCode='42990101' and BillNo in "
              "(select BillNo from o_CbZyZdb where BillCode='42990101' and CheckStatus in ('2','3','4'))",
              "delete from o_CbZyBxDj where BillCode='42990101' and BillNo in "
              "(select BillNo from o_CbZyZdb where BillCode='42990101' and CheckStatus in ('2','3','4'))",
              "insert into s_CbZyZdb select * from o_CbZyZdb where BillCode='42990101' and CheckStatus in "
              "('2','3','4')",
              "delete from o_CbZyZdb where BillCode='42990101' and CheckStatus in ('2','3','4')"})
            m_desk.sqlite(sql);
        reopen();
        return "archive";
    }

    Desk m_desk;
    std::mt19937 m_random;
    QStringList m_records;
    std::string m_story;
    int m_done = 0;
};

class BillProperties : public testing::TestWithParam<int> { };

TEST_P(BillProperties, theBooksStayRightWhateverHappens)
{
    Muddle muddle;
    for (int sequence = 1; sequence <= SequencesADay && !HasFailure(); ++sequence) {
        const int seed = GetParam() * SequencesADay + sequence;
        SCOPED_TRACE(seed);
        muddle.begin(static_cast<unsigned>(seed));
        for (int step = 0; step < Steps && !HasFailure(); ++step)
            muddle.step();
    }
    EXPECT_GT(muddle.done(), SequencesADay * Steps / 2) << "most steps found something to do";
}

INSTANTIATE_TEST_SUITE_P(Days, BillProperties, testing::Range(0, Days));

} // namespace
