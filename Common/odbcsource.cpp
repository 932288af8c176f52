// SPDX-License-Identifier: MIT
// Data sources in the current user's ODBC configuration.
#include "Common/odbcsource.h"

#include "Common/blanks.h"

#include <odbcinst.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace common {

namespace {

constexpr char ConfigurationFile[] = "odbc.ini";
constexpr char RegisteredSources[] = "ODBC Data Sources";
constexpr char DriverDescription[] = "Adaptive Server Anywhere 8.0";
constexpr int LongestName = 32; // as the installer library has it
constexpr int LongestValue = 900; // it cuts lines of a thousand bytes

/// The user's own configuration, for as long as this lives.
class UserConfiguration {
public:
    UserConfiguration()
    {
        SQLGetConfigMode(&m_before);
        SQLSetConfigMode(ODBC_USER_DSN);
    }

    UserConfiguration(const UserConfiguration &) = delete;
    UserConfiguration &operator=(const UserConfiguration &) = delete;
    ~UserConfiguration() { SQLSetConfigMode(m_before); }

    [[nodiscard]] bool write(const std::string &section, const char *key, const std::string &value) const
    {
        return SQLWritePrivateProfileString(section.c_str(), key, value.c_str(), ConfigurationFile) != 0;
    }

private:
    UWORD m_before = ODBC_BOTH_DSN;
};

bool hasAnyOf(const QString &text, QStringView characters)
{
    return std::ranges::any_of(text, [characters](QChar character) { return characters.contains(character); });
}

bool fits(const QString &value)
{
    const auto isControl = [](QChar character) { return character < u' ' || character == QChar(0x7F); };
    return value.toUtf8().size() <= LongestValue && trimmed(value).size() == value.size()
        && std::ranges::none_of(value, isControl);
}

bool isOwnHeading(const QString &name)
{
    return name.compare(u"ODBC", Qt::CaseInsensitive) == 0
        || name.compare(QLatin1String(RegisteredSources), Qt::CaseInsensitive) == 0;
}

} // namespace

bool canHold(const OdbcSource &source)
{
    const bool nameFits = !source.name.isEmpty() && source.name.toUtf8().size() <= LongestName
        && !isOwnHeading(source.name) && !hasAnyOf(source.name, u"[]{}(),;?*=!@\\#");
    const bool hostFits = !hasAnyOf(source.host, u"{},;");
    return nameFits && hostFits && fits(source.name) && fits(source.host) && fits(source.databaseFile)
        && fits(source.driverFile) && fits(source.engineName) && fits(source.password) && fits(source.userName);
}

bool writeOdbcSource(const OdbcSource &source)
{
    if (!canHold(source))
        return false;
    std::vector<std::pair<const char *, std::string>> values = {{"AutoStop", "YES"}};
    if (!source.host.isEmpty())
        values.emplace_back("CommLinks", "SharedMemory,TCPIP{host=" + source.host.toStdString() + "}");
    values.insert(values.end(),
                  {{"DatabaseFile", source.databaseFile.toStdString()},
                   {"Compress", "NO"},
                   {"Debug", "NO"},
                   {"DisableMultiRowFetch", "NO"},
                   {"Driver", source.driverFile.toStdString()},
                   {"EngineName", source.engineName.toStdString()},
                   {"Integrated", "NO"},
                   {"PWD", source.password.toStdString()},
                   {"UID", source.userName.toStdString()}});

    const UserConfiguration configuration;
    const std::string name = source.name.toStdString();
    const bool written = std::ranges::all_of(
        values, [&](const auto &value) { return configuration.write(name, value.first, value.second); });
    return written && configuration.write(RegisteredSources, name.c_str(), DriverDescription);
}

} // namespace common
