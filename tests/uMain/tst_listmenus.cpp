// SPDX-License-Identifier: MIT
// The lists' menus by keyboard.
#include "tests/uMain/billpages.h"

#include <QSignalSpy>

namespace {

struct ListMenu {
    const char *name;
    const char *page;
    const char *list;
    const char *menu;
    std::vector<const char *> items; ///< component names, in the order of the menu
    QStringList captions;
};

const ListMenu Menus[] = {
    {"Candidates",
     "TabSheet3",
     "dxTLUp",
     "pMUp",
     {"mCheck", "mUnCheck", "mFeeInfo"},
     {QStringLiteral("全部选定"), QStringLiteral("全部取消"), QStringLiteral("查看费用信息")}},
    {"Reported",
     "tbUp",
     "dxTLUpOrgInfo",
     "pMUpBill",
     {"mUpSave", "mUpCancel", "N1"},
     {QStringLiteral("整批上报制单"), QStringLiteral("整批取消制单"), QStringLiteral("整批数据上传")}},
    {"Returned",
     "tbBack",
     "dxTLBackOrg",
     "pMBackBill",
     {"mBackUp", "mBackDelete", "N2"},
     {QStringLiteral("整批上报制单"), QStringLiteral("整批取消制单"), QStringLiteral("整批数据上传")}},
    {"History",
     "TabSheet2",
     "dxTLOldBill",
     "pMPrint",
     {"mJxP", "mCheckP", "mFeeDetail"},
     {QStringLiteral("补打出院结算表"), QStringLiteral("补打审批表"), QStringLiteral("补打费用清单")}},
};

class ListMenusTest : public testing::TestWithParam<ListMenu> {
protected:
    ListMenusTest()
    {
        m_desk.sqlite("update o_CbZyZdb set BillCode='42990101'"); // bill 3 is the clerk's own
        m_desk.sqlite("insert into o_CbZyZdb(BillCode,BillNo,BillName,WriteDate,CheckStatus) values "
                      "('42990101',4,'甲镇卫生院','2026-03-01','9'),('42990101',5,'甲镇卫生院','2026-03-01','1')");
        m_desk.open().activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_desk.form()));
        hands::showPage(m_desk.form(), GetParam().page);
        list().setFocus();
        if (isOfBills()) {
            const QModelIndex group = list().model()->index(0, 0);
            list().setCurrentIndex(list().model()->index(0, 0, group));
        }
        for (const char *item : GetParam().items) {
            auto &action = hands::find<QAction>(m_desk.form(), item);
            action.disconnect(); // what the items do is told elsewhere
            QObject::connect(&action, &QAction::triggered, &m_desk.form(),
                             [this, item] { m_chosen.append(QString::fromUtf8(item)); });
        }
    }

    [[nodiscard]] TdxTreeList &list() const { return hands::find<TdxTreeList>(m_desk.form(), GetParam().list); }
    [[nodiscard]] QMenu &menu() const { return hands::find<QMenu>(m_desk.form(), GetParam().menu); }
    [[nodiscard]] bool isOfBills() const { return QByteArray(GetParam().page).startsWith("tb"); }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers) const { QTest::keyClick(&list(), key, modifiers); }
    [[nodiscard]] static Qt::Key digit(std::size_t item) { return static_cast<Qt::Key>(Qt::Key_1 + item); }
    [[nodiscard]] QStringList items() const
    {
        QStringList names;
        for (const char *item : GetParam().items)
            names.append(QString::fromUtf8(item));
        return names;
    }

    Desk m_desk;
    QStringList m_chosen;
};

} // namespace

INSTANTIATE_TEST_SUITE_P(All, ListMenusTest, testing::ValuesIn(Menus),
                         [](const testing::TestParamInfo<ListMenu> &menu) { return menu.param.name; });

TEST_P(ListMenusTest, captionsAreAsTheyAreAndKeysStandBesideThem)
{
    QStringList captions;
    QStringList keys;
    for (const QAction *item : menu().actions()) {
        captions.append(item->text());
        keys.append(item->shortcut().toString(QKeySequence::PortableText));
        EXPECT_TRUE(item->isShortcutVisibleInContextMenu());
    }
    EXPECT_EQ(captions, GetParam().captions);
    EXPECT_EQ(keys, QStringList({QStringLiteral("Ctrl+1"), QStringLiteral("Ctrl+2"), QStringLiteral("Ctrl+3")}));
}

TEST_P(ListMenusTest, shiftF10OpensIt)
{
    press(Qt::Key_F10, Qt::ShiftModifier);
    EXPECT_EQ(QApplication::activePopupWidget(), &menu());
    menu().close();
    press(Qt::Key_F10, Qt::NoModifier);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << "F10 alone is the host's";
}

TEST_P(ListMenusTest, ctrlAndThePlaceChooseInTheList)
{
    for (std::size_t item = 0; item < GetParam().items.size(); ++item)
        press(digit(item), Qt::ControlModifier);
    EXPECT_EQ(m_chosen, items());
    press(Qt::Key_4, Qt::ControlModifier);
    press(Qt::Key_1, Qt::NoModifier);
    press(Qt::Key_1, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(m_chosen.size(), 3);
    press(Qt::Key_2, Qt::ControlModifier | Qt::KeypadModifier);
    EXPECT_EQ(m_chosen.size(), 4) << "the number pad";
}

TEST_P(ListMenusTest, ctrlAndThePlaceChooseInTheOpenMenu)
{
    for (std::size_t item = 0; item < GetParam().items.size(); ++item) {
        press(Qt::Key_F10, Qt::ShiftModifier);
        QTest::keyClick(&menu(), digit(item), Qt::ControlModifier);
        EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << item;
    }
    EXPECT_EQ(m_chosen, items());
}

TEST_P(ListMenusTest, aForbiddenItemIsNotChosen)
{
    hands::find<QAction>(m_desk.form(), GetParam().items.front()).setEnabled(false);
    press(Qt::Key_1, Qt::ControlModifier);
    EXPECT_TRUE(m_chosen.isEmpty());
}

TEST_P(ListMenusTest, withoutTheMenuNoItemIsChosen)
{
    if (isOfBills())
        list().setCurrentIndex(list().model()->index(0, 0)); // the institution
    else
        list().setPopupMenu(nullptr);
    press(Qt::Key_1, Qt::ControlModifier);
    press(Qt::Key_F10, Qt::ShiftModifier);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_TRUE(m_chosen.isEmpty());
}
