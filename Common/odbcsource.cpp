// SPDX-License-Identifier: MIT
// Data sources in the current user's ODBC configuration.
#include "Common/odbcsource.h"

#include "Common/blanks.h"
#include "Common/odbcstore.h"

#include <algorithm>
#include <string>
#include <vector>

namespace common {

namespace {

constexpr char RegisteredSources[] = "ODBC Data Sources";
constexpr char DriverDescription[] = "Adaptive Server Anywhere 8.0";
constexpr int LongestName = 32; // as the installer library has it
constexpr int LongestValue = 499; // the command odbcinst shows no more

bool hasAnyOf(const QString &text, QStringView characters)
{
    return std::ranges::any_of(text, [characters](QChar character) { return characters.contains(character); });
}

bool fits(const QString &value)
{
    const auto isControl = [](QChar character) { return character < u' ' || character == QChar(0x7F); };
    return value.isValidUtf16() && value.toUtf8().size() <= LongestValue && trimmed(value).size() == value.size()
        && std::ranges::none_of(value, isControl);
}

bool isOwnHeading(const QString &name)
{
    return name.compare(u"ODBC", Qt::CaseInsensitive) == 0
        || name.compare(QLatin1String(RegisteredSources), Qt::CaseInsensitive) == 0;
}

QString linksTo(const QString &host)
{
    return QStringLiteral("SharedMemory,TCPIP{host=%1}").arg(host);
}

std::vector<OdbcEntry> entriesOf(const OdbcSource &source)
{
    std::vector<OdbcEntry> entries;
    const auto add = [&](const char *key, const QString &value) {
        entries.push_back({source.name.toStdString(), key, value.toStdString()});
    };
    const QString no = QStringLiteral("NO");
    add("AutoStop", QStringLiteral("YES"));
    if (!source.host.isEmpty())
        add("CommLinks", linksTo(source.host));
    add("DatabaseFile", source.databaseFile);
    add("Compress", no);
    add("Debug", no);
    add("DisableMultiRowFetch", no);
    add("Driver", source.driverFile);
    add("EngineName", source.engineName);
    add("Integrated", no);
    add("PWD", source.password);
    add("UID", source.userName);
    entries.push_back({RegisteredSources, source.name.toStdString(), DriverDescription});
    return entries;
}

} // namespace

bool canHold(const OdbcSource &source)
{
    const bool nameFits = !source.name.isEmpty() && source.name.toUtf8().size() <= LongestName
        && !isOwnHeading(source.name) && !hasAnyOf(source.name, u"[]{}(),;?*=!@\\#");
    const bool hostFits = !hasAnyOf(source.host, u"{},;");
    return nameFits && hostFits && fits(source.name) && fits(linksTo(source.host)) && fits(source.databaseFile)
        && fits(source.driverFile) && fits(source.engineName) && fits(source.password) && fits(source.userName);
}

bool writeOdbcSource(const OdbcSource &source)
{
    return canHold(source) && storeOdbcEntries(entriesOf(source));
}

} // namespace common
