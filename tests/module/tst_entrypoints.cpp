// SPDX-License-Identifier: MIT
// The four entry points, and what a host sees of the form.
#include "module/moduleinfo.h"
#include "module/tarnwell_module.h"
#include "tests/support/desk.h"
#include "toolkit/guard.h"

#include <gtest/gtest.h>

#include <QPointer>

#include <array>
#include <cstring>

namespace {

// The text as a GBK converter gives it, independent of the constant under test.
constexpr std::array<unsigned char, 56> GbkText = {
    'T',  'a',  'r',  'n',  'w',  'e',  'l',  'l',  ',',  'L',  'o', 'g', 'i', 'c',  '(',  0xD2, 0xB5, 0xCE, 0xF1,
    0xB9, 0xDC, 0xC0, 0xED, ')',  ',',  'K',  'e',  's',  'm',  'o', 'r', '(', 0xB2, 0xCE, 0xBA, 0xCF, 0xD7, 0xA1,
    0xD4, 0xBA, 0xB1, 0xA8, 0xCF, 0xFA, 0xD6, 0xC6, 0xB5, 0xA5, ')', ',', '2', '(',  '4',  ')',  ',',  0};

void *create()
{
    void *form = nullptr;
    EXPECT_EQ(CreateModule(&form, 1, 2, 3, 4, 5, 6), TARNWELL_OK);
    return form;
}

} // namespace

TEST(GetModuleInfo, copiesTheTextWithItsZeroAndNothingMore)
{
    std::array<char, 64> bytes;
    bytes.fill('#');
    char *buffer = bytes.data();
    EXPECT_EQ(GetModuleInfo(7, &buffer), TARNWELL_OK);
    EXPECT_EQ(std::memcmp(bytes.data(), GbkText.data(), GbkText.size()), 0);
    EXPECT_EQ(std::strlen(bytes.data()), 55U);
    EXPECT_EQ(std::string(bytes.begin() + TARNWELL_MODULE_INFO_SIZE, bytes.end()), "########");
    EXPECT_EQ(buffer, bytes.data());
}

TEST(RefreshModule, doesNothing)
{
    EXPECT_EQ(RefreshModule(1, 2), TARNWELL_OK);
}

// Runs before any form exists in this process.
TEST(EntryPointsA, freeBeforeCreateDoesNothing)
{
    int object = 0;
    void *form = &object;
    EXPECT_EQ(FreeModule(&form), TARNWELL_OK);
    EXPECT_EQ(form, &object);
    EXPECT_EQ(FreeModule(nullptr), TARNWELL_OK);
}

TEST(EntryPointsB, formIsCreatedHidden)
{
    void *form = create();
    auto *widget = static_cast<QWidget *>(form);
    EXPECT_FALSE(widget->isVisible());
    EXPECT_EQ(widget->objectName(), QStringLiteral("frmMain"));
    EXPECT_EQ(FreeModule(&form), TARNWELL_OK);
    EXPECT_EQ(form, widget) << "the caller's variable is not cleared";
}

TEST(EntryPointsB, eachCallCreatesAnotherForm)
{
    void *first = create();
    void *second = create();
    EXPECT_NE(first, second);
    const QPointer<QWidget> firstForm(static_cast<QWidget *>(first));
    const QPointer<QWidget> secondForm(static_cast<QWidget *>(second));
    EXPECT_EQ(FreeModule(&first), TARNWELL_OK);
    EXPECT_TRUE(firstForm.isNull()) << "the form that is passed goes, not the one created last";
    EXPECT_FALSE(secondForm.isNull());
    EXPECT_EQ(FreeModule(&second), TARNWELL_OK);
    EXPECT_TRUE(secondForm.isNull());
}

TEST(EntryPointsB, aFormThatIsGoneIsRefused)
{
    void *form = create();
    EXPECT_EQ(FreeModule(&form), TARNWELL_OK);
    EXPECT_EQ(FreeModule(&form), TARNWELL_UNEXPECTED);
    form = nullptr;
    EXPECT_EQ(FreeModule(&form), TARNWELL_UNEXPECTED);
    EXPECT_EQ(FreeModule(nullptr), TARNWELL_UNEXPECTED);
    QWidget stranger;
    form = &stranger;
    EXPECT_EQ(FreeModule(&form), TARNWELL_UNEXPECTED);
}

TEST(EntryPointsB, nullAddressesAreRefused)
{
    EXPECT_EQ(CreateModule(nullptr, 0, 0, 0, 0, 0, 0), TARNWELL_UNEXPECTED);
    char *buffer = nullptr;
    EXPECT_EQ(GetModuleInfo(0, &buffer), TARNWELL_UNEXPECTED);
    EXPECT_EQ(GetModuleInfo(0, nullptr), TARNWELL_UNEXPECTED);
}

TEST(EntryPointsB, aHandlerAtWorkKeepsEveryForm)
{
    void *form = create();
    const QPointer<QWidget> widget(static_cast<QWidget *>(form));
    int32_t status = TARNWELL_OK;
    toolkit::guarded([&] { status = FreeModule(&form); });
    EXPECT_EQ(status, TARNWELL_BUSY);
    ASSERT_FALSE(widget.isNull());
    toolkit::guarded([&] {
        void *none = nullptr;
        status = FreeModule(&none);
    });
    EXPECT_EQ(status, TARNWELL_UNEXPECTED) << "a wrong argument is wrong at any time";
    EXPECT_EQ(FreeModule(&form), TARNWELL_OK);
    EXPECT_TRUE(widget.isNull());
}

TEST(EntryPointsB, aFormDestroyedByItsParentIsGoneToo)
{
    void *form = create();
    {
        QWidget host;
        static_cast<QWidget *>(form)->setParent(&host);
    }
    EXPECT_EQ(FreeModule(&form), TARNWELL_UNEXPECTED);
}

TEST(EntryPointsB, statusCodesAreTheContracts)
{
    EXPECT_EQ(static_cast<uint32_t>(TARNWELL_UNEXPECTED), 0x8000FFFFU);
    EXPECT_LT(TARNWELL_UNEXPECTED, 0);
    EXPECT_EQ(static_cast<uint32_t>(TARNWELL_BUSY), 0x8000000AU);
    EXPECT_LT(TARNWELL_BUSY, 0);
}
