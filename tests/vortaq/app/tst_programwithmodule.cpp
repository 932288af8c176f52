// SPDX-License-Identifier: MIT
// Tests of the program with the real module: setup file, tour, trace.
#include "tests/vortaq/app/support/program.h"
#include "vortaq/app/exitcode.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <optional>

namespace vortaq::test {

struct SetupFile {
    const char *name;
    std::optional<QByteArray> contents; ///< none: no file
};

void PrintTo(const SetupFile &setup, std::ostream *out)
{
    *out << setup.name;
}

class SetupFileTest : public testing::TestWithParam<SetupFile> { };

// The module converts connStyle strictly; its error must reach the clerk, and the program must go on.
TEST_P(SetupFileTest, WithoutANumberIsAnErrorOnTheScreen)
{
    const QTemporaryDir folder;
    Program program = Program::copied(folder.path());
    if (GetParam().contents) {
        QFile setup(folder.filePath(QStringLiteral("setup.ini")));
        ASSERT_TRUE(setup.open(QIODevice::WriteOnly));
        setup.write(*GetParam().contents);
    }
    const QString errors =
        program.errorsUntil({}, [](const QString &text) { return text.contains(QStringLiteral("核对。）\n")); });
    EXPECT_EQ(errors.count(QStringLiteral("载入窗口时出错：\n")), 1) << errors.toStdString();
    EXPECT_TRUE(errors.contains(folder.filePath(QStringLiteral("setup.ini")))) << errors.toStdString();
}

INSTANTIATE_TEST_SUITE_P(Files, SetupFileTest,
                         testing::Values(SetupFile{"Missing", {}}, SetupFile{"Empty", QByteArray()},
                                         SetupFile{"EmptyValue", QByteArrayLiteral("[system]\nconnStyle=\n")},
                                         SetupFile{"NoInteger", QByteArrayLiteral("[system]\nconnStyle=1.0\n")},
                                         SetupFile{"OtherSection", QByteArrayLiteral("[other]\nconnStyle=1\n")}),
                         [](const auto &row) { return std::string(row.param.name); });

class TourTest : public testing::Test {
protected:
    Outcome tour(const QStringList &more)
    {
        return m_program.run(QStringList{QStringLiteral("--tour"), m_pictures} + more);
    }
    [[nodiscard]] QStringList pictures() const
    {
        return QDir(m_pictures).entryList({QStringLiteral("*.png")}, QDir::Files, QDir::Name);
    }

    Program m_program;
    QString m_pictures = m_program.path(QStringLiteral("tour"));
};

/// The operations on one object, in order.
QStringList operations(const QByteArray &trace, const QString &object)
{
    QStringList found;
    for (const QByteArray &line : trace.split('\n')) {
        const QJsonObject call = QJsonDocument::fromJson(line).object();
        if (call.value(QStringLiteral("object")) == object)
            found.append(call.value(QStringLiteral("operation")).toString());
    }
    return found;
}

TEST_F(TourTest, WalksThroughAndLeavesPicturesAndATrace)
{
    const QString trace = m_program.path(QStringLiteral("trace.jsonl"));
    const Outcome outcome = tour({QStringLiteral("--trace"), trace});
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_EQ(outcome.errors, QString());
    EXPECT_EQ(outcome.output, QStringLiteral("演示完成，画面在“%1”。\n").arg(m_pictures));

    EXPECT_GE(pictures().size(), 14);
    int number = 0;
    for (const QString &file : pictures())
        EXPECT_TRUE(file.startsWith(QStringLiteral("%1-").arg(++number, 2, 10, QLatin1Char('0'))))
            << file.toStdString();

    EXPECT_EQ(QDir(m_pictures).entryList({QStringLiteral("*.pdf")}, QDir::Files, QDir::Name),
              QStringList({QStringLiteral("住院审批表.pdf"), QStringLiteral("结算单.pdf"),
                           QStringLiteral("费用清单(总).pdf"), QStringLiteral("费用清单.pdf")}));

    QFile lines(trace);
    ASSERT_TRUE(lines.open(QIODevice::ReadOnly));
    const QByteArray text = lines.readAll();
    const QByteArray firstCall =
        R"({"object":"FuncStorage","operation":"CustomParam","kind":"read","args":["AreaCode"],)";
    EXPECT_EQ(text.left(firstCall.size()), firstCall);
    EXPECT_TRUE(text.contains(
        R"({"object":"FuncStorage","operation":"ShowHint","kind":"method","args":["制单成功！"],"ok":true})"));
    EXPECT_TRUE(
        text.contains(R"({"object":"DataCtl","operation":"ExecProc","kind":"method","args":[" Pro_Zy_FeeInterFace )"));
    EXPECT_TRUE(text.contains(R"("ok":true,"result":"1&)"));
    EXPECT_FALSE(text.contains(R"("ok":false)"));
    EXPECT_EQ(operations(text, QStringLiteral("CodeSearch")).join(QLatin1Char(' ')),
              QStringLiteral("Init Table Where OrderBy FieldList CustomField CodeType Code SetPosition Show "
                             "GetCodeValue GetCodeValue"));
}

TEST_F(TourTest, AnUnexpectedErrorEndsTheTour)
{
    const Outcome outcome = tour({QStringLiteral("--param"), QStringLiteral("Color-2=green")});
    EXPECT_EQ(outcome.exitCode, static_cast<int>(ExitCode::Tour));
    EXPECT_TRUE(outcome.errors.contains(QStringLiteral("意外的窗口："))) << outcome.errors.toStdString();
    EXPECT_EQ(outcome.output, QString());
    EXPECT_TRUE(pictures().contains(QStringLiteral("trouble-1.png")));
}

} // namespace vortaq::test
