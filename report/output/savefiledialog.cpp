// SPDX-License-Identifier: MIT
#include "report/output/savefiledialog.h"

#include <QDateTime>
#include <QFileDialog>
#include <QFileIconProvider>
#include <QFileSystemModel>
#include <QHeaderView>
#include <QIdentityProxyModel>
#include <QSettings>
#include <QStandardPaths>
#include <QTreeView>

namespace report {

namespace {

constexpr int SizeColumn = 1;
constexpr int DateColumn = 3;
const QString FolderKey = QStringLiteral("report/folder");

class ChineseKinds final : public QFileIconProvider {
public:
    QString type(const QFileInfo &info) const override
    {
        if (info.isRoot())
            return QStringLiteral("驱动器");
        return info.isDir() ? QStringLiteral("文件夹") : QStringLiteral("文件");
    }
};

QString sizeText(qint64 bytes)
{
    static constexpr QStringView Units[] = {u"字节", u"千字节", u"兆字节", u"吉字节"};
    double size = static_cast<double>(bytes);
    std::size_t unit = 0;
    for (; size >= 1024 && unit + 1 < std::size(Units); ++unit)
        size /= 1024;
    return QStringLiteral("%1 %2").arg(QString::number(size, 'f', unit == 0 ? 0 : 1), Units[unit]);
}

/// The folder's files as their dates and sizes are written here; the model itself asks the system's language.
class ChineseListing final : public QIdentityProxyModel {
public:
    using QIdentityProxyModel::QIdentityProxyModel;

    QVariant data(const QModelIndex &index, int role) const override
    {
        const auto *files = qobject_cast<const QFileSystemModel *>(sourceModel());
        if (files == nullptr || role != Qt::DisplayRole)
            return QIdentityProxyModel::data(index, role);
        const QModelIndex source = mapToSource(index);
        if (index.column() == SizeColumn && !files->isDir(source))
            return sizeText(files->size(source));
        if (index.column() == DateColumn)
            return files->lastModified(source).toString(QStringLiteral("yyyy-MM-dd HH:mm"));
        return QIdentityProxyModel::data(index, role);
    }
};

/// Sizes in words take more room than the "2 KiB" that the dialog reckons with.
void makeRoomForSizes(QFileDialog &dialog)
{
    auto *list = dialog.findChild<QTreeView *>(QStringLiteral("treeView"));
    if (list == nullptr)
        return;
    const int wanted = list->fontMetrics().horizontalAdvance(sizeText(1024 * 1023)) * 5 / 4;
    list->header()->resizeSection(SizeColumn, wanted);
    dialog.resize(dialog.sizeHint() + QSize(wanted, 0));
}

QString firstFolder()
{
    for (const QString &folder : {QSettings().value(FolderKey).toString(),
                                  QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)}) {
        if (!folder.isEmpty() && QFileInfo(folder).isDir())
            return folder;
    }
    return QDir::homePath();
}

QString filterFor(const QString &suffix)
{
    const QString kind = suffix == u"pdf" ? QStringLiteral("PDF 文件") : QStringLiteral("电子表格");
    return QStringLiteral("%1 (*.%2)").arg(kind, suffix);
}

} // namespace

QString askForSaveFile(QWidget *parent, const QString &caption, const QString &name, const QString &suffix)
{
    ChineseKinds kinds;
    QFileDialog dialog(parent, caption, firstFolder(), filterFor(suffix));
    dialog.setObjectName(QStringLiteral("dlgSaveReport"));
    dialog.setOption(QFileDialog::DontUseNativeDialog); // the desktop's speaks the desktop's language
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setProxyModel(new ChineseListing(&dialog));
    dialog.setIconProvider(&kinds);
    makeRoomForSizes(dialog);
    dialog.setDefaultSuffix(suffix);
    dialog.selectFile(name + u'.' + suffix);
    if (dialog.exec() != QDialog::Accepted)
        return {};
    const QString path = dialog.selectedFiles().value(0);
    QSettings().setValue(FolderKey, QFileInfo(path).absolutePath());
    return path;
}

} // namespace report
