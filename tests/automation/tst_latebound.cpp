// SPDX-License-Identifier: MIT
// Late binding: names, kinds, conversions, named errors, lifetime.
#include "automation/error.h"
#include "automation/journal.h"
#include "automation/latebound.h"
#include "automation/registry.h"
#include "tests/automation/sampleobject.h"

#include <gtest/gtest.h>

using automation::Error;
using automation::Kind;
using automation::LateBound;

namespace {

class LateBoundTest : public testing::Test {
protected:
    LateBoundTest()
    {
        automation::registerObject(QStringLiteral("Sample.Object"), [&living = m_living, &last = m_last] {
            auto object = std::make_unique<SampleObject>(&living);
            last = object.get();
            return object;
        });
    }
    ~LateBoundTest() override { automation::unregisterObject(QStringLiteral("Sample.Object")); }

    template <typename Action> static Error::Reason reasonOf(Action action)
    {
        try {
            action();
        } catch (const Error &error) {
            EXPECT_FALSE(automation::messageOf(error).isEmpty());
            return error.reason();
        }
        ADD_FAILURE() << "nothing was thrown";
        return {};
    }

    int m_living = 0;
    SampleObject *m_last = nullptr;
};

const QString Id = QStringLiteral("Sample.Object");

} // namespace

TEST_F(LateBoundTest, nameIsTheLastPartOfTheIdentifier)
{
    EXPECT_EQ(LateBound(Id).name(), QStringLiteral("Object"));
}

TEST_F(LateBoundTest, identifierIsFoundWhateverItsLetterCase)
{
    EXPECT_FALSE(LateBound(QStringLiteral("SAMPLE.object")).isEmpty());
}

TEST_F(LateBoundTest, unknownIdentifierIsNamed)
{
    EXPECT_EQ(reasonOf([] { LateBound(QStringLiteral("Sample.Other")); }), Error::Reason::UnknownIdentifier);
    automation::unregisterObject(Id);
    EXPECT_EQ(reasonOf([] { LateBound{Id}; }), Error::Reason::UnknownIdentifier);
}

TEST_F(LateBoundTest, methodsAreCalledWithConvertedArguments)
{
    const LateBound object(Id);
    EXPECT_EQ(object.invoke(QStringLiteral("add"), Kind::Method, {2, 3}), QVariant(5));
    EXPECT_EQ(object.invoke(QStringLiteral("ADD"), Kind::Method, {QStringLiteral("20"), 3}), QVariant(23));
    EXPECT_EQ(object.invoke(QStringLiteral("echo"), Kind::Method, {QStringLiteral("甲")}),
              QVariant(QStringLiteral("甲")));
    EXPECT_FALSE(object.invoke(QStringLiteral("nothing"), Kind::Method).isValid());
    EXPECT_EQ(m_last->calls(), 1);
}

TEST_F(LateBoundTest, readsAndMethodsAreDifferentKinds)
{
    const LateBound object(Id);
    EXPECT_EQ(object.invoke(QStringLiteral("Param"), Kind::Read, {QStringLiteral("x")}),
              QVariant(QStringLiteral("x!")));
    EXPECT_FALSE(object.invoke(QStringLiteral("Param"), Kind::Read, {QStringLiteral("none")}).isValid());
    EXPECT_EQ(reasonOf([&] { object.invoke(QStringLiteral("Param"), Kind::Method, {QStringLiteral("x")}); }),
              Error::Reason::UnknownOperation);
    EXPECT_EQ(reasonOf([&] {
                  object.invoke(QStringLiteral("add"), Kind::Read, {1, 2});
              }),
              Error::Reason::UnknownOperation);
}

TEST_F(LateBoundTest, writesAssignProperties)
{
    const LateBound object(Id);
    object.invoke(QStringLiteral("Table"), Kind::Write, {QStringLiteral("p_ylfwdw")});
    EXPECT_EQ(m_last->table(), QStringLiteral("p_ylfwdw"));
    EXPECT_EQ(reasonOf([&] { object.invoke(QStringLiteral("objectName"), Kind::Write, {QStringLiteral("x")}); }),
              Error::Reason::UnknownOperation)
        << "what every QObject has is no operation of the host";
}

