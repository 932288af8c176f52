// SPDX-License-Identifier: MIT
// What is waiting while the clerk is told of success: the hint itself is painted, clicks and keys come later.
#include "tests/uMain/billpages.h"

#include <QAbstractButton>
#include <QWindow>

#include <functional>

// What window systems hand their events to, declared here because Qt installs no header of it: the calls that QTest
// has do not queue a click, they handle it at once.
class QWindowSystemInterface {
public:
    struct AsynchronousDelivery;
    template <typename Delivery>
    static bool handleMouseEvent(QWindow *window, const QPointF &local, const QPointF &global, Qt::MouseButtons state,
                                 Qt::MouseButton button, QEvent::Type type, Qt::KeyboardModifiers modifiers,
                                 Qt::MouseEventSource source);
    template <typename Delivery>
    static bool handleKeyEvent(QWindow *window, QEvent::Type type, int key, Qt::KeyboardModifiers modifiers,
                               const QString &text, bool autoRepeat, unsigned short count);
};

namespace {

using Queued = QWindowSystemInterface::AsynchronousDelivery;

/// Notes the order in which database and hint are called, and does something as soon as the hint is heard.
class AtTheHint : public automation::CallObserver {
public:
    AtTheHint(QStringList &order, std::function<void()> deed)
        : m_order(order)
        , m_deed(std::move(deed))
    {
        automation::addCallObserver(this);
    }
    ~AtTheHint() override { automation::removeCallObserver(this); }

    void called(const automation::CallRecord &call) override
    {
        const bool isHint = call.operation == QStringLiteral("ShowHint");
        if (isHint || call.object == QStringLiteral("DataCtl"))
            m_order.append(call.operation);
        if (isHint)
            m_deed();
    }

private:
    QStringList &m_order;
    std::function<void()> m_deed;
};

void queueClick(QWidget &widget)
{
    QWidget &window = *widget.window();
    const QPointF place = widget.mapTo(&window, widget.rect().center());
    const auto queue = [&](Qt::MouseButtons state, QEvent::Type type) {
        QWindowSystemInterface::handleMouseEvent<Queued>(window.windowHandle(), place, window.mapToGlobal(place), state,
                                                         Qt::LeftButton, type, {}, Qt::MouseEventNotSynthesized);
    };
    queue(Qt::LeftButton, QEvent::MouseButtonPress);
    queue(Qt::NoButton, QEvent::MouseButtonRelease);
}

void queueKey(const QWidget &window, Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease})
        QWindowSystemInterface::handleKeyEvent<Queued>(window.windowHandle(), type, key, modifiers, QString(), false,
                                                       1);
}

class PendingEventsTest : public BillPageTest {
protected:
    /// Bill 21 chosen; the button that does nothing tells when it is pressed.
    void openBill()
    {
        open();
        form().activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&form()));
        choose(Two);
        QObject::connect(&inertButton(), &QAbstractButton::pressed, &form(),
                         [this] { m_order.append(QStringLiteral("pressed")); });
    }
    [[nodiscard]] QAbstractButton &inertButton() const
    {
        return hands::find<QAbstractButton>(form(), m_page->uploadOne);
    }
    /// What an event notes that was queued at the hint.
    [[nodiscard]] std::function<void()> queueNote()
    {
        return [this] {
            QMetaObject::invokeMethod(
                &form(), [this] { m_order.append(QStringLiteral("pending")); }, Qt::QueuedConnection);
        };
    }
    /// The order of things from the action on until what was queued at the hint has had its turn.
    [[nodiscard]] QStringList order(std::function<void()> atTheHint, const std::function<QStringList()> &action)
    {
        m_order.clear();
        const AtTheHint observer(m_order, std::move(atTheHint));
        (void)action();
        m_order.append(QStringLiteral("done"));
        EXPECT_TRUE(QTest::qWaitFor([this] {
            return m_order.contains(QStringLiteral("pending")) || m_order.contains(QStringLiteral("pressed"));
        }));
        return m_order;
    }
    [[nodiscard]] static QStringList words(const char *text) { return QString::fromUtf8(text).split(QLatin1Char(' ')); }
    [[nodiscard]] static QStringList queries(int count)
    {
        QStringList calls;
        for (int i = 0; i < count; ++i)
            calls += words("OpenSql CloseSql");
        return calls;
    }

    QStringList m_order;
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Pages, PendingEventsTest, testing::Values(&Reported, &Returned), pageName);

TEST_P(PendingEventsTest, runBeforeTheCommitOfAWholeCancel)
{
    openBill();
    EXPECT_EQ(order(queueNote(), [this] { return triggerAndConfirm(m_page->cancel); }),
              words("BeginTran execSql execSql ShowHint pending CommitTran") + queries(5) + words("done"));
}

TEST_P(PendingEventsTest, runBeforeTheReloadsOfAReport)
{
    openBill();
    EXPECT_EQ(order(queueNote(), [this] { return triggerAndConfirm(m_page->report); }),
              words("OpenSql CloseSql execSql ShowHint pending") + queries(2) + words("done"));
}

TEST_P(PendingEventsTest, waitUntilASingleCancelIsOver)
{
    openBill();
    EXPECT_EQ(order(queueNote(), [this] { return clickAndConfirm(m_page->cancelOne); }),
              words("BeginTran execSql execSql execSql CommitTran ShowHint") + queries(4) + words("done pending"));
}

// A click that began a second change here would do so within the transaction of the first.
TEST_P(PendingEventsTest, clicksWaitUntilTheChangeIsOver)
{
    for (const char *item : {GetParam()->cancel, GetParam()->report}) {
        openBill();
        const QStringList all = order([this] { queueClick(inertButton()); }, [&] { return triggerAndConfirm(item); });
        EXPECT_EQ(all.mid(all.size() - 2), words("done pressed")) << item;
        EXPECT_EQ(all.count(QStringLiteral("pressed")), 1) << item;
    }
}

TEST_P(PendingEventsTest, keysWaitUntilTheChangeIsOver)
{
    for (const char *item : {GetParam()->cancel, GetParam()->report}) {
        openBill();
        const QStringList all =
            order([this] { queueKey(form(), Qt::Key_U, Qt::AltModifier); }, [&] { return triggerAndConfirm(item); });
        EXPECT_EQ(all.mid(all.size() - 2), words("done pressed")) << item;
    }
}
