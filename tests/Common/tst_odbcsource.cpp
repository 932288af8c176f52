// SPDX-License-Identifier: MIT
// Data sources in a configuration file of the test's own, read back by the ordinary tools.
#include "Common/TCtrlFunc.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <odbcinst.h>
#include <sstream>
#include <string>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace {

using Lines = std::vector<std::string>;

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

    void put(const QByteArray &content) const
    {
        QFile file(m_path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(content), content.size());
    }

    /// What the command `odbcinst` prints about the configuration here.
    [[nodiscard]] Lines odbcinst(const QStringList &arguments) const
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"ODBCINI"_s, m_path);
        environment.insert(u"ODBCSYSINI"_s, m_folder.path());
        environment.insert(u"HOME"_s, m_folder.path());
        QProcess command;
        command.setProcessEnvironment(environment);
        command.start(u"odbcinst"_s, arguments);
        if (!command.waitForFinished() || command.exitCode() != 0) {
            ADD_FAILURE() << "odbcinst " << arguments.join(u' ').toStdString() << ": "
                          << command.errorString().toStdString() << command.readAllStandardError().toStdString();
            return {};
        }
        std::istringstream output(command.readAllStandardOutput().toStdString());
        Lines lines;
        for (std::string line; std::getline(output, line);)
            lines.push_back(line);
        return lines;
    }

    [[nodiscard]] Lines odbcinstAbout(const QString &name) const { return odbcinst({u"-q"_s, u"-s"_s, u"-n"_s, name}); }

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
              "[ODBC Data Sources]\n"
              "卫生院=Adaptive Server Anywhere 8.0\n");
}

TEST_F(Odbc, keepsANewConfigurationFromOtherUsers)
{
    ASSERT_TRUE(m_functions.WriteODBC(source()));
    EXPECT_FALSE(QFile::permissions(m_path) & (QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther));
}

// ---- read back

/// What odbcinst prints about a source that was written into an empty configuration.
Lines printed(const common::OdbcSource &about)
{
    Lines lines = {"[" + about.name.toStdString() + "]", "AutoStop=YES"};
    if (!about.host.isEmpty())
        lines.push_back("CommLinks=SharedMemory,TCPIP{host=" + about.host.toStdString() + "}");
    lines.insert(lines.end(),
                 {"DatabaseFile=" + about.databaseFile.toStdString(), "Compress=NO", "Debug=NO",
                  "DisableMultiRowFetch=NO", "Driver=" + about.driverFile.toStdString(),
                  "EngineName=" + about.engineName.toStdString(), "Integrated=NO",
                  "PWD=" + about.password.toStdString(), "UID=" + about.userName.toStdString()});
    return lines;
}

/// A value as any program with a data source asks for it.
std::string asked(const QString &section, const std::string &key)
{
    std::array<char, 2000> value{};
    SQLGetPrivateProfileString(section.toUtf8().constData(), key.c_str(), "(missing)", value.data(),
                               static_cast<int>(value.size()), "odbc.ini");
    return value.data();
}

struct Readable {
    const char *name;
    common::OdbcSource source;
};

class ReadBack : public Odbc, public testing::WithParamInterface<Readable> { };

TEST_P(ReadBack, byTheCommand)
{
    ASSERT_TRUE(m_functions.WriteODBC(GetParam().source));
    EXPECT_EQ(odbcinst({u"-q"_s, u"-s"_s}), Lines{"[" + GetParam().source.name.toStdString() + "]"});
    EXPECT_EQ(odbcinstAbout(GetParam().source.name), printed(GetParam().source));
}

TEST_P(ReadBack, byThoseWhoAskTheLibrary)
{
    const QString name = GetParam().source.name;
    ASSERT_TRUE(m_functions.WriteODBC(GetParam().source));
    Lines lines = printed(GetParam().source);
    for (auto line = lines.begin() + 1; line != lines.end(); ++line) {
        const std::size_t equals = line->find('=');
        EXPECT_EQ(asked(name, line->substr(0, equals)), line->substr(equals + 1));
    }
    EXPECT_EQ(asked(u"ODBC Data Sources"_s, name.toStdString()), "Adaptive Server Anywhere 8.0");
}

