// SPDX-License-Identifier: MIT
// Setup files as Windows reads and writes them.
#include "Common/inifile.h"

#include "Common/executablefolder.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <string>
#include <string_view>

using namespace Qt::Literals::StringLiterals;
using namespace std::string_view_literals;

namespace {

QByteArray bytes(std::string_view text)
{
    return QByteArray(text.data(), static_cast<qsizetype>(text.size()));
}

struct Reading {
    const char *name;
    std::string_view content;
    const char *value; ///< of key connStyle in section system, UTF-8
};

class IniReading : public testing::TestWithParam<Reading> { };

TEST_P(IniReading, findsTheValue)
{
    EXPECT_EQ(common::iniValue(bytes(GetParam().content), u"system"_s, u"connStyle"_s).toStdString(), GetParam().value);
}

const Reading Readings[] = {
    {"Plain", "[system]\nconnStyle=1\n"sv, "1"},
    {"EmptyFile", ""sv, ""},
    {"CarriageReturns", "[system]\r\nconnStyle=1\r\n"sv, "1"},
    {"OldLineEnds", "[system]\rconnStyle=1\rx=2"sv, "1"},
    {"NoLineEndAtTheEnd", "[system]\nconnStyle=1"sv, "1"},
    {"LetterCase", "[SYSTEM]\nCONNSTYLE=1\n"sv, "1"},
    {"BlanksAroundAll", "  [ system ]\t\n \t connStyle \t = \t 1 \t \n"sv, "1"},
    {"BlankInsideAValue", "[system]\nconnStyle=1 2\n"sv, "1 2"},
    {"DoubleQuotes", "[system]\nconnStyle=\" 1 \"\n"sv, " 1 "},
    {"SingleQuotes", "[system]\nconnStyle=' 1 '\n"sv, " 1 "},
    {"OnePairOfQuotesOnly", "[system]\nconnStyle=\"\"1\"\"\n"sv, "\"1\""},
    {"QuotesThatDoNotMatch", "[system]\nconnStyle=\"1'\n"sv, "\"1'"},
    {"SingleQuoteCharacter", "[system]\nconnStyle=\"\n"sv, "\""},
    {"EmptyQuotes", "[system]\nconnStyle=\"\"\n"sv, ""},
    {"EmptyValue", "[system]\nconnStyle=\n"sv, ""},
    {"FirstKeyWins", "[system]\nconnStyle=1\nconnStyle=2\n"sv, "1"},
    {"FirstSectionWins", "[system]\nconnStyle=1\n[system]\nconnStyle=2\n"sv, "1"},
    {"OnlyTheFirstSectionCounts", "[system]\nother=1\n[system]\nconnStyle=2\n"sv, ""},
    {"KeyOfAnotherSection", "[other]\nconnStyle=2\n[system]\nconnStyle=1\n"sv, "1"},
    {"KeyMissing", "[system]\nconn=1\n[other]\nconnStyle=2\n"sv, ""},
    {"SectionMissing", "[other]\nconnStyle=2\n"sv, ""},
    {"KeyBeforeAnySection", "connStyle=2\n"sv, ""},
    {"SemicolonOpensAComment", "[system]\n;connStyle=2\n ; connStyle=3\nconnStyle=1\n"sv, "1"},
    {"HashOpensAComment", "[system]\n#connStyle=2\nconnStyle=1\n"sv, "1"},
    {"CommentMarkBehindAValueIsPartOfIt", "[system]\nconnStyle=1 ; one\n"sv, "1 ; one"},
    {"SecondEqualsSignIsPartOfTheValue", "[system]\nconnStyle=a=b\n"sv, "a=b"},
    {"LineWithoutEqualsSign", "[system]\nconnStyle\nconnStyle=1\n"sv, "1"},
    {"TextBehindTheSection", "[system] ; settings\nconnStyle=1\n"sv, "1"},
    {"SectionNeverClosed", "[system\nconnStyle=1\n"sv, ""},
    {"Utf8Mark", "\xEF\xBB\xBF[system]\r\nconnStyle=1\r\n"sv, "1"},
    {"Utf8MarkAndChinese", "\xEF\xBB\xBF[system]\nconnStyle=\xE5\x8C\xBB\xE9\x99\xA2\n"sv, "医院"},
    {"Utf8WithoutMark", "[system]\nconnStyle=\xE5\x8C\xBB\xE9\x99\xA2\n"sv, "医院"},
    {"GbkThatIsValidUtf8ByChance", "[system]\r\nhospital=\xD2\xBD\xD4\xBA\r\nconnStyle=\xD2\xBD\xD4\xBA\r\n"sv, "医院"},
    {"Gbk", "[system]\nconnStyle=\xB3\xC7\xB9\xD8\xCE\xC0\xC9\xFA\xD4\xBA\n"sv, "城关卫生院"},
    {"Gb18030OfFourBytes", "[system]\nconnStyle=\x82\x30\x8A\x33\xB3\xC7\n"sv, "㔀城"},
    {"GbkInAComment", ";\xD2\xBD\xD4\xBA\r\n[system]\r\nconnStyle=1\r\n"sv, "1"},
    {"Utf16", "\xFF\xFE[\0s\0y\0s\0t\0e\0m\0]\0\n\0c\0o\0n\0n\0S\0t\0y\0l\0e\0=\0001\0"sv, "1"},
    {"WideBlankStays",
     "[system]\nconnStyle=\xE3\x80\x80"
     "1\n"sv,
     "　1"},
    {"ZeroBytes", "[system]\nconnStyle=1\0\0\n\0"sv, "1"},
    {"HalfACharacterBeforeTheLineEnd", "[system]\nhospital=\xD2\nconnStyle=1\n"sv, "1"},
    {"BrokenByteBehindAMark", "\xEF\xBB\xBF[system]\nhospital=\xFF\nconnStyle=\xE5\x8C\xBB\n"sv, "医"},
    {"Utf16OfOddLength", "\xFF\xFE[\0s\0y\0s\0t\0e\0m\0]\0\n\0c\0o\0n\0n\0S\0t\0y\0l\0e\0=\0001\0\n\0x"sv, "1"},
    {"Utf16BigEndian", "\xFE\xFF\0[\0s\0y\0s\0t\0e\0m\0]\0\r\0c\0o\0n\0n\0S\0t\0y\0l\0e\0=\0001"sv, "1"},
    {"EndMarkOfOldSystems", "[system]\r\nconnStyle=1\r\n\x1A"sv, "1"},
};

INSTANTIATE_TEST_SUITE_P(Contents, IniReading, testing::ValuesIn(Readings),
                         [](const testing::TestParamInfo<Reading> &row) { return row.param.name; });

struct Writing {
    const char *name;
    std::string_view before;
    const char *value; ///< UTF-8
    std::string_view after;
};

class IniWriting : public testing::TestWithParam<Writing> { };

TEST_P(IniWriting, changesNothingElse)
{
    const QString value = QString::fromUtf8(GetParam().value);
    const QByteArray after = common::withIniValue(bytes(GetParam().before), u"system"_s, u"connStyle"_s, value);
    EXPECT_EQ(after.toStdString(), GetParam().after);
    EXPECT_EQ(common::iniValue(after, u"system"_s, u"connStyle"_s), value);
}

const Writing Writings[] = {
    {"NewFile", ""sv, "1", "[system]\r\nconnStyle=1\r\n"sv},
    {"OldValue", "; a\n[system]\n ConnStyle = 2 \nx=3\n"sv, "1", "; a\n[system]\nconnStyle=1\nx=3\n"sv},
    {"FirstOfTwo", "[system]\nconnStyle=2\nconnStyle=3\n"sv, "1", "[system]\nconnStyle=1\nconnStyle=3\n"sv},
    {"NewKey", "[system]\nx=3\n\n[b]\ny=4\n"sv, "1", "[system]\nx=3\nconnStyle=1\n\n[b]\ny=4\n"sv},
    {"NewKeyInAnEmptySection", "[system]\n[b]\n"sv, "1", "[system]\nconnStyle=1\n[b]\n"sv},
    {"NewKeyAtTheEnd", "[system]"sv, "1", "[system]\r\nconnStyle=1"sv},
    {"NewSection", "[b]\ny=4"sv, "1", "[b]\ny=4\n[system]\nconnStyle=1\n"sv},
    {"LineEndsStay", "[system]\r\nx=3\r\n"sv, "1", "[system]\r\nx=3\r\nconnStyle=1\r\n"sv},
    {"BlanksAreQuoted", "[system]\nconnStyle=2\n"sv, " 1 ", "[system]\nconnStyle=\" 1 \"\n"sv},
    {"QuotesAreQuoted", "[system]\nconnStyle=2\n"sv, "'1'", "[system]\nconnStyle=\"'1'\"\n"sv},
    {"EmptyValue", "[system]\nconnStyle=2\n"sv, "", "[system]\nconnStyle=\n"sv},
    {"Utf8", "[system]\nconnStyle=2\n"sv, "医院", "[system]\nconnStyle=\xE5\x8C\xBB\xE9\x99\xA2\n"sv},
    {"Utf8Mark", "\xEF\xBB\xBF[system]\nconnStyle=2\n"sv, "1", "\xEF\xBB\xBF[system]\nconnStyle=1\n"sv},
    {"Gbk", ";\xD2\xBD\r\n[system]\r\n"sv, "医院", ";\xD2\xBD\r\n[system]\r\nconnStyle=\xD2\xBD\xD4\xBA\r\n"sv},
    {"TwoByteUtf8GetsAMark", "[system]\n"sv, "°", "\xEF\xBB\xBF[system]\nconnStyle=\xC2\xB0\n"sv},
    {"ByteOutsideEveryEncoding", "[system]\nx=\x80\nconnStyle=2\n"sv, "1", "[system]\nx=\x80\nconnStyle=1\n"sv},
    {"LastByteOfAll", "[system]\r\nx=\xFF\r\nconnStyle=2"sv, "医院",
     "[system]\r\nx=\xFF\r\nconnStyle=\xD2\xBD\xD4\xBA"sv},
    {"HalfACharacter", "[system]\r\nx=\xD2\r\n"sv, "1", "[system]\r\nx=\xD2\r\nconnStyle=1\r\n"sv},
    {"HalfACharacterAtTheEnd", "[system]\nx=\xD2"sv, "1", "[system]\nx=\xD2\nconnStyle=1"sv},
    {"BrokenByteBehindAMark", "\xEF\xBB\xBF[system]\nx=\xE5\x8C\n\xC0\x80\n"sv, "医",
     "\xEF\xBB\xBF[system]\nx=\xE5\x8C\n\xC0\x80\nconnStyle=\xE5\x8C\xBB\n"sv},
    {"OnlyTheOldValueWasBroken", "[system]\nx=\xE5\x8C\xBB\nconnStyle=\xFF\n"sv, "院",
     "[system]\nx=\xE5\x8C\xBB\nconnStyle=\xE9\x99\xA2\n"sv},
    {"LineEndsOfOldSystems", "[b]\rx=1\r"sv, "1", "[b]\rx=1\r[system]\rconnStyle=1\r"sv},
    {"LineEndsOfAllSystems", "[b]\rx=1\r\r\ny=2\n\n"sv, "1", "[b]\rx=1\r\r\ny=2\n\n[system]\r\nconnStyle=1\r\n"sv},
    {"Utf16OfOddLength", "\xFF\xFE[\0b\0]\0\xAA"sv, "",
     "\xFF\xFE[\0b\0]\0\r\0\n\0[\0s\0y\0s\0t\0e\0m\0]\0\r\0\n\0c\0o\0n\0n\0S\0t\0y\0l\0e\0=\0\r\0\n\0\xAA"sv},
    {"BracketInTheValue", "[system]\nconnStyle=2\n"sv, "[b]=;", "[system]\nconnStyle=[b]=;\n"sv},
};

INSTANTIATE_TEST_SUITE_P(Contents, IniWriting, testing::ValuesIn(Writings),
                         [](const testing::TestParamInfo<Writing> &row) { return row.param.name; });

TEST(IniFile, keepsUtf16)
{
    const QByteArray before = bytes("\xFF\xFE[\0b\0]\0\n\0"sv);
    const QByteArray after = common::withIniValue(before, u"b"_s, u"k"_s, u"v"_s);
    EXPECT_EQ(after, bytes("\xFF\xFE[\0b\0]\0\n\0k\0=\0v\0\n\0"sv));
}

TEST(IniFile, keepsHalvesOfSurrogatePairs)
{
    const QByteArray before = bytes("\xFE\xFF\xD8\0\0\n\0[\0b\0]\0\r\0k\0=\xDC\0\0\r"sv);
    const QByteArray after = common::withIniValue(before, u"b"_s, u"n"_s, u"𠮷"_s);
    EXPECT_EQ(after, before.chopped(2) + bytes("\0\n\0n\0=\xD8\x42\xDF\xB7\0\r"sv));
    EXPECT_THROW((void)common::withIniValue({}, u"b"_s, u"n"_s, QString(QChar(0xD800))), common::IniError);
}

TEST(IniFile, refusesNamesThatCouldNotBeReadBack)
{
    for (const QString &name : {u""_s, u" "_s, u"a]"_s, u"[a"_s, u"a=b"_s, u";a"_s, u"#a"_s, u"a\nb"_s, u"a\rb"_s}) {
        EXPECT_THROW((void)common::withIniValue({}, name, u"key"_s, u"1"_s), common::IniError) << name.toStdString();
        EXPECT_THROW((void)common::withIniValue({}, u"section"_s, name, u"1"_s), common::IniError)
            << name.toStdString();
    }
    EXPECT_THROW((void)common::withIniValue({}, u"a"_s, u"b"_s, u"1\n[c]"_s), common::IniError);
}

class IniFileInTheFolder : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_folder.isValid());
        common::setExecutableFolder(m_folder.path());
    }

    void TearDown() override { common::setExecutableFolder({}); }

    QTemporaryDir m_folder;
};

