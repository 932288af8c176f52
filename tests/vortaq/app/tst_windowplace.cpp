// SPDX-License-Identifier: MIT
// Tests of the places that windows get, on whatever screen they run.
#include "vortaq/app/windowplace.h"

#include <QApplication>
#include <QScreen>
#include <QWidget>

#include <gtest/gtest.h>

namespace vortaq::test {

namespace {

constexpr QSize Frame(16, 40); // as much as desktops put around a window

QRect room()
{
    return QGuiApplication::primaryScreen()->availableGeometry();
}

QSize part(double share)
{
    return QSizeF(room().size() * share).toSize();
}

/// What saveGeometry() says of a window with that size in the middle of the screen.
QByteArray remembered(const QSize &size)
{
    QWidget window;
    window.resize(size);
    window.move(room().center() - QRect(QPoint(0, 0), size).center());
    return window.saveGeometry();
}

} // namespace

TEST(WindowPlace, AWindowWithRoomAroundItStandsInTheMiddle)
{
    QWidget window;
    placeOnScreen(window, part(0.5));
    EXPECT_FALSE(window.isMaximized());
    EXPECT_EQ(window.size(), part(0.5));
    window.show();
    EXPECT_LE((window.frameGeometry().center() - room().center()).manhattanLength(), (Frame.width() + Frame.height()));
}

TEST(WindowPlace, AWindowThatNeedsNearlyAllOfTheScreenGetsItWhole)
{
    for (const QSize &wanted : {part(0.95), part(1), part(3), QSize(part(0.95).width(), part(0.3).height()),
                                QSize(part(0.3).width(), part(0.95).height())}) {
        QWidget window;
        placeOnScreen(window, wanted);
        EXPECT_TRUE(window.isMaximized());
        window.show();
        QApplication::processEvents();
        EXPECT_TRUE(room().contains(window.frameGeometry())) << wanted.width() << ' ' << wanted.height();
        window.showNormal();
        QApplication::processEvents();
        EXPECT_TRUE(room().contains(QRect(window.pos(), window.size() + Frame))) << "what it is when not maximised";
    }
}

TEST(WindowPlace, ARememberedPlaceIsTakenUp)
{
    QWidget window;
    placeOnScreen(window, part(0.95));
    restorePlace(window, remembered(part(0.6)));
    EXPECT_FALSE(window.isMaximized());
    EXPECT_EQ(window.size(), part(0.6));
}

TEST(WindowPlace, ARememberedSizeThatFitsNoMoreGetsTheWholeScreen)
{
    for (const double share : {1.0, 1.2, 2.0}) {
        QWidget window;
        placeOnScreen(window, part(0.5));
        restorePlace(window, remembered(part(share)));
        EXPECT_TRUE(window.isMaximized()) << share;
        window.show();
        QApplication::processEvents();
        EXPECT_TRUE(room().contains(window.frameGeometry())) << share;
    }
}

TEST(WindowPlace, NoRememberedPlaceChangesNothing)
{
    QWidget window;
    placeOnScreen(window, part(0.5));
    restorePlace(window, {});
    EXPECT_EQ(window.size(), part(0.5));
    EXPECT_FALSE(window.isMaximized());
}

} // namespace vortaq::test
