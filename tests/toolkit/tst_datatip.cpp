// SPDX-License-Identifier: MIT
// Hints that show data: as it is written, in a size that fits a screen.
#include "toolkit/datatip.h"

#include "tests/support/hints.h"

#include <QLabel>
#include <QTest>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QToolTip>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

/// What a clerk reads in the hint.
QString readable(const QString &tip)
{
    return Qt::mightBeRichText(tip) ? QTextDocumentFragment::fromHtml(tip).toPlainText() : tip;
}

class DataTip : public testing::Test {
protected:
    DataTip()
    {
        m_window.resize(300, 200);
        m_window.show();
    }
    ~DataTip() override { hints::forget(); }

    /// The hint on the screen.
    QLabel &shown(const QString &data)
    {
        toolkit::showDataTip(m_window.mapToGlobal(QPoint(5, 5)), data, &m_window, m_window.rect());
        for (QWidget *window : QApplication::topLevelWidgets()) {
            if (window->inherits("QTipLabel") && window->isVisible())
                return static_cast<QLabel &>(*window);
        }
        throw std::runtime_error("no hint");
    }

    QWidget m_window;
};

} // namespace

TEST_F(DataTip, plainTextIsItself)
{
    for (const QString &text : {u"阿依古丽"_s, u"第一行\n第二行"_s, u"5 < 6 & 7"_s, u"a&b"_s, u" 两端空格 "_s})
        EXPECT_EQ(toolkit::dataTip(text), text);
    EXPECT_EQ(toolkit::dataTip(QString()), QString());
}

TEST_F(DataTip, markupIsShownAsItIsWritten)
{
    for (const QString &text :
         {u"<img src=\"secret.png\">"_s, u"<b>王</b>秀英"_s, u"  <table><tr><td>1</td></tr></table>"_s, u"&lt;b&gt;"_s,
          u"<!DOCTYPE html><p>x"_s, u"a <br> b\n<b>c</b>"_s, u"<?xml version='1.0'?><a/>"_s, u"甲  <i>乙</i>"_s}) {
        const QString tip = toolkit::dataTip(text);
        EXPECT_EQ(readable(tip), text) << tip.toStdString();
        EXPECT_FALSE(tip.contains(u"<img"_s)) << tip.toStdString();
    }
}

TEST_F(DataTip, noPictureIsLookedFor)
{
    class Document final : public QTextDocument {
    public:
        QVariant loadResource(int type, const QUrl &name) override
        {
            asked.append(name.toString());
            return QTextDocument::loadResource(type, name);
        }
        QStringList asked;
    } document;
    const QString text = u"甲<img src=\"/etc/hostname\"><link rel=stylesheet href=\"x.css\">"_s;
    document.setHtml(toolkit::dataTip(text));
    document.adjustSize();
    EXPECT_EQ(document.asked, QStringList());
    EXPECT_EQ(document.toPlainText(), text);
}

TEST_F(DataTip, controlCharactersAreBlanks)
{
    EXPECT_EQ(toolkit::dataTip(u"甲\t乙\r\n丙"_s + QChar(0) + u"丁"_s + QChar(QChar::LineSeparator) + u"戊"_s),
              u"甲 乙\n丙 丁\n戊"_s);
}

TEST_F(DataTip, longTextsAreWrappedAndBounded)
{
    const int line = QFontMetrics(QToolTip::font()).lineSpacing();
    const int character = QFontMetrics(QToolTip::font()).horizontalAdvance(u'国');
    const QStringList texts = {QString(10'000, u'国'),
                               QString(10'000, u'x'),
                               QString(u"张三，"_s).repeated(3'300),
                               QString(u"<b>"_s).repeated(3'300),
                               QString(u"行\n"_s).repeated(5'000),
                               u"<img src=x>"_s + QString(10'000, u'W'),
                               QString(u"𠮷"_s).repeated(5'000)};
    for (const QString &text : texts) {
        const QLabel &tip = shown(text);
        EXPECT_LE(tip.width(), 42 * character) << text.first(10).toStdString();
        EXPECT_LE(tip.height(), 30 * line) << text.first(10).toStdString();
        const QString written = readable(tip.text());
        EXPECT_TRUE(written.endsWith(u'…')) << text.first(10).toStdString();
        QString without = written.chopped(1);
        EXPECT_TRUE(QString(text).remove(u'\n').startsWith(without.remove(u'\n'))) << text.first(10).toStdString();
        hints::forget();
    }
}

TEST_F(DataTip, whatFitsInSomeLinesIsComplete)
{
    const QString text = QString(u"王秀英、李建国；"_s).repeated(20);
    EXPECT_EQ(toolkit::dataTip(text).remove(u'\n'), text);
    EXPECT_GT(toolkit::dataTip(text).count(u'\n'), 2);
    EXPECT_LT(toolkit::dataTip(text).count(u'\n'), 6);
}
