// SPDX-License-Identifier: MIT
// Windows colour integers on this platform.
#include "toolkit/colours.h"

#include <gtest/gtest.h>

#include <ostream>

namespace {

using toolkit::toColour;
using toolkit::windowsColour;

struct Case {
    const char *name;
    toolkit::WindowsColour colour;
    QColor expected;
};

void PrintTo(const Case &row, std::ostream *stream)
{
    *stream << row.name;
}

QPalette testPalette()
{
    QPalette palette;
    palette.setColor(QPalette::Base, QColor(250, 251, 252));
    palette.setColor(QPalette::Text, QColor(1, 2, 3));
    palette.setColor(QPalette::Highlight, QColor(10, 20, 200));
    palette.setColor(QPalette::Button, QColor(200, 201, 202));
    return palette;
}

class Colours : public testing::TestWithParam<Case> { };

TEST_P(Colours, MapsWindowsColour)
{
    EXPECT_EQ(toColour(GetParam().colour, testPalette()), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    All, Colours,
    testing::Values(Case{"RedIsTheLowestByte", 0x000000FF, QColor(255, 0, 0)},
                    Case{"BlueIsTheThirdByte", 0x00FF0000, QColor(0, 0, 255)}, Case{"Black", 0, QColor(0, 0, 0)},
                    Case{"White", 0x00FFFFFF, QColor(255, 255, 255)},
                    Case{"AdmittedToday", windowsColour(0x5E, 0xCB, 0x4E), QColor(0x5E, 0xCB, 0x4E)},
                    Case{"Window", toolkit::WindowColour, QColor(250, 251, 252)},
                    Case{"WindowText", toolkit::WindowTextColour, QColor(1, 2, 3)},
                    Case{"Highlight", 0xFF00000D, QColor(10, 20, 200)},
                    Case{"ButtonFace", 0xFF00000F, QColor(200, 201, 202)},
                    Case{"UnknownSystemColour", 0xFF000063, QColor(250, 251, 252)},
                    Case{"UnknownKind", 0x02123456, QColor(250, 251, 252)},
                    Case{"JustAboveTheFixedColours", 0x01000000, QColor(250, 251, 252)}),
    [](const testing::TestParamInfo<Case> &row) { return row.param.name; });

TEST(Colours, NoColourIsInvalid)
{
    EXPECT_FALSE(toColour(toolkit::NoColour, testPalette()).isValid());
}

TEST(Colours, PutsComponentsInWindowsOrder)
{
    EXPECT_EQ(windowsColour(0x12, 0x34, 0x56), 0x00563412U);
}

} // namespace
