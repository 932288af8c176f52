// SPDX-License-Identifier: MIT
// Disabled boxes stay readable, whatever the palette.
#include "toolkit/readabletext.h"

#include <QApplication>
#include <QLineEdit>
#include <QPalette>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace {

double contrastOf(const QLineEdit &box)
{
    return toolkit::contrast(box.palette().color(QPalette::Disabled, QPalette::Text),
                             box.palette().color(QPalette::Disabled, QPalette::Base));
}

QPalette palette(const QColor &base, const QColor &text, const QColor &faint)
{
    QPalette colours(base);
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        colours.setColor(group, QPalette::Base, base);
        colours.setColor(group, QPalette::Text, group == QPalette::Disabled ? faint : text);
    }
    return colours;
}

const QPalette Light = palette(Qt::white, QColor(0x20, 0x20, 0x20), QColor(0xBE, 0xBE, 0xBE));
const QPalette Dark = palette(QColor(0x19, 0x1B, 0x1E), QColor(0xEE, 0xEE, 0xEE), QColor(0x55, 0x55, 0x55));
const QPalette Hopeless = palette(QColor(0x80, 0x80, 0x80), QColor(0x90, 0x90, 0x90), QColor(0x85, 0x85, 0x85));

class ReadableText : public testing::Test {
protected:
    ReadableText() { (new QVBoxLayout(&m_form))->addWidget(&m_box); }
    ~ReadableText() override { m_box.setParent(nullptr); }

    QWidget m_form;
    QLineEdit m_box;
};

} // namespace

TEST(Contrast, isThatOfTheGuidelines)
{
    EXPECT_DOUBLE_EQ(toolkit::contrast(Qt::black, Qt::white), 21);
    EXPECT_DOUBLE_EQ(toolkit::contrast(Qt::white, Qt::black), 21);
    EXPECT_DOUBLE_EQ(toolkit::contrast(Qt::red, Qt::red), 1);
    EXPECT_NEAR(toolkit::contrast(QColor(0x76, 0x76, 0x76), Qt::white), 4.54, 0.01);
    EXPECT_NEAR(toolkit::contrast(QColor(0x77, 0x77, 0x77), Qt::white), 4.48, 0.01);
}

TEST_F(ReadableText, faintTextIsStrengthened)
{
    m_form.setPalette(Light);
    EXPECT_LT(contrastOf(m_box), toolkit::ReadableContrast);
    toolkit::keepReadable(m_box);
    EXPECT_EQ(m_box.palette().color(QPalette::Disabled, QPalette::Text), QColor(0x20, 0x20, 0x20));
}

TEST_F(ReadableText, readableTextIsTheHostsBusiness)
{
    const QColor faint(0x60, 0x60, 0x60);
    m_form.setPalette(palette(Qt::white, Qt::black, faint));
    toolkit::keepReadable(m_box);
    EXPECT_EQ(m_box.palette().color(QPalette::Disabled, QPalette::Text), faint);
}

TEST_F(ReadableText, otherPalettesAreFollowed)
{
    toolkit::keepReadable(m_box);
    for (const QPalette &colours : {Dark, Light, Hopeless, Dark, Light}) {
        m_form.setPalette(colours);
        EXPECT_EQ(m_box.palette().color(QPalette::Disabled, QPalette::Base),
                  colours.color(QPalette::Disabled, QPalette::Base));
        EXPECT_GE(contrastOf(m_box), toolkit::ReadableContrast);
    }
}

TEST_F(ReadableText, thePaletteOfTheWholeProgramIsFollowedToo)
{
    toolkit::keepReadable(m_box);
    m_form.show();
    const QPalette before = QApplication::palette();
    for (const QPalette &colours : {Dark, Light}) {
        QApplication::setPalette(colours);
        QCoreApplication::processEvents();
        EXPECT_EQ(m_box.palette().color(QPalette::Disabled, QPalette::Base),
                  colours.color(QPalette::Disabled, QPalette::Base));
        EXPECT_GE(contrastOf(m_box), toolkit::ReadableContrast);
    }
    QApplication::setPalette(before);
}
