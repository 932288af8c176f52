// SPDX-License-Identifier: MIT
// Tests of the command line.
#include "vortaq/app/options.h"

#include <QFile>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace vortaq::test {

ParsedOptions parse(const QString &line)
{
    return parseOptions(QStringList{QStringLiteral("tarnwell-host")}
                        + line.split(QLatin1Char(' '), Qt::SkipEmptyParts));
}

TEST(Options, NothingMeansWorkWithDefaults)
{
    const ParsedOptions parsed = parse({});
    EXPECT_EQ(parsed.mistake, QString());
    EXPECT_EQ(parsed.options.task, Options::Task::Work);
    EXPECT_EQ(parsed.options.database, QString());
    EXPECT_EQ(parsed.options.user, QString());
    EXPECT_TRUE(parsed.options.parameters.empty());
    EXPECT_EQ(parsed.options.traceFile, QString());
    EXPECT_EQ(parsed.options.moduleFile, QString());
}

TEST(Options, AllOfWorking)
{
    const ParsedOptions parsed = parse(QStringLiteral(
        "--database a.db --user 02 --param isBillAll=2 --param Color-1= --trace=t.jsonl --module m.so --param A=b=c"));
    EXPECT_EQ(parsed.mistake, QString());
    EXPECT_EQ(parsed.options.database, QStringLiteral("a.db"));
    EXPECT_EQ(parsed.options.user, QStringLiteral("02"));
    EXPECT_EQ(parsed.options.traceFile, QStringLiteral("t.jsonl"));
    EXPECT_EQ(parsed.options.moduleFile, QStringLiteral("m.so"));
    ASSERT_EQ(parsed.options.parameters.size(), 3U);
    EXPECT_EQ(parsed.options.parameters[0].name, QStringLiteral("isBillAll"));
    EXPECT_EQ(parsed.options.parameters[0].value, QStringLiteral("2"));
    EXPECT_EQ(parsed.options.parameters[1].value, QString());
    EXPECT_EQ(parsed.options.parameters[2].name, QStringLiteral("A"));
    EXPECT_EQ(parsed.options.parameters[2].value, QStringLiteral("b=c"));
}

TEST(Options, CreatingADemo)
{
    const ParsedOptions parsed =
        parse(QStringLiteral("--create-demo d.db --records 5000 --archived 0 --seed 18446744073709551615"));
    EXPECT_EQ(parsed.mistake, QString());
    EXPECT_EQ(parsed.options.task, Options::Task::CreateDemo);
    EXPECT_EQ(parsed.options.demoFile, QStringLiteral("d.db"));
    EXPECT_EQ(parsed.options.records, 5000);
    EXPECT_EQ(parsed.options.archived, 0);
    EXPECT_EQ(parsed.options.seed, 18446744073709551615ULL);
}

TEST(Options, SizesOfADemoAreLeftToItsDefaults)
{
    const ParsedOptions parsed = parse(QStringLiteral("--create-demo d.db"));
    EXPECT_FALSE(parsed.options.records);
    EXPECT_FALSE(parsed.options.archived);
    EXPECT_FALSE(parsed.options.seed);
}

TEST(Options, TheOtherTasks)
{
    EXPECT_EQ(parse(QStringLiteral("--tour pictures")).options.task, Options::Task::Tour);
    EXPECT_EQ(parse(QStringLiteral("--tour pictures")).options.tourDirectory, QStringLiteral("pictures"));
    EXPECT_EQ(parse(QStringLiteral("--help")).options.task, Options::Task::ShowHelp);
    EXPECT_EQ(parse(QStringLiteral("-h --tour x")).options.task, Options::Task::ShowHelp);
    EXPECT_EQ(parse(QStringLiteral("--version")).options.task, Options::Task::ShowVersion);
}

struct Mistake {
    const char *name;
    const char *line;
    const char *message;
};

class OptionMistake : public testing::TestWithParam<Mistake> { };

TEST_P(OptionMistake, IsNamed)
{
    EXPECT_EQ(parse(QString::fromUtf8(GetParam().line)).mistake, QString::fromUtf8(GetParam().message));
}

INSTANTIATE_TEST_SUITE_P(
    Lines, OptionMistake,
    testing::Values(
        Mistake{"UnknownOption", "--databse a.db", "没有选项“databse”。"},
        Mistake{"Positional", "a.db", "多余的参数“a.db”。"},
        Mistake{"ParameterWithoutValue", "--param isBillAll", "选项 --param 的值“isBillAll”应为“名称=值”。"},
        Mistake{"ParameterWithoutName", "--param =2", "选项 --param 的值“=2”应为“名称=值”。"},
        Mistake{"RecordsNoNumber", "--create-demo d --records many", "选项 --records 的值“many”不是有效的数。"},
        Mistake{"RecordsNegative", "--create-demo d --records=-1", "选项 --records 的值“-1”不是有效的数。"},
        Mistake{"ArchivedTooLarge", "--create-demo d --archived 2147483648",
                "选项 --archived 的值“2147483648”不是有效的数。"},
        Mistake{"SeedEmpty", "--create-demo d --seed=", "选项 --seed 的值“”不是有效的数。"},
        Mistake{"RecordsWithoutDemo", "--records 5",
                "选项 --records、--archived、--seed 只能与 --create-demo 一起使用。"},
        Mistake{"DemoAndTour", "--create-demo d --tour t", "选项 --create-demo 与 --tour 不能同时使用。"},
        Mistake{"TourOnADatabase", "--tour t --database d",
                "选项 --tour 使用自己的演示数据，不能与 --database 同时使用。"},
        Mistake{"EmptyDatabase", "--database=", "选项 --database 的值不能为空。"},
        Mistake{"EmptyTrace", "--trace=", "选项 --trace 的值不能为空。"}),
    [](const auto &row) { return std::string(row.param.name); });

TEST(Options, AMissingValueIsAMistake)
{
    EXPECT_TRUE(parse(QStringLiteral("--database")).mistake.startsWith(QStringLiteral("命令行有误：")));
}

TEST(Options, TheHelpNamesEveryOption)
{
    const QString help = helpText();
    for (const char *option :
         {"--help", "--version", "--database <文件>", "--user <代码>", "--param <名称=值>", "--trace <文件>",
          "--module <文件>", "--create-demo <文件>", "--records <N>", "--archived <N>", "--seed <N>", "--tour <目录>"})
        EXPECT_TRUE(help.contains(QString::fromUtf8(option))) << option;
}

TEST(Options, TheManualPageNamesTheSameOptions)
{
    QFile page(QStringLiteral(TEST_MANUAL_PAGE));
    ASSERT_TRUE(page.open(QIODevice::ReadOnly));
    const QString manual = QString::fromUtf8(page.readAll()).remove(QLatin1Char('\\'));
    static const QRegularExpression inManual(QStringLiteral("^\\.B[IR] (?:-[a-z] \", \" )?--([a-z-]+)"),
                                             QRegularExpression::MultilineOption);
    static const QRegularExpression inHelp(QStringLiteral("^  .*--([a-z-]+)"), QRegularExpression::MultilineOption);
    const auto names = [](const QRegularExpression &pattern, const QString &text) {
        QStringList found;
        for (const QRegularExpressionMatch &match : pattern.globalMatch(text))
            found.append(match.captured(1));
        return found;
    };
    EXPECT_EQ(names(inManual, manual), names(inHelp, helpText()));
    EXPECT_EQ(names(inManual, manual).size(), 12);
}

} // namespace vortaq::test
