// SPDX-License-Identifier: MIT
// The preview window, driven by its keys.
#include "report/output/dialogs.h"
#include "report/preview/PreviewWindow.h"
#include "report/preview/pageview.h"
#include "report/template/templatereader.h"

#include "automation/errordisplay.h"
#include "host/clientdataset.h"
#include "tests/report/samplepaper.h"
#include "tests/support/hands.h"
#include "toolkit/clock.h"
#include "toolkit/messageboxes.h"

#include <QComboBox>
#include <QFileInfo>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollBar>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

using namespace report;

struct AnsweringDialogs final : Dialogs {
    bool printer = false;
    QString file;
    QStringList asked;

    bool hasPrinter() override { return printer; }
    bool choosePrinter(QWidget *, QPrinter &, int pages) override
    {
        asked.append(QStringLiteral("printer of %1").arg(pages));
        return false;
    }
    QString chooseFile(QWidget *, const QString &caption, const QString &name, const QString &suffix) override
    {
        asked.append(caption + u'|' + name + u'|' + suffix);
        return file;
    }
};

struct NotedBoxes final : toolkit::MessageBoxes {
    QStringList told;

    bool ask(QWidget *, const QString &, const QString &) override
    {
        ADD_FAILURE() << "a question";
        return false;
    }
    void tell(QWidget *, const QString &title, const QString &text) override { told.append(title + u'|' + text); }
};

class Preview : public testing::Test {
protected:
    Preview()
        : document(
            parseTemplate("<report title='日/清单' fileName='日/清单 [ItemName] [Today]' paper='A5'>"
                          "<detail height='50'><text x='0' y='0' w='90' h='9'>[ItemName][Check]</text></detail>"
                          "<pageFooter><text x='0' y='0' w='90' h='9'>[Page]/[Pages]</text></pageFooter></report>",
                          QStringLiteral("单.rmf")),
            items(), {}, [this](const QString &, QVariant &) {
                if (++m_checked == m_failingCheck)
                    throw std::runtime_error("坏了");
            })
    {
        setDialogs(&dialogs);
        toolkit::setMessageBoxes(&boxes);
        toolkit::setClock([] { return QDate(2026, 11, 21); });
        document.layOutNext();
    }
    ~Preview() override
    {
        setDialogs(nullptr);
        toolkit::setMessageBoxes(nullptr);
        toolkit::setClock({});
    }

    static RowSource items()
    {
        TClientDataSet rows;
        samplepaper::fillFeeItems(rows, 15); // three a page: five pages
        return RowSource(rows);
    }