const QString OddCharacters = u"$x \"a' ;#=[]{}()\\?*!@,:~%^&+|<>/`%1%s\u00a0院\U0001F3E5"_s;
const Readable ReadableSources[] = {
    {"Ordinary", source()},
    {"Local", {u"local"_s, u""_s, u"/srv/hospital.db"_s, u"/usr/lib/libdbodbc8.so"_s, u"hospital"_s, u""_s, u"dba"_s}},
    {"Empty", {u"empty"_s, {}, {}, {}, {}, {}, {}}},
    {"OddValues",
     {u"odd"_s, u"[fe80::1%2]:2638=#'\"$ \\"_s, OddCharacters, u"\"quoted\""_s, u"'1'"_s, OddCharacters, u"#clerk"_s}},
    {"MarksInFront", {u"marks"_s, u"#a"_s, u";a"_s, u"[a]"_s, u"=a"_s, u"=="_s, u";"_s}},
    {"OddName", {u"a'b\"c.d/e:f~g$h%i^j&k+l|m<n>o"_s, u"h"_s, u"d"_s, u"f"_s, u"e"_s, u"p"_s, u"u"_s}},
    {"LongName", {u"卫生院卫生院卫生院ab12"_s, u"h"_s, u"d"_s, u"f"_s, u"e"_s, u"p"_s, u"u"_s}},
    {"LongValues",
     {QString(32, u'n'), QString(474, u'h'), QString(499, u'd'), QString(499, u'f'), QString(499, u'e'),
      QString(166, u'院') + u'p', QString(499, u'u')}},
};

INSTANTIATE_TEST_SUITE_P(Sources, ReadBack, testing::ValuesIn(ReadableSources),
                         [](const testing::TestParamInfo<Readable> &row) { return row.param.name; });

// ---- beside others

const QByteArray Foreign = "# our sources, do not touch\n"
                           "; 院长\n"
                           "\n"
                           "[ODBC Data Sources]\n"
                           "foreign = Some Driver ; the old one\n"
                           "# the register ends here\n"
                           "\n"
                           "[foreign]\n"
                           "; inside\n"
                           "  Driver\t=  /usr/lib/some.so  \n"
                           "Server=\xD2\xBD\xD4\xBA # in GBK\n"
                           "a line of no kind\n"
                           "\n"
                           "# for all\n"
                           "[ODBC]\n"
                           "Trace=No\n"
                           "Long="
    + QByteArray(3000, 'x') + "\n# the end";

TEST_F(Odbc, leavesOtherSourcesAndCommentsByteForByte)
{
    put(Foreign);
    ASSERT_TRUE(m_functions.WriteODBC(source()));
    QByteArray rest = QByteArray::fromStdString(content());
    const QByteArray registered = "# the register ends here\n卫生院=Adaptive Server Anywhere 8.0\n";
    ASSERT_EQ(rest.count(registered), 1);
    rest.replace(registered, "# the register ends here\n");
    ASSERT_TRUE(rest.startsWith(Foreign));
    EXPECT_TRUE(rest.sliced(Foreign.size()).startsWith("\n[卫生院]\nAutoStop=YES\n"));
    EXPECT_TRUE(rest.endsWith("\nUID=clerk\n"));
}

TEST_F(Odbc, leavesOtherSourcesToTheCommand)
{
    put(Foreign);
    const Lines before = odbcinstAbout(u"foreign"_s);
    ASSERT_EQ(before.size(), 4U);
    ASSERT_TRUE(m_functions.WriteODBC(source()));
    EXPECT_EQ(odbcinstAbout(u"foreign"_s), before);
    EXPECT_EQ(odbcinstAbout(source().name), printed(source()));
    const Lines listed = odbcinst({u"-q"_s, u"-s"_s});
    EXPECT_EQ(std::ranges::count(listed, "[foreign]"), 1);
    EXPECT_EQ(std::ranges::count(listed, "[卫生院]"), 1);
}

