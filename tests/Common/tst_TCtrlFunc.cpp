// SPDX-License-Identifier: MIT
// The utility class as its users call it.
#include "Common/TCtrlFunc.h"

#include "Common/executablefolder.h"
#include "Common/inifile.h"
#include "Common/platformpath.h"
#include "Common/systime.h"
#include "Common/userregistry.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

void put(const QString &path, const QByteArray &content)
{
    ASSERT_TRUE(QDir().mkpath(QFileInfo(path).path()));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(content), content.size());
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

class CtrlFunc : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_folder.isValid());
        common::setExecutableFolder(m_folder.path());
    }

    void TearDown() override { common::setExecutableFolder({}); }

    QTemporaryDir m_folder;
    TCtrlFunc m_functions;
};

TEST_F(CtrlFunc, readsTheSetupFileBesideTheExecutable)
{
    put(m_folder.filePath(u"setup.ini"_s), "[System]\r\nConnStyle = 1\r\n");
    EXPECT_EQ(m_functions.ReadIniStr(u"setup.ini"_s, u"system"_s, u"connStyle"_s), u"1"_s);
    EXPECT_EQ(m_functions.ReadIniStr(u"other.ini"_s, u"system"_s, u"connStyle"_s), QString());
}

TEST_F(CtrlFunc, takesFileNamesAsWindowsSpellsThem)
{
    put(m_folder.filePath(u"Module/print.ini"_s), "[a]\nb=c\n");
    EXPECT_EQ(m_functions.ReadIniStr(u"Module\\print.ini"_s, u"a"_s, u"b"_s), u"c"_s);
}

TEST_F(CtrlFunc, writesTheSetupFile)
{
    m_functions.WriteIniStr(u"setup.ini"_s, u"system"_s, u"connStyle"_s, u"2"_s);
    EXPECT_EQ(m_functions.ReadIniStr(u"setup.ini"_s, u"system"_s, u"connStyle"_s), u"2"_s);
    EXPECT_TRUE(QFile::exists(m_folder.filePath(u"setup.ini"_s)));
}

TEST_F(CtrlFunc, leavesTheSetupFileAloneWhenItCannotHoldTheValue)
{
    const QByteArray content = "; 设置\n[system]\nconnStyle=1\n";
    put(m_folder.filePath(u"setup.ini"_s), content);
    const QString half(QChar(0xD83C));
    for (const QString &name :
         {u""_s, u" \t"_s, u"a]"_s, u"[a"_s, u"a=b"_s, u";a"_s, u" #a"_s, u"a\nb"_s, u"a\r"_s, half}) {
        EXPECT_THROW(m_functions.WriteIniStr(u"setup.ini"_s, name, u"key"_s, u"1"_s), common::IniError)
            << name.toStdString();
        EXPECT_THROW(m_functions.WriteIniStr(u"setup.ini"_s, u"system"_s, name, u"1"_s), common::IniError)
            << name.toStdString();
    }
    for (const QString &value : {u"1\n[system2]"_s, u"1\r"_s, u"\n"_s, half})
        EXPECT_THROW(m_functions.WriteIniStr(u"setup.ini"_s, u"system"_s, u"connStyle"_s, value), common::IniError);
    EXPECT_EQ(contentOf(m_folder.filePath(u"setup.ini"_s)), content);
    EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::Files), QStringList{u"setup.ini"_s});
}

TEST_F(CtrlFunc, refusesToWriteWhereThereIsNoFile)
{
    ASSERT_TRUE(QDir(m_folder.path()).mkdir(u"Module"_s));
    for (const QString &file : {u""_s, u"Module"_s, u"Module\\"_s, u"missing\\setup.ini"_s})
        EXPECT_THROW(m_functions.WriteIniStr(file, u"a"_s, u"b"_s, u"c"_s), common::IniError) << file.toStdString();
    EXPECT_EQ(m_functions.ReadIniStr(u""_s, u"a"_s, u"b"_s), QString());
    EXPECT_EQ(m_functions.ReadIniStr(u"Module"_s, u"a"_s, u"b"_s), QString());
}

