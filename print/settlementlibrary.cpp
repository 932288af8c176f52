// SPDX-License-Identifier: MIT
#include "print/settlementlibrary.h"

#include "Common/executablefolder.h"
#include "Common/platformpath.h"
#include "samples/feeinterface/feeinterface.h"

#include <QDebug>
#include <QDir>
#include <QFileInfo>
#include <QLibrary>

#include <stdexcept>

namespace print {

namespace {

const QString DefaultLibrary = QStringLiteral("Module\\FeeInterFace.dll");

QString libraryFile(const QString &path)
{
    QString file = common::platformPath(path.isEmpty() ? DefaultLibrary : path);
#ifndef Q_OS_WIN
    if (file.endsWith(QStringLiteral(".dll"), Qt::CaseInsensitive))
        file = file.chopped(4) + QStringLiteral(".so");
#endif
    return QDir(common::executableFolder()).absoluteFilePath(file);
}

/// Unloads the library however its use ends.
class LoadedLibrary {
public:
    explicit LoadedLibrary(const QString &file)
        : m_library(file)
    {
        m_library.load();
    }
    ~LoadedLibrary()
    {
        if (m_library.isLoaded())
            m_library.unload();
    }
    LoadedLibrary(const LoadedLibrary &) = delete;
    LoadedLibrary &operator=(const LoadedLibrary &) = delete;

    [[nodiscard]] bool isLoaded() const { return m_library.isLoaded(); }
    [[nodiscard]] QString failure() const { return m_library.errorString(); }
    [[nodiscard]] TarnwellGetFreeFees function()
    {
        return reinterpret_cast<TarnwellGetFreeFees>(m_library.resolve("GetFreeFees"));
    }

private:
    QLibrary m_library;
};

} // namespace

LibraryAnswer askSettlementLibrary(const QString &path, const data::RecordKey &key)
{
    LoadedLibrary library(libraryFile(path));
    LibraryAnswer answer;
    if (!library.isLoaded()) {
        qWarning().noquote() << library.failure(); // the clerk prints without the engine's summary then
        return answer;
    }
    const TarnwellGetFreeFees getFreeFees = library.function();
    if (getFreeFees == nullptr)
        throw std::runtime_error("结算接口库中没有函数“GetFreeFees”。");

    const char *error = nullptr;
    const uint16_t *information = nullptr;
    const QByteArray orgCode = key.orgCode.toUtf8();
    const QByteArray coopMedCode = key.coopMedCode.toUtf8();
    const QByteArray idNo = key.idNo.toUtf8();
    const QByteArray diagNo = key.diagNo.toUtf8();
    const bool succeeded = getFreeFees(orgCode.constData(), coopMedCode.constData(), idNo.constData(),
                                       diagNo.constData(), &error, &answer.amount, &information, 1)
        != 0;
    answer.outcome = succeeded ? LibraryAnswer::Outcome::Amount : LibraryAnswer::Outcome::Refused;
    if (!succeeded)
        answer.error = QString::fromUtf8(error); // copied before the library and its texts go
    return answer;
}

} // namespace print