    void open(PreviewWindow &window)
    {
        window.resize(900, 600);
        window.show();
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    /// A button pressed by its letter clicks a moment later.
    static void press(PreviewWindow &window, Qt::Key key, const char *button)
    {
        bool clicked = false;
        const auto connection = QObject::connect(&part<QPushButton>(window, button), &QPushButton::clicked, &window,
                                                 [&clicked] { clicked = true; });
        QTest::keyClick(&window, key, Qt::AltModifier);
        EXPECT_TRUE(QTest::qWaitFor([&clicked] { return clicked; })) << button;
        QObject::disconnect(connection);
    }
    template <typename Component> static Component &part(const QWidget &window, const char *name)
    {
        return hands::find<Component>(window, name);
    }
    static int shownPage(const PreviewWindow &window) { return part<QSpinBox>(window, "edtPage").value(); }

    QTemporaryDir folder;
    AnsweringDialogs dialogs;
    NotedBoxes boxes;
    int m_checked = 0;
    int m_failingCheck = -1;
    Document document;
};

TEST_F(Preview, KeysTurnThePages)
{
    ASSERT_TRUE(document.finish());
    PreviewWindow window(document, nullptr);
    open(window);
    EXPECT_EQ(window.windowTitle(), QStringLiteral("打印预览 - 日/清单"));
    EXPECT_EQ(part<QLabel>(window, "LbPages").text(), QStringLiteral("页，共 5 页"));
    EXPECT_FALSE(part<QPushButton>(window, "btnPrevious").isEnabled());
    press(window, Qt::Key_D, "btnNext");
    EXPECT_EQ(shownPage(window), 2);
    press(window, Qt::Key_U, "btnPrevious");
    EXPECT_EQ(shownPage(window), 1);
    press(window, Qt::Key_L, "btnLast");
    EXPECT_EQ(shownPage(window), 5);
    EXPECT_FALSE(part<QPushButton>(window, "btnNext").isEnabled());
    QTest::keyClick(&window, Qt::Key_Home, Qt::ControlModifier);
    EXPECT_EQ(shownPage(window), 1);
    QTest::keyClick(&window, Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(shownPage(window), 5);
    press(window, Qt::Key_F, "btnFirst");
    EXPECT_EQ(shownPage(window), 1);
    QTest::keyClick(&window, Qt::Key_G, Qt::AltModifier);
    auto &page = part<QSpinBox>(window, "edtPage");
    EXPECT_TRUE(page.hasFocus());
    page.selectAll();
    QTest::keyClicks(&page, QStringLiteral("4"));
    QTest::keyClick(&page, Qt::Key_Return);
    EXPECT_EQ(part<PageView>(window, "view").page(), 3);
}

TEST_F(Preview, PageKeysScrollAndThenTurn)
{
    ASSERT_TRUE(document.finish());
    PreviewWindow window(document, nullptr);
    open(window);
    auto &view = part<PageView>(window, "view");
    EXPECT_TRUE(view.hasFocus());
    const int end = view.verticalScrollBar()->maximum();
    ASSERT_GT(end, 0);
    int steps = 0;
    while (shownPage(window) == 1 && steps < 10) {
        QTest::keyClick(&view, Qt::Key_PageDown);
        ++steps;
    }
    EXPECT_GT(steps, 1);
    EXPECT_EQ(shownPage(window), 2);
    EXPECT_EQ(view.verticalScrollBar()->value(), 0);
    QTest::keyClick(&view, Qt::Key_PageUp);
    EXPECT_EQ(shownPage(window), 1);
    QTest::keyClick(&view, Qt::Key_PageUp);
    EXPECT_EQ(shownPage(window), 1);
}

TEST_F(Preview, ZoomsInStepsAndToFit)
{
    PreviewWindow window(document, nullptr);
    open(window);
    auto &view = part<PageView>(window, "view");
    auto &zoom = part<QComboBox>(window, "cbZoom");
    EXPECT_EQ(zoom.currentText(), QStringLiteral("适合宽度"));
    EXPECT_EQ(view.horizontalScrollBar()->maximum(), 0);
    zoom.setCurrentText(QStringLiteral("整页"));
    EXPECT_EQ(view.verticalScrollBar()->maximum(), 0);
    zoom.setCurrentText(QStringLiteral("100%"));
    EXPECT_EQ(view.percent(), 100);
    QTest::keyClick(&window, Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(view.percent(), 125);
    QTest::keyClick(&window, Qt::Key_Minus, Qt::ControlModifier);
    QTest::keyClick(&window, Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(view.percent(), 75);
    zoom.setCurrentText(QStringLiteral("400%"));
    QTest::keyClick(&window, Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(view.percent(), 400);
    QTest::keyClick(&window, Qt::Key_Z, Qt::AltModifier);
    EXPECT_TRUE(zoom.hasFocus());
}

TEST_F(Preview, SavesAndExportsTheWholeDocument)
{
    PreviewWindow window(document, nullptr);
    open(window);
    dialogs.file = folder.filePath(QStringLiteral("a.pdf"));
    press(window, Qt::Key_S, "btnPdf");
    EXPECT_TRUE(QFileInfo::exists(dialogs.file));
    EXPECT_EQ(part<QLabel>(window, "LbState").text(), QStringLiteral("已保存：") + dialogs.file);
    EXPECT_EQ(part<QLabel>(window, "LbPages").text(), QStringLiteral("页，共 5 页"));
    dialogs.file = folder.filePath(QStringLiteral("a.xlsx"));
    press(window, Qt::Key_E, "btnSpreadsheet");
    EXPECT_TRUE(QFileInfo::exists(dialogs.file));
    EXPECT_EQ(dialogs.asked,
              (QStringList{QStringLiteral("保存为 PDF|日清单 普通床位费（三人间） 2026-11-21|pdf"),
                           QStringLiteral("导出表格|日清单 普通床位费（三人间） 2026-11-21|xlsx")}));
}

TEST_F(Preview, NothingIsWrittenWhenTheClerkCancels)
{
    PreviewWindow window(document, nullptr);
    open(window);
    QTest::keyClick(&window, Qt::Key_S, Qt::ControlModifier);
    QTest::keyClick(&window, Qt::Key_E, Qt::ControlModifier);
    dialogs.printer = true;
    QTest::keyClick(&window, Qt::Key_P, Qt::ControlModifier);
    EXPECT_EQ(dialogs.asked.last(), QStringLiteral("printer of 5"));
    EXPECT_EQ(part<QLabel>(window, "LbState").text(), QString());
}

TEST_F(Preview, WithoutAPrinterTheDocumentBecomesAPdf)
{
    PreviewWindow window(document, nullptr);
    open(window);
    dialogs.file = folder.filePath(QStringLiteral("a.pdf"));
    press(window, Qt::Key_P, "btnPrint");
    EXPECT_EQ(boxes.told, QStringList{QStringLiteral("打印|没有可用的打印机，将保存为 PDF 文件。")});
    EXPECT_TRUE(QFileInfo::exists(dialogs.file));
}

TEST_F(Preview, AFailingSaveReachesTheErrorDisplay)
{
    QStringList shown;
    const auto before = automation::setErrorDisplay([&shown](const QString &message) { shown.append(message); });
    PreviewWindow window(document, nullptr);
    open(window);
    dialogs.file = folder.filePath(QStringLiteral("没有/a.pdf"));
    press(window, Qt::Key_S, "btnPdf");
    automation::setErrorDisplay(before);
    ASSERT_EQ(shown.size(), 1);
    EXPECT_TRUE(shown.first().startsWith(QStringLiteral("保存 PDF 时出错：\n无法写入文件“%1”：").arg(dialogs.file)));
    EXPECT_TRUE(window.isVisible());
}

TEST_F(Preview, LaysOutTheRestWhileOpenAndClosesByKey)
{
    PreviewWindow window(document, nullptr);
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, &window, [&] {
        poll.stop();
        if (!document.isFinished())
            poll.start(0);
        else
            QTest::keyClick(&window, Qt::Key_X, Qt::AltModifier);
    });
    poll.start(0);
    window.run();
    EXPECT_EQ(document.pageCount(), 5);
}

TEST_F(Preview, AFailureWhileLayingOutComesOutOfTheWindow)
{
    m_failingCheck = m_checked + 4;
    PreviewWindow window(document, nullptr);
    try {
        window.run();
        FAIL() << "no failure";
    } catch (const std::runtime_error &error) {
        EXPECT_STREQ(error.what(), "坏了");
    }
}

TEST_F(Preview, LongLayingOutShowsItsProgressAndCanBeStopped)
{
    qint64 now = 0;
    PreviewWindow window(document, nullptr, [&now] { return now; });
    open(window);
    auto &bar = part<QProgressBar>(window, "barLayout");
    auto &stop = part<QPushButton>(window, "btnStopLayout");
    EXPECT_FALSE(bar.isVisible());
    now = 1000;
    QTest::keyClick(&window, Qt::Key_Home, Qt::ControlModifier);
    EXPECT_TRUE(bar.isVisible());
    EXPECT_EQ(bar.value(), 200);
    EXPECT_TRUE(stop.isVisible());
    press(window, Qt::Key_T, "btnStopLayout");
    EXPECT_FALSE(bar.isVisible());
    EXPECT_EQ(part<QLabel>(window, "LbState").text(), QStringLiteral("排版已停止，只显示前 1 页。"));
    EXPECT_EQ(part<QLabel>(window, "LbPages").text(), QStringLiteral("页，已排 1 页"));
}

TEST(Busy, AppearsWithTheSecondSecondAndStopsTheJob)
{
    qint64 now = 0;
    BusyDialog busy(nullptr, QStringLiteral("正在保存……"), [&now] { return now; });
    EXPECT_TRUE(busy.advance(10));
    now = 999;
    EXPECT_TRUE(busy.advance(20));
    EXPECT_FALSE(busy.isVisible());
    now = 1000;
    EXPECT_TRUE(busy.advance(300));
    EXPECT_TRUE(busy.isVisible());
    EXPECT_EQ(hands::find<QProgressBar>(busy, "barBusy").value(), 300);
    now = 1010;
    EXPECT_TRUE(busy.advance(310)); // too soon to look again
    EXPECT_EQ(hands::find<QProgressBar>(busy, "barBusy").value(), 300);
    QTest::keyClick(&busy, Qt::Key_Escape);
    now = 2000;
    EXPECT_FALSE(busy.advance(400));
    EXPECT_FALSE(busy.isVisible());
}

} // namespace
