// SPDX-License-Identifier: MIT
// What the form tells its host: whether a new showing would throw ticks away.
#include "tests/support/desk.h"
#include "tests/support/hands.h"

#include <gtest/gtest.h>

namespace {

class UnsavedInputTest : public testing::Test {
protected:
    UnsavedInputTest() { m_desk.open(); }

    [[nodiscard]] bool isUnsaved() const { return m_desk.form().property("unsavedInput").toBool(); }
    void tick(int row) { hands::clickCell(hands::find<TdxTreeList>(m_desk.form(), "dxTLUp"), row, "dxTLUpCheck"); }

    Desk m_desk;
};

} // namespace

TEST_F(UnsavedInputTest, areTheTicksOfCandidates)
{
    EXPECT_FALSE(isUnsaved());
    tick(0);
    EXPECT_TRUE(isUnsaved());
    tick(1);
    tick(0);
    EXPECT_TRUE(isUnsaved());
    tick(1);
    EXPECT_FALSE(isUnsaved());
}

TEST_F(UnsavedInputTest, followsTheItemsForAllRows)
{
    hands::trigger(m_desk.form(), "mCheck");
    EXPECT_TRUE(isUnsaved());
    hands::trigger(m_desk.form(), "mUnCheck");
    EXPECT_FALSE(isUnsaved());
}

TEST_F(UnsavedInputTest, isOverWhenTheBillIsSaved)
{
    tick(0);
    hands::click(m_desk.form(), "btnSave");
    EXPECT_FALSE(isUnsaved());
}

TEST_F(UnsavedInputTest, isOverWhenTheFormLoadsAnew)
{
    tick(0);
    m_desk.form().hide();
    EXPECT_TRUE(isUnsaved());
    m_desk.form().show();
    EXPECT_FALSE(isUnsaved());
}
