// SPDX-License-Identifier: MIT
// Ending processes and opening files, on programs that the test made.
#include "Common/TCtrlFunc.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>
#include <QWidget>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A copy of a program that waits for its input, under a name of the test's own.
class Waiting {
public:
    explicit Waiting(const QString &path)
    {
        QFile::remove(path);
        EXPECT_TRUE(QFile::copy(QStandardPaths::findExecutable(u"cat"_s), path));
        m_process.start(path, QStringList());
        EXPECT_TRUE(m_process.waitForStarted());
    }

    ~Waiting()
    {
        m_process.closeWriteChannel();
        m_process.waitForFinished();
    }

    QProcess &process() { return m_process; }

private:
    QProcess m_process;
};

class Processes : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(m_folder.isValid()); }

    [[nodiscard]] QString path(const QString &name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
    TCtrlFunc m_functions;
};

TEST_F(Processes, areEndedByTheirFileNameInAnyLetterCase)
{
    Waiting first(path(u"tarnwell-Waiting"_s));
    Waiting second(path(u"tarnwell-waiting"_s));
    Waiting other(path(u"tarnwell-waiting2"_s));
    EXPECT_EQ(m_functions.KillTask(u"TARNWELL-WAITING"_s), 2);
    EXPECT_TRUE(first.process().waitForFinished());
    EXPECT_TRUE(second.process().waitForFinished());
    EXPECT_EQ(first.process().exitStatus(), QProcess::CrashExit);
    EXPECT_EQ(other.process().state(), QProcess::Running);
}

TEST_F(Processes, areFoundWhenTheirFileWasRemoved)
{
    Waiting process(path(u"tarnwell-removed"_s));
    QFile::remove(path(u"tarnwell-removed"_s));
    EXPECT_EQ(m_functions.KillTask(u"tarnwell-removed"_s), 1);
    EXPECT_TRUE(process.process().waitForFinished());
}

TEST_F(Processes, areNotFoundByOtherTexts)
{
    Waiting process(path(u"tarnwell-other"_s));
    for (const QString &text : {u""_s, u" "_s, u"tarnwell-othe"_s, u"tarnwell-other "_s, u"*"_s, u"tarnwell-*"_s,
                                u"/"_s, path(u"tarnwell-other"_s), u"../tarnwell-other"_s, u"tarnwell\nother"_s})
        EXPECT_EQ(m_functions.KillTask(text), 0) << text.toStdString();
    EXPECT_EQ(process.process().state(), QProcess::Running);
}

/// Takes what would go to the desktop.
class Desktop : public QObject {
    Q_OBJECT

public:
    Desktop()
    {
        QDesktopServices::setUrlHandler(u"file"_s, this, "open");
        QDesktopServices::setUrlHandler(u"http"_s, this, "open");
    }

    ~Desktop() override
    {
        QDesktopServices::unsetUrlHandler(u"file"_s);
        QDesktopServices::unsetUrlHandler(u"http"_s);
    }

    QList<QUrl> opened;

public Q_SLOTS:
    void open(const QUrl &url) { opened.append(url); }
};

/// Counts how often its widget was brought to the front.
class Raises : public QObject {
public:
    int count = 0;

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::ZOrderChange)
            ++count;
        return false;
    }
};

class ExeFile : public Processes {
protected:
    void put(const QString &name, const QByteArray &content) const
    {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(content), content.size());
    }

    Desktop m_desktop;
};

TEST_F(ExeFile, opensADocument)
{
    put(u"费用 清单.txt"_s, "x");
    EXPECT_TRUE(m_functions.ExeFile(path(u"费用 清单.txt"_s), nullptr));
    EXPECT_EQ(m_desktop.opened, QList<QUrl>{QUrl::fromLocalFile(path(u"费用 清单.txt"_s))});
}

TEST_F(ExeFile, takesPathsAsWindowsSpellsThem)
{
    put(u"a.txt"_s, "x");
    EXPECT_TRUE(m_functions.ExeFile(path(u"a.txt"_s).replace(u'/', u'\\'), nullptr));
    EXPECT_EQ(m_desktop.opened, QList<QUrl>{QUrl::fromLocalFile(path(u"a.txt"_s))});
}

TEST_F(ExeFile, opensAFolder)
{
    EXPECT_TRUE(m_functions.ExeFile(m_folder.path(), nullptr));
    EXPECT_EQ(m_desktop.opened, QList<QUrl>{QUrl::fromLocalFile(m_folder.path())});
}

TEST_F(ExeFile, opensAnAddress)
{
    EXPECT_TRUE(m_functions.ExeFile(u"http://localhost/a?b=c"_s, nullptr));
    EXPECT_EQ(m_desktop.opened, QList<QUrl>{QUrl(u"http://localhost/a?b=c"_s)});
}

TEST_F(ExeFile, startsAProgram)
{
    put(u"program"_s, "#!/bin/sh\n: > \"$0.ran\"\n");
    ASSERT_TRUE(QFile::setPermissions(path(u"program"_s), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    EXPECT_TRUE(m_functions.ExeFile(path(u"program"_s), nullptr));
    EXPECT_TRUE(QTest::qWaitFor([this] { return QFile::exists(path(u"program.ran"_s)); }));
    EXPECT_TRUE(m_desktop.opened.isEmpty());
}

TEST_F(ExeFile, startsACommandOfTheSearchPath)
{
    EXPECT_TRUE(m_functions.ExeFile(u"true"_s, nullptr));
}

TEST_F(ExeFile, bringsTheOwnersWindowToTheFront)
{
    QWidget window;
    QWidget control(&window);
    Raises raises;
    window.installEventFilter(&raises);
    put(u"a.txt"_s, "x");
    EXPECT_TRUE(m_functions.ExeFile(path(u"a.txt"_s), &control));
    EXPECT_EQ(raises.count, 1);
}

TEST_F(ExeFile, opensNothingElse)
{
    for (const QString &text : {u""_s, u"  \n"_s, u"no such file.txt"_s, u"C:\\no such file.txt"_s, u"true; true"_s,
                                u"true && true"_s, u"$(true)"_s, u"|true"_s, u"http:// bad"_s, u"a\nb"_s})
        EXPECT_FALSE(m_functions.ExeFile(text, nullptr)) << text.toStdString();
    EXPECT_TRUE(m_desktop.opened.isEmpty());
}

} // namespace

#include "tst_processes.moc"
