// SPDX-License-Identifier: MIT
// Where a document is saved, and under which name.
#include "report/output/dialogs.h"
#include "report/output/filename.h"

#include "tests/support/hands.h"
#include "tests/support/modalvisit.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QHeaderView>
#include <QLabel>
#include <QLibraryInfo>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QRegularExpression>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QTranslator>
#include <QTreeView>

#include <gtest/gtest.h>

namespace {

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

class SaveDialog : public testing::Test {
protected:
    SaveDialog()
    {
        QCoreApplication::setOrganizationName(QStringLiteral("Tarnwell test"));
        QCoreApplication::setApplicationName(QStringLiteral("savefiledialog"));
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_settings.path());
        QSettings().clear();
        // As the host does it.
        EXPECT_TRUE(
            m_translator.load(QStringLiteral("qtbase_zh_CN"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)));
        QCoreApplication::installTranslator(&m_translator);
        EXPECT_TRUE(QDir(m_folder.path()).mkdir(text("子夹")));
        put("旧.pdf", 3000);
    }
    ~SaveDialog() override
    {
        QCoreApplication::removeTranslator(&m_translator);
        QCoreApplication::setOrganizationName({});
        QCoreApplication::setApplicationName({});
    }

    void put(const char *name, int size) const
    {
        QFile file(m_folder.filePath(text(name)));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(QByteArray(size, 'x'));
        ASSERT_TRUE(file.flush());
        ASSERT_TRUE(file.setFileTime(QDateTime(QDate(2026, 3, 9), QTime(8, 5)), QFileDevice::FileModificationTime));
    }
    static QString choose(const std::function<void(QFileDialog &)> &work, const char *name = "结算单 张三 2026-03-09")
    {
        const ModalVisit visit(QStringLiteral("dlgSaveReport"),
                               [&work](QWidget &dialog) { work(dynamic_cast<QFileDialog &>(dialog)); });
        return report::dialogs().chooseFile(nullptr, text("保存为 PDF"), text(name), QStringLiteral("pdf"));
    }
    static void remember(const QString &folder) { QSettings().setValue(QStringLiteral("report/folder"), folder); }

    QTemporaryDir m_settings;
    QTemporaryDir m_folder;
    QTranslator m_translator;
};

/// Everything that a widget tells, with where it stands.
class Texts {
public:
    explicit Texts(const QWidget &window)
    {
        note(window, "title", window.windowTitle());
        for (const QWidget *widget : window.findChildren<QWidget *>())
            take(*widget);
    }

    QStringList found;

private:
    void note(const QObject &object, const char *what, const QString &told)
    {
        if (!told.isEmpty())
            found.append(QStringLiteral("%1 %2: %3").arg(object.objectName(), text(what), told));
    }
    void take(const QWidget &widget)
    {
        note(widget, "tip", widget.toolTip());
        note(widget, "status", widget.statusTip());
        note(widget, "help", widget.whatsThis());
        note(widget, "name", widget.accessibleName());
        note(widget, "description", widget.accessibleDescription());
        for (const QAction *action : widget.actions()) {
            note(widget, "action", action->text());
            note(widget, "action's tip", action->toolTip());
        }
        if (const auto *button = qobject_cast<const QAbstractButton *>(&widget))
            note(widget, "button", button->text());
        if (const auto *label = qobject_cast<const QLabel *>(&widget))
            note(widget, "label", label->text());
        if (const auto *edit = qobject_cast<const QLineEdit *>(&widget))
            note(widget, "hint", edit->placeholderText());
        if (const auto *menu = qobject_cast<const QMenu *>(&widget))
            note(widget, "menu", menu->title());
        if (const auto *box = qobject_cast<const QComboBox *>(&widget)) {
            for (int at = 0; at < box->count(); ++at)
                note(widget, "choice", box->itemText(at));
        }
        if (const auto *view = qobject_cast<const QAbstractItemView *>(&widget))
            takeCells(*view);
    }
    void takeCells(const QAbstractItemView &view)
    {
        const QAbstractItemModel *model = view.model();
        if (model == nullptr)
            return;
        const QModelIndex root = view.rootIndex();
        for (int column = 0; column < model->columnCount(root); ++column) {
            for (const int role : {Qt::DisplayRole, Qt::ToolTipRole})
                note(view, "header", model->headerData(column, Qt::Horizontal, role).toString());
            for (int row = 0; row < model->rowCount(root); ++row) {
                for (const int role : {Qt::DisplayRole, Qt::ToolTipRole, Qt::StatusTipRole, Qt::AccessibleTextRole})
                    note(view, "cell", model->index(row, column, root).data(role).toString());
            }
        }
    }
};

