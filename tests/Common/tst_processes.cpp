// SPDX-License-Identifier: MIT
// Ending processes and opening files, on programs that the test made.
#include "Common/TCtrlFunc.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>
#include <QWidget>

#include <cerrno>
#include <cstddef>
#include <cstdlib>
#include <gtest/gtest.h>
#include <iterator>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <memory>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <vector>

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
    [[nodiscard]] bool runs() const { return m_process.state() == QProcess::Running; }
    /// Waits for its end, and says whether it was ended by force.
    [[nodiscard]] bool wasKilled()
    {
        return m_process.waitForFinished() && m_process.exitStatus() == QProcess::CrashExit;
    }

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
    EXPECT_EQ(m_functions.KillTask(u"TARNWELL-WAITING"_s), 2);
    EXPECT_TRUE(first.wasKilled());
    EXPECT_TRUE(second.wasKilled());
    Waiting third(path(u"TARNWELL-ÉCOLE-等待"_s));
    EXPECT_EQ(m_functions.KillTask(u"tarnwell-école-等待"_s), 1);
    EXPECT_TRUE(third.wasKilled());
    EXPECT_EQ(m_functions.KillTask(u"tarnwell-waiting"_s), 0);
}

TEST_F(Processes, whoseNamesOnlyContainTheTextStay)
{
    std::vector<std::unique_ptr<Waiting>> others;
    for (const QString &name : {u"tarnwell-named2"_s, u"tarnwell-named.exe"_s, u"x-tarnwell-named"_s,
                                u"tarnwell-name"_s, u"tarnwell-named (deleted)"_s, u"tarnwell-named tarnwell-named"_s})
        others.push_back(std::make_unique<Waiting>(path(name)));
    EXPECT_EQ(m_functions.KillTask(u"tarnwell-named"_s), 0);
    Waiting meant(path(u"tarnwell-named"_s));
    EXPECT_EQ(m_functions.KillTask(u"tarnwell-named"_s), 1);
    EXPECT_TRUE(meant.wasKilled());
    for (const std::unique_ptr<Waiting> &other : others)
        EXPECT_TRUE(other->runs()) << other->process().program().toStdString();
}

TEST_F(Processes, ofLongNamesAreToldApart)
{
    const QString name = u"tarnwell-with-a-name-that-the-system-cuts-to-fifteen-bytes"_s;
    Waiting meant(path(name));
    Waiting other(path(name + u'2'));
    EXPECT_EQ(m_functions.KillTask(name.first(15)), 0);
    EXPECT_EQ(m_functions.KillTask(name), 1);
    EXPECT_TRUE(meant.wasKilled());
    EXPECT_TRUE(other.runs());
}

TEST_F(Processes, inAnyFolderAreEnded)
{
    ASSERT_TRUE(QDir(m_folder.path()).mkdir(u"folder"_s));
    Waiting first(path(u"tarnwell-twice"_s));
    Waiting second(path(u"folder/tarnwell-twice"_s));
    EXPECT_EQ(m_functions.KillTask(u"tarnwell-twice"_s), 2);
    EXPECT_TRUE(first.wasKilled());
    EXPECT_TRUE(second.wasKilled());
}

TEST_F(Processes, ofScriptsAreThoseOfTheInterpreter)
{
    ASSERT_TRUE(QFile::copy(QStandardPaths::findExecutable(u"sh"_s), path(u"tarnwell-shell"_s)));
    QFile script(path(u"tarnwell-script"_s));
    ASSERT_TRUE(script.open(QIODevice::WriteOnly));
    script.write("#!" + path(u"tarnwell-shell"_s).toUtf8() + "\necho ready\nread line\n");
    script.close();
    ASSERT_TRUE(script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    QProcess process;
    process.start(script.fileName(), QStringList());
    ASSERT_TRUE(process.waitForReadyRead());
    EXPECT_EQ(m_functions.KillTask(u"tarnwell-script"_s), 0);
    EXPECT_EQ(process.state(), QProcess::Running);
    EXPECT_EQ(m_functions.KillTask(u"tarnwell-shell"_s), 1);
    EXPECT_TRUE(process.waitForFinished());
}

/// From here on the system refuses this program every signal, as it does to those who lack the right.
void loseTheRightToEnd()
{
    sock_filter rules[] = {
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_pidfd_send_signal, 0, 1),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | EPERM),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
    };
    const sock_fprog program{std::size(rules), rules};
    if (prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0 || prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) != 0)
        std::_Exit(99);
}

TEST_F(Processes, thatMayNotBeEndedAreSkipped)
{
    Waiting process(path(u"tarnwell-protected"_s));
    const auto endWithoutRight = [this] {
        loseTheRightToEnd();
        std::_Exit(m_functions.KillTask(u"tarnwell-protected"_s));
    };
    EXPECT_EXIT(endWithoutRight(), testing::ExitedWithCode(0), "");
    EXPECT_TRUE(process.runs());
    EXPECT_EQ(m_functions.KillTask(u"tarnwell-protected"_s), 1);
    EXPECT_TRUE(process.wasKilled());
}

/// A copy of this program under another name runs the first lines only.
TEST(ProcessesOfThisProgram, endLast)
{
    const QString name = u"tarnwell-ends-itself"_s;
    if (QFileInfo(QCoreApplication::applicationFilePath()).fileName() == name) {
        TCtrlFunc().KillTask(name);
        FAIL() << "still there";
    }
    QTemporaryDir folder;
    ASSERT_TRUE(folder.isValid() && QDir(folder.path()).mkdir(u"other"_s));
    ASSERT_TRUE(QFile::copy(QCoreApplication::applicationFilePath(), folder.filePath(name)));
    Waiting other(folder.filePath(u"other/"_s + name));
    QProcess itself;
    itself.start(folder.filePath(name), {u"--gtest_filter=ProcessesOfThisProgram.endLast"_s});
    ASSERT_TRUE(itself.waitForFinished());
    EXPECT_EQ(itself.exitStatus(), QProcess::CrashExit) << itself.readAllStandardOutput().toStdString();
    EXPECT_TRUE(other.wasKilled());
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

    Q_INVOKABLE void open(const QUrl &url) { opened.append(url); }
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
    put(u"tarnwell-program"_s, "#!/bin/sh\n: > \"$0.ran\"\n");
    ASSERT_TRUE(
        QFile::setPermissions(path(u"tarnwell-program"_s), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    const QByteArray before = qgetenv("PATH");
    qputenv("PATH", m_folder.path().toUtf8() + ':' + before);
    EXPECT_TRUE(m_functions.ExeFile(u" tarnwell-program "_s, nullptr));
    EXPECT_FALSE(m_functions.ExeFile(u"tarnwell-program with arguments"_s, nullptr));
    qputenv("PATH", before);
    EXPECT_TRUE(QTest::qWaitFor([this] { return QFile::exists(path(u"tarnwell-program.ran"_s)); }));
}

TEST_F(ExeFile, failsWhenTheDesktopHasNoProgramForIt)
{
    QDesktopServices::unsetUrlHandler(u"http"_s);
    const QByteArray before = qgetenv("PATH");
    qputenv("PATH", m_folder.path().toUtf8());
    EXPECT_FALSE(m_functions.ExeFile(u"http://localhost/"_s, nullptr));
    qputenv("PATH", before);
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