TEST_F(CtrlFunc, readsBackOddValues)
{
    for (const QString &value :
         {u"[a]"_s, u"a=b"_s, u";"_s, u"#a"_s, u" a "_s, u"\t"_s, u"\"a\""_s, u"'"_s, u"''"_s, u"\"'a'\""_s,
          u"　院　"_s, u"°"_s, u"\U0001F3E5"_s, u"C:\\Module\\"_s, u"%1%n"_s, QString(5000, u'x')}) {
        m_functions.WriteIniStr(u"setup.ini"_s, u"system"_s, u"connStyle"_s, value);
        EXPECT_EQ(m_functions.ReadIniStr(u"setup.ini"_s, u"system"_s, u"connStyle"_s), value);
    }
}

TEST_F(CtrlFunc, splits)
{
    EXPECT_EQ(m_functions.SplitString(u"a,b,c"_s, u","_s, true), u"a"_s);
    EXPECT_EQ(m_functions.SplitString(u"a,b,c"_s, u","_s, false), u"b,c"_s);
    EXPECT_EQ(m_functions.SplitItemCount(u"a,b,c"_s, u","_s), 3);
    EXPECT_EQ(m_functions.GetAllSplitStr(u" a , b "_s, u","_s, 1), u"b"_s);
    EXPECT_EQ(m_functions.GetAllSplitStr(QString(), u","_s, 0), QString());
}

TEST_F(CtrlFunc, readsTheUsersRegistry)
{
    qputenv("XDG_CONFIG_HOME", m_folder.path().toUtf8());
    put(common::registryLocation(), "[Software/Hospital]\nName=城关卫生院\nCount=12\n");
    EXPECT_EQ(m_functions.GetRegKeyValue(u"Software\\Hospital"_s, u"Name"_s), u"城关卫生院"_s);
    EXPECT_EQ(m_functions.GetRegKeyValue(u"software\\hospital"_s, u"count"_s), u"12"_s);
    EXPECT_EQ(m_functions.GetRegKeyValue(u"\\Software\\Hospital\\"_s, u"Count"_s), u"12"_s);
    EXPECT_EQ(m_functions.GetRegKeyValue(u"Software\\Hospital]\n[Software/Hospital"_s, u"Count"_s), QString());
    EXPECT_EQ(m_functions.GetRegKeyValue(u"Software\\Hospital"_s, u"Name=城关卫生院\nCount"_s), QString());
    EXPECT_EQ(m_functions.GetRegKeyValue(u"Software\\Hospital"_s, u"Missing"_s), QString());
    EXPECT_EQ(m_functions.GetRegKeyValue(u"Software"_s, u"Name"_s), QString());
    EXPECT_EQ(m_functions.GetRegKeyValue(QString(), QString()), QString());
    qunsetenv("XDG_CONFIG_HOME");
}

TEST_F(CtrlFunc, givesTheMomentAsDigits)
{
    const QString text = m_functions.GetSysTime();
    EXPECT_EQ(text.size(), 17);
    EXPECT_TRUE(QDateTime::fromString(text, u"yyyyMMddHHmmsszzz"_s).isValid()) << text.toStdString();
}

TEST(SysTime, keepsTheFullWidthOfEveryPart)
{
    EXPECT_EQ(common::sysTimeText(QDateTime(QDate(2026, 1, 2), QTime(3, 4, 5, 6))), u"20260102030405006"_s);
    EXPECT_EQ(common::sysTimeText(QDateTime(QDate(2026, 12, 31), QTime(23, 59, 59, 999))), u"20261231235959999"_s);
}

TEST(PlatformPath, turnsSeparatorsAndKeepsDoubledOnes)
{
    EXPECT_EQ(common::platformPath(u"Module\\结算单.rmf"_s), u"Module/结算单.rmf"_s);
    EXPECT_EQ(common::platformPath(u"a\\\\b/c"_s), u"a//b/c"_s);
}

TEST(ExecutableFolder, isThatOfTheProgramAndEndsWithASeparator)
{
    EXPECT_EQ(common::executableFolder(), QCoreApplication::applicationDirPath() + u'/');
    common::setExecutableFolder(u"/opt/host/"_s);
    EXPECT_EQ(common::executableFolder(), u"/opt/host/"_s);
    common::setExecutableFolder(u"/opt/host"_s);
    EXPECT_EQ(common::executableFolder(), u"/opt/host/"_s);
    common::setExecutableFolder({});
    EXPECT_EQ(common::executableFolder(), QCoreApplication::applicationDirPath() + u'/');
}

} // namespace