/// Names of files and folders are no words, and a PDF file is called so in Chinese too.
QStringList latinWords(QStringList texts, const QStringList &names)
{
    static const QRegularExpression latin(QStringLiteral("[A-Za-z]{2,}"));
    QStringList words;
    for (QString &told : texts) {
        const QString where = told.section(QStringLiteral(": "), 0, 0);
        QString what = told.section(QStringLiteral(": "), 1);
        for (const QString &name : names)
            what.remove(name);
        what.remove(QStringLiteral("PDF")).remove(QStringLiteral("*.pdf"));
        if (latin.match(what).hasMatch())
            words.append(where + QStringLiteral(": ") + what);
    }
    return words;
}

TEST_F(SaveDialog, SpeaksChineseEverywhere)
{
    remember(m_folder.path());
    (void)choose([this](QFileDialog &dialog) {
        dialog.setViewMode(QFileDialog::Detail);
        auto &list = hands::find<QAbstractItemView>(dialog, "treeView");
        const auto cell = [&list](int row, int column) {
            return list.model()->index(row, column, list.rootIndex()).data().toString();
        };
        ASSERT_TRUE(QTest::qWaitFor([&cell] { return cell(0, 0) == text("子夹") && cell(1, 0) == text("旧.pdf"); }));
        const QStringList names{m_folder.path(), QDir(m_folder.path()).dirName(), text("旧.pdf"), QDir::homePath(),
                                QDir::home().dirName()};
        EXPECT_EQ(latinWords(Texts(dialog).found, names).join(u'\n').toStdString(), "");
        QStringList row;
        for (int column = 0; column < 4; ++column)
            row.append(cell(1, column));
        EXPECT_EQ(row.join(u'|').toStdString(), "旧.pdf|2.9 千字节|文件|2026-03-09 08:05");
        EXPECT_EQ(cell(0, 2), text("文件夹"));
        const int width = hands::find<QTreeView>(dialog, "treeView").columnWidth(1);
        EXPECT_GT(width, list.fontMetrics().horizontalAdvance(text("1023.0 千字节"))) << "sizes are not cut";
        EXPECT_EQ(cell(0, 1), QString());
    });
}

TEST_F(SaveDialog, ItsMenuSpeaksChineseToo)
{
    remember(m_folder.path());
    (void)choose([](QFileDialog &dialog) {
        auto &list = hands::find<QAbstractItemView>(dialog, "treeView");
        bool seen = false;
        QTimer::singleShot(0, &dialog, [&seen] {
            auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
            ASSERT_NE(menu, nullptr);
            QStringList texts;
            for (const QAction *action : menu->actions())
                texts.append(QStringLiteral("menu: ") + action->text() + action->toolTip());
            EXPECT_GT(texts.size(), 2);
            EXPECT_EQ(latinWords(texts, {}), QStringList());
            seen = true;
            menu->close();
        });
        emit list.customContextMenuRequested(QPoint(5, 5));
        EXPECT_TRUE(seen);
    });
}