TEST_F(Odbc, keepsWindowsLineEnds)
{
    put("[foreign]\r\nDriver=x\r\n");
    ASSERT_TRUE(m_functions.WriteODBC(source()));
    const QByteArray whole = QByteArray::fromStdString(content());
    EXPECT_TRUE(whole.startsWith("[foreign]\r\nDriver=x\r\n[卫生院]\r\nAutoStop=YES\r\n"));
    EXPECT_EQ(whole.count('\n'), whole.count("\r\n"));
    EXPECT_EQ(odbcinstAbout(source().name), printed(source()));
}

TEST_F(Odbc, changesASourceInAnyLetterCaseAndLeavesItsOtherValues)
{
    put("[Hospital]\n; fast\nuid=old\nLogFile=/var/log/x\nPWD=secret\n\n[z]\na=b\n");
    common::OdbcSource changed = source();
    changed.name = u"hospital"_s;
    changed.host.clear();
    ASSERT_TRUE(m_functions.WriteODBC(changed));
    const QByteArray whole = QByteArray::fromStdString(content());
    EXPECT_TRUE(whole.startsWith("[Hospital]\n; fast\n"));
    EXPECT_EQ(whole.count("LogFile=/var/log/x\n"), 1);
    EXPECT_FALSE(whole.contains("secret"));
    EXPECT_FALSE(whole.contains("old"));
    EXPECT_EQ(whole.toLower().count("[hospital]"), 1);
    EXPECT_EQ(asked(u"hospital"_s, "UID"), "clerk");
}

TEST_F(Odbc, touchesNothingThatTheLibraryReadsOtherwise)
{
    for (const QByteArray &odd :
         {QByteArray("Driver=before any heading\n[foreign]\n"), QByteArray("\xEF\xBB\xBF[foreign]\nDriver=x\n"),
          QByteArray("[卫生院\nUID=a heading that never ends\n")}) {
        put(odd);
        EXPECT_FALSE(m_functions.WriteODBC(source()));
        EXPECT_EQ(content(), odd.toStdString());
    }
}

TEST_F(Odbc, followsALinkToTheConfiguration)
{
    const QString real = m_folder.filePath(u"real.ini"_s);
    ASSERT_TRUE(QFile::link(real, m_path));
    QFile file(real);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    ASSERT_TRUE(m_functions.WriteODBC(source()));
    EXPECT_EQ(QFile::symLinkTarget(m_path), real);
    EXPECT_EQ(odbcinstAbout(source().name), printed(source()));
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
    {"UserTooLong", &Source::userName, QString(500, u'a')},
    {"HostTooLong", &Source::host, QString(475, u'a')},
    {"NameOfAStar", &Source::name, u"*"_s},
    {"NameOfHalfACharacter", &Source::name, QString(QChar(0xD83C))},
    {"PasswordWithHalfACharacter", &Source::password, u"a"_s + QChar(0xDFE5)},
    {"PasswordWithBlankInFront", &Source::password, u"\u0001a"_s},
    {"PasswordWithDelete", &Source::password, u"a\u007f"_s},
};

INSTANTIATE_TEST_SUITE_P(Fields, HostileSource, testing::ValuesIn(HostileSources),
                         [](const testing::TestParamInfo<Hostile> &row) { return row.param.name; });

TEST_P(HostileSource, isRefusedAndLeavesTheConfigurationAlone)
{
    put(Foreign);
    common::OdbcSource hostile = source();
    hostile.*GetParam().field = GetParam().value;
    EXPECT_FALSE(m_functions.WriteODBC(hostile));
    EXPECT_EQ(content(), Foreign.toStdString());
}

TEST_F(Odbc, failsWhereTheConfigurationCannotBeWritten)
{
    qputenv("ODBCINI", m_folder.filePath(u"no folder/odbc.ini"_s).toUtf8());
    EXPECT_FALSE(m_functions.WriteODBC(source()));
    qputenv("ODBCINI", m_folder.path().toUtf8());
    EXPECT_FALSE(m_functions.WriteODBC(source()));
}

} // namespace
