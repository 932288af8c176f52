// SPDX-License-Identifier: MIT
// Conditions over ticked records, and how one of them is cut out again.
#include "data/recordkey.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;
using namespace data;

namespace {

const RecordKey First{u"A1"_s, u"0012"_s, u"1"_s, u"3"_s};
const RecordKey Second{u"A1"_s, u"0040"_s, u"2"_s, u"1"_s};
const RecordKey Third{u"院'"_s, u"证'号"_s, u"003"_s, u"-4"_s};
const RecordKey Absent{u"A1"_s, u"9999"_s, u"1"_s, u"1"_s};

TEST(RecordKey, clauseQuotesOnlyTheFirstTwoValues)
{
    EXPECT_EQ(recordClause(Third).toStdString(),
              "(OrgCode='院''' and CoopMedCode='证''号' and IDNo=003 and DiagNo=-4)");
}

TEST(RecordKey, conditionOfDocumentsIsWideBeforeIDNo)
{
    EXPECT_EQ(recordCondition(First), u"OrgCode='A1' and CoopMedCode='0012'   and IDNo=1 and DiagNo=3"_s);
}

TEST(RecordKey, conditionTakesTheSpellingGiven)
{
    EXPECT_EQ(recordCondition(First, {u"a=", u",b=", u";c=", u"|d="}), u"a='A1',b='0012';c=1|d=3"_s);
}

TEST(AnyOfRecords, ofNoneIsEmpty)
{
    EXPECT_EQ(anyOfRecords({}), QString());
}

TEST(AnyOfRecords, ofOneBeginsWithABlank)
{
    EXPECT_EQ(anyOfRecords({First}), u" (OrgCode='A1' and CoopMedCode='0012' and IDNo=1 and DiagNo=3)"_s);
}

TEST(AnyOfRecords, joinsInTheOrderGiven)
{
    EXPECT_EQ(anyOfRecords({First, Second}),
              u" (OrgCode='A1' and CoopMedCode='0012' and IDNo=1 and DiagNo=3)"
              u" or (OrgCode='A1' and CoopMedCode='0040' and IDNo=2 and DiagNo=1)"_s);
}

TEST(AnyOfRecords, keepsARecordGivenTwice)
{
    EXPECT_EQ(anyOfRecords({First, First}), u' ' + recordClause(First) + u" or "_s + recordClause(First));
}

TEST(WithoutRecord, cutsAClauseInTheMiddle)
{
    // The blank before "or" stays, so the next clause follows two blanks.
    EXPECT_EQ(withoutRecord(anyOfRecords({First, Second, Third}), Second).toStdString(),
              " (OrgCode='A1' and CoopMedCode='0012' and IDNo=1 and DiagNo=3)"
              "  or (OrgCode='院''' and CoopMedCode='证''号' and IDNo=003 and DiagNo=-4)");
}

TEST(WithoutRecord, cutsTheLastClause)
{
    EXPECT_EQ(withoutRecord(anyOfRecords({First, Third}), Third),
              u" (OrgCode='A1' and CoopMedCode='0012' and IDNo=1 and DiagNo=3) "_s);
}

TEST(WithoutRecord, leavesTheWordOrWhenTheFirstClauseGoes)
{
    // The next query fails on it; nothing is written then.
    EXPECT_EQ(withoutRecord(anyOfRecords({First, Second}), First),
              u" or (OrgCode='A1' and CoopMedCode='0040' and IDNo=2 and DiagNo=1)"_s);
}

TEST(WithoutRecord, leavesNothingOfASingleClause)
{
    EXPECT_EQ(withoutRecord(anyOfRecords({First}), First), QString());
}

TEST(WithoutRecord, cutsOnlyTheFirstOccurrence)
{
    EXPECT_EQ(withoutRecord(anyOfRecords({First, Second, Second}), Second),
              u' ' + recordClause(First) + u"  or "_s + recordClause(Second));
}

TEST(WithoutRecord, cutsFromTheStartWhenTheClauseIsNotFound)
{
    // As many characters as the clause has, less one, are lost from the start.
    EXPECT_EQ(withoutRecord(anyOfRecords({First, Second}), Absent),
              u"3) or (OrgCode='A1' and CoopMedCode='0040' and IDNo=2 and DiagNo=1)"_s);
}

TEST(WithoutRecord, doesNotFindAnotherSpellingOfANumber)
{
    const RecordKey stored{u"A1"_s, u"0040"_s, u"02"_s, u"1"_s};
    const QString condition = anyOfRecords({First, Second});
    EXPECT_EQ(withoutRecord(condition, stored), condition.sliced(recordClause(stored).size() - 1));
}

TEST(WithoutRecord, ofAConditionShorterThanTheClauseIsEmpty)
{
    EXPECT_EQ(withoutRecord(QString(), First), QString());
    EXPECT_EQ(withoutRecord(u" (1=1)"_s, First), QString());
}

TEST(WithoutRecord, canBeRepeatedDownToTheFirst)
{
    QString condition = anyOfRecords({First, Second, Third});
    condition = withoutRecord(condition, Second);
    condition = withoutRecord(condition, Third);
    EXPECT_EQ(condition, u' ' + recordClause(First) + u"  "_s);
}

} // namespace