TEST_F(LateBoundTest, wrongUseIsNamed)
{
    const LateBound object(Id);
    EXPECT_EQ(reasonOf([&] { object.invoke(QStringLiteral("missing"), Kind::Method); }),
              Error::Reason::UnknownOperation);
    EXPECT_EQ(reasonOf([&] { object.invoke(QStringLiteral("deleteLater"), Kind::Method); }),
              Error::Reason::UnknownOperation);
    EXPECT_EQ(reasonOf([&] { object.invoke(QStringLiteral("add"), Kind::Method, {1}); }), Error::Reason::ArgumentCount);
    EXPECT_EQ(reasonOf([&] { object.invoke(QStringLiteral("Table"), Kind::Write); }), Error::Reason::ArgumentCount);
    EXPECT_EQ(reasonOf([&] {
                  object.invoke(QStringLiteral("add"), Kind::Method, {QStringLiteral("x"), 1});
              }),
              Error::Reason::ArgumentType);
    EXPECT_EQ(reasonOf([] { LateBound().invoke(QStringLiteral("add"), Kind::Method); }), Error::Reason::NoObject);
}

TEST_F(LateBoundTest, errorsOfTheOperationReachTheCaller)
{
    const LateBound object(Id);
    try {
        object.invoke(QStringLiteral("fail"), Kind::Method, {QStringLiteral("数据库忙")});
        FAIL();
    } catch (const std::runtime_error &error) {
        EXPECT_EQ(automation::messageOf(error), QStringLiteral("数据库忙"));
    }
}

TEST_F(LateBoundTest, packetsPassAsResults)
{
    const QVariant rows = LateBound(Id).invoke(QStringLiteral("rows"), Kind::Method);
    const auto packet = rows.value<automation::DataPacketPtr>();
    ASSERT_TRUE(packet);
    EXPECT_EQ(packet->text(0, 0), "1");
}

TEST_F(LateBoundTest, objectLivesAsLongAsItsReferences)
{
    auto first = std::make_unique<LateBound>(Id);
    EXPECT_EQ(m_living, 1);
    const LateBound second(*first);
    first.reset();
    EXPECT_EQ(m_living, 1);
    {
        const LateBound third(Id);
        EXPECT_EQ(m_living, 2) << "each creation makes an object of its own";
    }
    EXPECT_EQ(m_living, 1);
    EXPECT_EQ(second.invoke(QStringLiteral("add"), Kind::Method, {1, 1}), QVariant(2));
}

namespace {

class Recorder : public automation::CallObserver {
public:
    Recorder() { automation::addCallObserver(this); }
    ~Recorder() override { automation::removeCallObserver(this); }
    void called(const automation::CallRecord &call) override { calls.push_back(call); }
    std::vector<automation::CallRecord> calls;
};

} // namespace

TEST_F(LateBoundTest, journalHoldsEveryCallInOrder)
{
    const LateBound object(Id);
    Recorder recorder;
    object.invoke(QStringLiteral("add"), Kind::Method, {1, 2});
    object.invoke(QStringLiteral("Param"), Kind::Read, {QStringLiteral("x")});
    object.invoke(QStringLiteral("Table"), Kind::Write, {QStringLiteral("t")});
    EXPECT_THROW(object.invoke(QStringLiteral("fail"), Kind::Method, {QStringLiteral("坏")}), std::runtime_error);

    ASSERT_EQ(recorder.calls.size(), 4U);
    EXPECT_EQ(recorder.calls[0].object, QStringLiteral("Object"));
    EXPECT_EQ(recorder.calls[0].operation, QStringLiteral("add"));
    EXPECT_EQ(recorder.calls[0].arguments, QVariantList({1, 2}));
    EXPECT_EQ(recorder.calls[0].result, QVariant(3));
    EXPECT_TRUE(recorder.calls[0].succeeded);
    EXPECT_EQ(recorder.calls[1].kind, Kind::Read);
    EXPECT_EQ(recorder.calls[2].kind, Kind::Write);
    EXPECT_FALSE(recorder.calls[2].result.isValid());
    EXPECT_FALSE(recorder.calls[3].succeeded);
    EXPECT_EQ(recorder.calls[3].error, QStringLiteral("坏"));
}

TEST_F(LateBoundTest, journalHoldsAFailureThatIsNoException)
{
    const LateBound object(Id);
    const Recorder recorder;
    EXPECT_THROW(object.invoke(QStringLiteral("failOddly"), Kind::Method), int);
    ASSERT_EQ(recorder.calls.size(), 1U);
    EXPECT_FALSE(recorder.calls[0].succeeded);
    EXPECT_EQ(recorder.calls[0].error, QStringLiteral("未知错误。"));
}

TEST_F(LateBoundTest, journalEndsWithItsObserver)
{
    const LateBound object(Id);
    std::size_t kept = 0;
    {
        Recorder recorder;
        object.invoke(QStringLiteral("nothing"), Kind::Method);
        kept = recorder.calls.size();
    }
    object.invoke(QStringLiteral("nothing"), Kind::Method);
    EXPECT_EQ(kept, 1U);
    EXPECT_EQ(m_last->calls(), 2);
}
