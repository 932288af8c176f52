// SPDX-License-Identifier: MIT
// The file of the current user's data sources, changed by unixODBC's installer library.
#include "Common/odbcstore.h"

#include "Common/initext.h"

#include <QByteArray>
#include <QFile>
#include <QSaveFile>
#include <QString>

#include <algorithm>
#include <array>
#include <odbcinst.h>
#include <optional>
#include <pwd.h>
#include <sys/mman.h>
#include <unistd.h>

namespace common {

namespace {

/// The library writes a file anew for every value, without its comments and with long lines cut. So it works on a copy,
/// which is in memory, because there are passwords in it.
class Copy {
public:
    Copy()
        : m_descriptor(::memfd_create("odbc", MFD_CLOEXEC))
        , m_path("/proc/self/fd/" + std::to_string(m_descriptor))
    {
    }

    Copy(const Copy &) = delete;
    Copy &operator=(const Copy &) = delete;

    ~Copy()
    {
        if (m_descriptor >= 0)
            ::close(m_descriptor);
    }

    [[nodiscard]] bool fill(const QByteArray &content) const
    {
        QFile file(name());
        return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.flush();
    }

    [[nodiscard]] QByteArray content() const
    {
        QFile file(name());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    [[nodiscard]] bool write(const OdbcEntry &entry) const
    {
        return SQLWritePrivateProfileString(entry.section.c_str(), entry.key.c_str(), entry.value.c_str(),
                                            m_path.c_str())
            != 0;
    }

    [[nodiscard]] bool holds(const OdbcEntry &entry) const
    {
        std::array<char, 2000> value{};
        const int size = SQLGetPrivateProfileString(entry.section.c_str(), entry.key.c_str(), "", value.data(),
                                                    static_cast<int>(value.size()), m_path.c_str());
        return size >= 0 && entry.value == value.data();
    }

private:
    [[nodiscard]] QString name() const { return QString::fromStdString(m_path); }

    int m_descriptor;
    std::string m_path;
};

/// Bytes as characters, whatever their encoding: other people's entries need not be UTF-8.
QString asBytes(const std::string &text)
{
    return QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
}

QString filePath()
{
    const QByteArray chosen = qgetenv("ODBCINI");
    if (!chosen.isEmpty())
        return QFile::decodeName(chosen);
    // The library asks the system for the home, not the environment.
    const passwd *user = ::getpwuid(::getuid());
    return QFile::decodeName(user == nullptr ? "/home" : user->pw_dir) + QStringLiteral("/.odbc.ini");
}

/// The content with the entries as the library writes them; nothing when it cannot read the content, or would not read
/// each value back from the result.
std::optional<QByteArray> withEntries(const QByteArray &content, const std::vector<OdbcEntry> &entries)
{
    const Copy copy;
    const auto written = [&copy](const OdbcEntry &entry) { return copy.write(entry); };
    const auto held = [&copy](const OdbcEntry &entry) { return copy.holds(entry); };
    if (!copy.fill(content) || !std::ranges::all_of(entries, written))
        return std::nullopt;

    const QByteArray made = copy.content();
    const std::vector<IniLine> lines = parseIni(made, IniEncoding::Bytes);
    QByteArray changed = content;
    for (const OdbcEntry &entry : entries) {
        const QString section = asBytes(entry.section);
        const QString key = asBytes(entry.key);
        const IniPlace place = findIni(lines, section, key);
        if (place.entry < 0)
            return std::nullopt;
        const IniLine &line = lines[static_cast<std::size_t>(place.entry)];
        const QString text = QString::fromLatin1(QByteArrayView(made).sliced(line.begin, line.end - line.begin));
        changed = withIniEntry(changed, IniEncoding::Bytes, section, key, text, QStringLiteral("\n"));
    }
    if (!copy.fill(changed) || !std::ranges::all_of(entries, held))
        return std::nullopt;
    return changed;
}

/// Replaces the file whole. A new one is for its owner's eyes: there are passwords in it.
bool replaceFile(const QString &path, const QByteArray &content)
{
    const bool isNew = !QFile::exists(path);
    QSaveFile file(path);
    file.setDirectWriteFallback(true);
    return file.open(QIODevice::WriteOnly) && (!isNew || file.setPermissions(QFile::ReadOwner | QFile::WriteOwner))
        && file.write(content) == content.size() && file.commit();
}

} // namespace

bool storeOdbcEntries(const std::vector<OdbcEntry> &entries)
{
    const QString path = filePath();
    QFile old(path);
    if (old.exists() && !old.open(QIODevice::ReadOnly))
        return false;
    const std::optional<QByteArray> changed = withEntries(old.isOpen() ? old.readAll() : QByteArray(), entries);
    return changed && replaceFile(path, *changed);
}

} // namespace common
