// SPDX-License-Identifier: MIT
// Data sources in a configuration file of the test's own.
#include "Common/TCtrlFunc.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

class Odbc : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_folder.isValid());
        m_path = m_folder.filePath(u"odbc.ini"_s);
        qputenv("ODBCINI", m_path.toUtf8());
    }

    void TearDown() override { qunsetenv("ODBCINI"); }

    [[nodiscard]] std::string content() const
    {
        QFile file(m_path);
        return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string();
    }

    QTemporaryDir m_folder;
    QString m_path;
    TCtrlFunc m_functions;
};

common::OdbcSource source()
{
    return {u"卫生院"_s,  u"10.0.0.8"_s, u"C:\\data\\hospital.db"_s, u"dbodbc8.dll"_s, u"hospital"_s,
            u"p;w'd=1"_s, u"clerk"_s};
}

TEST_F(Odbc, writesAndRegistersTheSource)
{
    ASSERT_TRUE(m_functions.WriteODBC(source()));
    EXPECT_EQ(content(),
              "[卫生院]\n"
              "AutoStop=YES\n"
              "CommLinks=SharedMemory,TCPIP{host=10.0.0.8}\n"
              "DatabaseFile=C:\\data\\hospital.db\n"
              "Compress=NO\n"
              "Debug=NO\n"
              "DisableMultiRowFetch=NO\n"
              "Driver=dbodbc8.dll\n"
              "EngineName=hospital\n"
              "Integrated=NO\n"
              "PWD=p;w'd=1\n"
              "UID=clerk\n"
              "\n"
              "[ODBC Data Sources]\n"
              "卫生院=Adaptive Server Anywhere 8.0\n"
              "\n");
}

TEST_F(Odbc, leavesTheLinksOutWithoutAHost)
{
    common::OdbcSource local = source();
    local.host.clear();
    ASSERT_TRUE(m_functions.WriteODBC(local));
    EXPECT_EQ(content().find("CommLinks"), std::string::npos);
    EXPECT_NE(content().find("AutoStop=YES\nDatabaseFile="), std::string::npos);
}

TEST_F(Odbc, changesASourceAndLeavesTheOthers)
{
    common::OdbcSource other = source();
    other.name = u"other"_s;
    ASSERT_TRUE(m_functions.WriteODBC(other));
    ASSERT_TRUE(m_functions.WriteODBC(source()));
    const std::string before = content();
    common::OdbcSource changed = source();
    changed.engineName = u"second"_s;
    ASSERT_TRUE(m_functions.WriteODBC(changed));
    std::string expected = before;
    const std::size_t section = expected.find("[卫生院]");
    const std::size_t engine = expected.find("EngineName=hospital", section);
    ASSERT_NE(engine, std::string::npos);
    expected.replace(engine, 19, "EngineName=second");
    EXPECT_EQ(content(), expected);
}

struct Hostile {
    const char *name;
    QString common::OdbcSource::*field;
    QString value;
};

class HostileSource : public Odbc, public testing::WithParamInterface<Hostile> { };

TEST_P(HostileSource, isRefusedAndWritesNothing)
{
    common::OdbcSource hostile = source();
    hostile.*GetParam().field = GetParam().value;
    EXPECT_FALSE(m_functions.WriteODBC(hostile));
    EXPECT_FALSE(QFile::exists(m_path));
}

using Source = common::OdbcSource;
const Hostile HostileSources[] = {
    {"EmptyName", &Source::name, u""_s},
    {"BlankName", &Source::name, u" "_s},
    {"NameWithBlankBehind", &Source::name, u"a "_s},
    {"NameWithBrackets", &Source::name, u"a]"_s},
    {"NameWithOpenBracket", &Source::name, u"[a"_s},
    {"NameWithLineBreak", &Source::name, u"a\n[b"_s},
    {"NameWithSeparator", &Source::name, u"a\\b"_s},
    {"NameWithEqualsSign", &Source::name, u"a=b"_s},
    {"NameWithComment", &Source::name, u";a"_s},
    {"NameWithHash", &Source::name, u"#a"_s},
    {"NameTooLong", &Source::name, QString(33, u'a')},
    {"NameTooLongInBytes", &Source::name, QString(11, u'院')},
    {"NameOfTheRegister", &Source::name, u"odbc data sources"_s},
    {"NameOfTheManager", &Source::name, u"ODBC"_s},
    {"NameWithZero", &Source::name, QString(u'a') + QChar(u'\0') + u'b'},
    {"HostThatEndsItself", &Source::host, u"a},Evil{b"_s},
    {"HostWithComma", &Source::host, u"a,b"_s},
    {"HostWithLineBreak", &Source::host, u"a\r\nPWD=x"_s},
    {"FileWithLineBreak", &Source::databaseFile, u"a\n[b]\nc=d"_s},
    {"DriverWithLineBreak", &Source::driverFile, u"a\nb"_s},
    {"EngineWithTab", &Source::engineName, u"a\tb"_s},
    {"PasswordWithBlankBehind", &Source::password, u"a "_s},
    {"UserWithLineBreak", &Source::userName, u"a\n"_s},
    {"UserTooLong", &Source::userName, QString(901, u'a')},
};

INSTANTIATE_TEST_SUITE_P(Fields, HostileSource, testing::ValuesIn(HostileSources),
                         [](const testing::TestParamInfo<Hostile> &row) { return row.param.name; });

TEST_F(Odbc, takesTheLongestNameAndValue)
{
    common::OdbcSource longest = source();
    longest.name = QString(32, u'a');
    longest.databaseFile = QString(900, u'b');
    ASSERT_TRUE(m_functions.WriteODBC(longest));
    EXPECT_NE(content().find("DatabaseFile=" + std::string(900, 'b') + "\n"), std::string::npos);
    EXPECT_NE(content().find(std::string(32, 'a') + "=Adaptive Server Anywhere 8.0\n"), std::string::npos);
}

TEST_F(Odbc, failsWhereTheConfigurationCannotBeWritten)
{
    qputenv("ODBCINI", m_folder.filePath(u"no folder/odbc.ini"_s).toUtf8());
    EXPECT_FALSE(m_functions.WriteODBC(source()));
}

} // namespace