TEST_F(IniFileInTheFolder, standsBehindTwoSeparators)
{
    EXPECT_EQ(common::iniFilePath(u"setup.ini"_s), m_folder.path() + u"//setup.ini"_s);
    EXPECT_EQ(common::iniFilePath(u"Module\\x.ini"_s), m_folder.path() + u"//Module/x.ini"_s);
}

TEST_F(IniFileInTheFolder, readsNothingFromAMissingFileAndCreatesNone)
{
    EXPECT_EQ(common::readIniFile(common::iniFilePath(u"setup.ini"_s), u"system"_s, u"connStyle"_s), QString());
    EXPECT_TRUE(QDir(m_folder.path()).isEmpty());
}

TEST_F(IniFileInTheFolder, readsNothingFromAFolder)
{
    EXPECT_EQ(common::readIniFile(m_folder.path(), u"system"_s, u"connStyle"_s), QString());
}

TEST_F(IniFileInTheFolder, readsBackWhatWasWritten)
{
    const QString path = common::iniFilePath(u"setup.ini"_s);
    common::writeIniFile(path, u"system"_s, u"connStyle"_s, u"1"_s);
    common::writeIniFile(path, u"system"_s, u"hospital"_s, u"城关卫生院"_s);
    common::writeIniFile(path, u"system"_s, u"connStyle"_s, u"2"_s);
    EXPECT_EQ(common::readIniFile(path, u"System"_s, u"ConnStyle"_s), u"2"_s);
    EXPECT_EQ(common::readIniFile(path, u"system"_s, u"hospital"_s), u"城关卫生院"_s);
}

TEST_F(IniFileInTheFolder, saysWhereWritingFailed)
{
    const QString path = common::iniFilePath(u"no folder/setup.ini"_s);
    try {
        common::writeIniFile(path, u"system"_s, u"connStyle"_s, u"1"_s);
        FAIL() << "the folder does not exist";
    } catch (const common::IniError &error) {
        EXPECT_TRUE(QString::fromUtf8(error.what()).contains(path)) << error.what();
    }
}

} // namespace
