// SPDX-License-Identifier: MIT
// Keys with bytes that no statement can hold: such rows are shown, but nothing is done with them.
#include "tests/support/modalvisit.h"
#include "tests/uMain/billpages.h"

using namespace expected;

namespace {

/// What another program left in the database, as the value of a certificate or institution code.
struct Bytes {
    const char *name;
    const char *sql;
};

const Bytes BrokenBytes[] = {
    {"Zero", "cast(x'30003031' as text)"},
    {"Gbk", "cast(x'30BACF31' as text)"},
    {"HalfACharacter", "cast(x'3031E8AF' as text)"},
    {"ByteOrderMark", "cast(x'EFBBBF3031' as text)"},
};

QString refusal(const QString &rows)
{
    return QStringLiteral("FuncStorage.Alert(下列记录的机构代码、合作医疗证号、序号或就医次序中含有无法识别的字符，"
                          "不能办理，请系统管理员先在数据库中更正：%1)")
        .arg(rows);
}

QString broken(const QString &statement, const char *bytes)
{
    return statement.arg(QString::fromUtf8(bytes));
}

class BrokenKeysTest : public testing::TestWithParam<Bytes> {
protected:
    /// The second candidate, 李秀英, has the bytes for a certificate.
    void open(const Desk::Options &options = Desk::Options())
    {
        m_desk.emplace(options);
        m_desk->sqlite(
            broken(QStringLiteral("update o_CbZyBxDj set CoopMedCode=%1 where CoopMedCode='0040'"), GetParam().sql)
                .toUtf8()
                .constData());
        m_desk->open();
        (void)m_desk->conversation().take();
    }
    [[nodiscard]] TdxTreeList &grid() const { return hands::find<TdxTreeList>(m_desk->form(), "dxTLUp"); }
    void tick(std::initializer_list<int> rows) const
    {
        for (const int row : rows)
            hands::clickCell(grid(), row, "dxTLUpCheck");
    }
    [[nodiscard]] QStringList press(const char *button)
    {
        hands::click(m_desk->form(), button);
        return m_desk->conversation().take();
    }

