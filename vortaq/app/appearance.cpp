// SPDX-License-Identifier: MIT
// Dresses the application.
#include "vortaq/app/appearance.h"

#include "vortaq/app/naming.h"

#include <QApplication>
#include <QFont>
#include <QIcon>
#include <QLibraryInfo>
#include <QLocale>
#include <QPalette>
#include <QStyle>
#include <QTranslator>

/// A static library's resources have to be asked for, from outside any namespace.
static void loadResources()
{
    Q_INIT_RESOURCE(icon);
}

namespace vortaq {

namespace {

/// Below this size Chinese characters with many strokes run together.
constexpr int LeastPointSize = 10;

QPalette calmPalette()
{
    const QColor window(0xF3, 0xF5, 0xF7);
    const QColor text(0x1F, 0x2A, 0x33);
    const QColor faint(0x97, 0xA1, 0xA9);
    const QColor accent(0x1E, 0x6E, 0x8C);
    QPalette palette(window);
    palette.setColor(QPalette::Window, window);
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, QColor(0xF4, 0xF8, 0xFA));
    palette.setColor(QPalette::Button, QColor(0xE9, 0xED, 0xF0));
    palette.setColor(QPalette::Highlight, accent);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, accent);
    palette.setColor(QPalette::ToolTipBase, QColor(0xFF, 0xF7, 0xD6));
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
        palette.setColor(role, text);
        palette.setColor(QPalette::Disabled, role, faint);
    }
    palette.setColor(QPalette::PlaceholderText, faint);
    palette.setColor(QPalette::Disabled, QPalette::Text, QColor(0x55, 0x61, 0x6B)); // totals are read all day
    palette.setColor(QPalette::Disabled, QPalette::Base, QColor(0xEE, 0xF1, 0xF3));
    return palette;
}

} // namespace

void useChinese(QCoreApplication &application)
{
    QLocale::setDefault(QLocale(QLocale::Chinese, QLocale::China));
    auto *translator = new QTranslator(&application);
    if (translator->load(QStringLiteral("qtbase_zh_CN"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(translator);
}

void dress(QApplication &application)
{
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setPalette(calmPalette());
    QFont font = QApplication::font();
    font.setFamilies({QStringLiteral("Noto Sans CJK SC"), QStringLiteral("WenQuanYi Zen Hei"), font.family()});
    if (font.pointSize() < LeastPointSize)
        font.setPointSize(LeastPointSize);
    application.setFont(font);
    loadResources();
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/tarnwell-host.svg")));
    QGuiApplication::setDesktopFileName(programName()); // where a desktop takes the icon from the menu entry
}

} // namespace vortaq