TEST_F(SaveDialog, ProposesTheNameAndRemembersTheFolder)
{
    remember(m_folder.path());
    const QString other = m_folder.filePath(text("子夹"));
    const QString path = choose([&other](QFileDialog &dialog) {
        EXPECT_EQ(hands::find<QLineEdit>(dialog, "fileNameEdit").text(), text("结算单 张三 2026-03-09.pdf"));
        dialog.setDirectory(other);
        dialog.selectFile(text("甲"));
        QTest::keyClick(&hands::find<QLineEdit>(dialog, "fileNameEdit"), Qt::Key_Return);
    });
    EXPECT_EQ(path, other + text("/甲.pdf"));
    (void)choose([&other](QFileDialog &dialog) { EXPECT_EQ(dialog.directory().path(), other); });
    // Given up, nothing is remembered.
    EXPECT_EQ(choose([this](QFileDialog &dialog) {
                  dialog.setDirectory(m_folder.path());
                  dialog.reject();
              }),
              QString());
    (void)choose([&other](QFileDialog &dialog) { EXPECT_EQ(dialog.directory().path(), other); });
}

TEST_F(SaveDialog, BeginsAmongTheDocumentsWhereNoFolderIsRemembered)
{
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QString first = QFileInfo(documents).isDir() ? documents : QDir::homePath();
    (void)choose([&first](QFileDialog &dialog) { EXPECT_EQ(dialog.directory().path(), first); });
    remember(m_folder.filePath(text("不再有的夹")));
    (void)choose([&first](QFileDialog &dialog) { EXPECT_EQ(dialog.directory().path(), first); });
}

TEST_F(SaveDialog, AsksInChineseBeforeItReplacesAFile)
{
    remember(m_folder.path());
    bool asked = false;
    const QString path = choose(
        [&asked](QFileDialog &dialog) {
            QTimer::singleShot(0, &dialog, [&asked] {
                auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
                ASSERT_NE(box, nullptr);
                asked = true;
                QStringList texts = Texts(*box).found;
                texts.append(QStringLiteral("text: ") + box->text());
                EXPECT_EQ(latinWords(texts, {text("旧.pdf"), QStringLiteral("qt_msgbox_label")}), QStringList());
                box->button(QMessageBox::Yes)->click();
            });
            QTest::keyClick(&hands::find<QLineEdit>(dialog, "fileNameEdit"), Qt::Key_Return);
        },
        "旧");
    EXPECT_TRUE(asked);
    EXPECT_EQ(path, m_folder.filePath(text("旧.pdf")));
}

TEST(FileNames, AreWhatEveryFileSystemTakes)
{
    const struct {
        const char *given;
        const char *name;
    } rows[] = {{"结算单 张三 2026-03-09", "结算单 张三 2026-03-09"},
                {"费用清单(总) 阿卜杜·买买提", "费用清单(总) 阿卜杜·买买提"},
                {"a/b\\c:d*e?f\"g<h>i|j", "abcdefghij"},
                {"../../etc/passwd", "etcpasswd"},
                {".隐藏", "隐藏"},
                {" ..结算单.. ", "结算单"},
                {"结算单  2026-03-09", "结算单 2026-03-09"},
                {"张\n三\t李\x01四\x7F", "张 三 李四"},
                {"张\xE2\x80\xAE三\xE2\x80\x8B", "张三"},
                {"𠮷田", "𠮷田"},
                {"///", "报表"},
                {"", "报表"}};
    for (const auto &[given, name] : rows)
        EXPECT_EQ(report::safeFileName(text(given)).toStdString(), name);
}

TEST(FileNames, AreShortEnoughAndKeepTheirEnd)
{
    const QString longName = report::safeFileName(text("结算单 ") + QString(500, u'吉') + text(" 2026-03-09"));
    EXPECT_LE(longName.toUtf8().size(), 200);
    EXPECT_GT(longName.toUtf8().size(), 190);
    EXPECT_TRUE(longName.startsWith(text("结算单 吉吉")));
    EXPECT_TRUE(longName.endsWith(text("吉 2026-03-09")));
    QString rare;
    for (int at = 0; at < 300; ++at)
        rare += text("𠮷");
    const QString cut = report::safeFileName(rare);
    EXPECT_LE(cut.toUtf8().size(), 200);
    EXPECT_EQ(QString(cut).remove(text("𠮷")), text("…")) << "no half of a character is left";
}

} // namespace
