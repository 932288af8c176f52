// SPDX-License-Identifier: MIT
// Tests of the program's icon, and of the language of Qt's own windows and menus.
#include "vortaq/app/appearance.h"

#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QIcon>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QSet>
#include <QTextEdit>
#include <QTimer>

#include <gtest/gtest.h>

#include <memory>

namespace vortaq::test {

namespace {

QSet<QRgb> coloursOf(const QImage &picture)
{
    QSet<QRgb> colours;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            colours.insert(picture.pixel(x, y));
    }
    return colours;
}

QString lineOf(const QString &file, const QString &key)
{
    QFile entry(file);
    EXPECT_TRUE(entry.open(QIODevice::ReadOnly));
    for (const QByteArray &line : entry.readAll().split('\n')) {
        const QString text = QString::fromUtf8(line);
        if (text.startsWith(key))
            return text.mid(key.size());
    }
    return {};
}

/// Latin letters, but for the mnemonic that Chinese captions have in brackets.
bool isChinese(QString caption)
{
    caption.remove(QRegularExpression(QStringLiteral("\\(&[A-Z]\\)|\\t.*")));
    return !caption.isEmpty() && !caption.contains(QRegularExpression(QStringLiteral("[A-Za-z]")));
}

} // namespace

TEST(Icon, IsAPictureInEverySize)
{
    dress(*qApp);
    QWidget window;
    const QIcon icon = window.windowIcon();
    ASSERT_FALSE(icon.isNull());
    for (const int size : {16, 22, 24, 32, 48, 64, 128, 256}) {
        const QImage picture = icon.pixmap(QSize(size, size), 1.0).toImage().convertToFormat(QImage::Format_ARGB32);
        ASSERT_EQ(picture.size(), QSize(size, size));
        EXPECT_LT(qAlpha(picture.pixel(0, 0)), 32) << "the corners are round " << size;
        const QSet<QRgb> colours = coloursOf(picture);
        for (const QRgb wanted : {qRgb(0x1E, 0x6E, 0x8C), qRgb(255, 255, 255), qRgb(0x2E, 0x7D, 0x4F)})
            EXPECT_TRUE(colours.contains(wanted)) << size << ' ' << QColor(wanted).name().toStdString();
    }
}

TEST(Icon, IsTheDesktopEntrysToo)
{
    dress(*qApp);
    const QString icon = lineOf(QStringLiteral(TEST_DESKTOP_ENTRY), QStringLiteral("Icon="));
    EXPECT_EQ(icon, QFileInfo(QStringLiteral(TEST_ICON)).completeBaseName());
    EXPECT_EQ(QGuiApplication::desktopFileName(), QFileInfo(QStringLiteral(TEST_DESKTOP_ENTRY)).completeBaseName());
}

TEST(Chinese, AreQtsOwnButtons)
{
    useChinese(*qApp);
    int seen = 0;
    QTimer::singleShot(0, [&seen] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        ASSERT_TRUE(box);
        for (const QAbstractButton *button : box->buttons())
            EXPECT_TRUE(isChinese(button->text())) << button->text().toStdString();
        ++seen;
        box->close();
    });
    QMessageBox::about(nullptr, QStringLiteral("关于"), QStringLiteral("农合医院业务平台"));
    EXPECT_EQ(seen, 1);
}

TEST(Chinese, AreTheMenusOfTextFields)
{
    useChinese(*qApp);
    QLineEdit field;
    QTextEdit text;
    for (QMenu *menu : {field.createStandardContextMenu(), text.createStandardContextMenu()}) {
        const std::unique_ptr<QMenu> owned(menu);
        for (const QAction *item : menu->actions())
            EXPECT_TRUE(item->isSeparator() || isChinese(item->text())) << item->text().toStdString();
    }
}

} // namespace vortaq::test