    std::optional<Desk> m_desk;
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Bytes, BrokenKeysTest, testing::ValuesIn(BrokenBytes),
                         [](const testing::TestParamInfo<Bytes> &bytes) { return bytes.param.name; });

TEST_P(BrokenKeysTest, noBillIsMadeOfThem)
{
    for (const char *setup : {"[system]\nconnStyle=1\n", "[system]\nconnStyle=0\n"}) {
        Desk::Options options;
        options.setupFile = QString::fromUtf8(setup);
        open(options);
        tick({0, 1});
        const QStringList before = m_desk->contents();
        const QStringList said = press("btnSave");
        ASSERT_EQ(said.size(), 1);
        EXPECT_TRUE(said.first().startsWith(refusal(QString()).chopped(1))) << said.first().toStdString();
        EXPECT_TRUE(said.first().endsWith(QStringLiteral("   李秀英)"))) << said.first().toStdString();
        EXPECT_EQ(said.first().count(QStringLiteral("\r\n")), 1) << "the other row is not named";
        EXPECT_EQ(m_desk->contents(), before);
    }
}

TEST_P(BrokenKeysTest, theOtherRowsCanBeSaved)
{
    open();
    tick({0, 2});
    EXPECT_TRUE(press("btnSave").contains(hint("制单成功！")));
    EXPECT_EQ(m_desk->rows("select count(*) from o_CbZyBxDj where BillNo=8"), QStringList(QStringLiteral("2")));
}

TEST_P(BrokenKeysTest, noneIsReturned)
{
    open();
    tick({1});
    const QStringList before = m_desk->contents();
    const QStringList said = press("btnBack");
    ASSERT_EQ(said.size(), 1) << "not even the question";
    EXPECT_TRUE(said.first().startsWith(refusal(QString()).chopped(1)));
    EXPECT_EQ(m_desk->contents(), before);
}

TEST_P(BrokenKeysTest, theyAreShownAndTheirFeesLookedAt)
{
    open();
    EXPECT_EQ(grid().count(), 4);
    grid().setFocusedNode(grid().node(1));
    EXPECT_EQ(hands::columnTexts(grid(), "dxTLUpPatientName").at(1), QStringLiteral("李秀英"));
    if (GetParam().name == BrokenBytes[0].name)
        return; // no statement of this host may hold a zero, which it says itself
    const ModalVisit visit(QStringLiteral("frmDjDetail"), [](QWidget &) {});
    hands::trigger(m_desk->form(), "mFeeInfo");
}

TEST(BrokenKeys, manyAreNotAllNamed)
{
    Desk desk;
    for (int i = 0; i < 12; ++i) {
        desk.sqlite(
            QStringLiteral("insert into o_CbZyBxDj(OrgCode,CoopMedCode,IDNo,DiagNo,PatientName,OutDate,JsDate,"
                           "TotalFee,CanFreeFee,FreeFee) values (cast(x'FF' as text),'%1',1,1,'病人','2026-03-01',"
                           "'2026-03-01',1,1,1)")
                .arg(3000 + i)
                .toUtf8()
                .constData());
    }
    desk.open();
    hands::trigger(desk.form(), "mCheck");
    (void)desk.conversation().take();
    hands::click(desk.form(), "btnBack");
    const QStringList lines = desk.conversation().take();
    ASSERT_EQ(lines.size(), 1);
    EXPECT_EQ(lines.first().count(QStringLiteral("   病人")), 10);
    EXPECT_TRUE(lines.first().endsWith(QStringLiteral("\r\n…… 共 12 笔)"))) << lines.first().toStdString();
}

TEST(BrokenKeys, aZeroDoesNotEndTheMessage)
{
    Desk desk;
    desk.sqlite("update o_CbZyBxDj set CoopMedCode=cast(x'30003031' as text) where CoopMedCode='0040'");
    hands::clickCell(hands::find<TdxTreeList>(desk.open(), "dxTLUp"), 1, "dxTLUpCheck");
    (void)desk.conversation().take();
    hands::click(desk.form(), "btnSave");
    EXPECT_EQ(desk.conversation().take(), QStringList(refusal(QStringLiteral("\r\n0�01   李秀英"))));
}

namespace {

class BrokenKeysOfBillsTest : public BillPageTest { };

} // namespace

INSTANTIATE_TEST_SUITE_P(Pages, BrokenKeysOfBillsTest, testing::Values(&Reported, &Returned), pageName);

TEST_P(BrokenKeysOfBillsTest, noneIsTakenOut)
{
    open();
    m_desk->sqlite("update o_CbZyBxDj set OrgCode=cast(x'34FF' as text) where CoopMedCode='0102'");
    choose(Two);
    grid().setFocusedNode(grid().node(1));
    const QStringList before = m_desk->contents();
    hands::click(form(), m_page->cancelOne);
    EXPECT_EQ(said(), QStringList(refusal(QStringLiteral("\r\n0102   吴芳")))) << "not even the question";
    EXPECT_EQ(m_desk->contents(), before);
    grid().setFocusedNode(grid().node(0));
    EXPECT_TRUE(clickAndConfirm(m_page->cancelOne).contains(hint("取消制单成功！"))) << "its neighbour can be";
}

TEST_P(BrokenKeysOfBillsTest, noneIsAdded)
{
    open();
    m_desk->sqlite("update o_CbZyBxDj set CoopMedCode=cast(x'BACF' as text) where CoopMedCode='0040'");
    choose(Two);
    const QStringList before = m_desk->contents();
    {
        const ModalVisit visit(QStringLiteral("frmAddBill"), [this](QWidget &dialog) {
            auto &list = hands::find<TdxTreeList>(dialog, "dxTLUp");
            const auto row =
                static_cast<int>(hands::columnTexts(list, "dxTLUpPatientName").indexOf(QStringLiteral("李秀英")));
            hands::clickCell(list, row, "dxTLUpCheck");
            (void)said();
            hands::click(dialog, "btnSave");
            const QStringList lines = said();
            ASSERT_EQ(lines.size(), 1);
            EXPECT_TRUE(lines.first().startsWith(refusal(QString()).chopped(1))) << lines.first().toStdString();
            EXPECT_TRUE(dialog.isVisible());
        });
        hands::click(form(), m_page->add);
    }
    EXPECT_EQ(m_desk->contents(), before);
}
