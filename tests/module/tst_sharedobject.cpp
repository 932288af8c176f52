// SPDX-License-Identifier: MIT
// The shared object itself: its exports, and the whole calling order of a host, unloading included.
#include "automation/errordisplay.h"
#include "module/tarnwell_module.h"
#include "tests/host/scriptedhost.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLibrary>
#include <QProcess>
#include <QWidget>

namespace {

const QString SharedObject = QString::fromUtf8(TARNWELL_SHARED_OBJECT);

} // namespace

TEST(SharedObject, exportsTheFourEntryPointsAndNothingElse)
{
    QProcess nm;
    nm.start(QStringLiteral("nm"), {QStringLiteral("-D"), QStringLiteral("--defined-only"), SharedObject});
    ASSERT_TRUE(nm.waitForFinished());
    QStringList names;
    for (const QString &line : QString::fromUtf8(nm.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts))
        names.append(line.section(u' ', -1));
    names.sort();
    EXPECT_EQ(names,
              QStringList({QStringLiteral("CreateModule"), QStringLiteral("FreeModule"),
                           QStringLiteral("GetModuleInfo"), QStringLiteral("RefreshModule")}));
}

TEST(SharedObject, goesThroughTheCallingOrderAndIsUnloaded)
{
    ScriptedHost host;
    QStringList errors;
    automation::setErrorDisplay([&errors](const QString &message) { errors.append(message); });
    {
        QLibrary library(SharedObject);
        ASSERT_TRUE(library.load()) << library.errorString().toStdString();
        const auto createModule = reinterpret_cast<TarnwellCreateModule>(library.resolve("CreateModule"));
        const auto refreshModule = reinterpret_cast<TarnwellRefreshModule>(library.resolve("RefreshModule"));
        const auto freeModule = reinterpret_cast<TarnwellFreeModule>(library.resolve("FreeModule"));
        ASSERT_TRUE(createModule != nullptr && refreshModule != nullptr && freeModule != nullptr);

        void *form = nullptr;
        ASSERT_EQ(createModule(&form, 0, 0, 0, 0, 0, 0), TARNWELL_OK);
        EXPECT_TRUE(host.created.isEmpty()) << "no host object before the form is shown";
        static_cast<QWidget *>(form)->show();
        QApplication::processEvents();
        EXPECT_EQ(host.created.size(), 3);
        EXPECT_EQ(errors.size(), 1) << "beside this test there is no setup file: start-up ends there, with its error";
        EXPECT_EQ(refreshModule(0, 0), TARNWELL_OK);
        EXPECT_EQ(freeModule(&form), TARNWELL_OK);

        void *left = nullptr;
        ASSERT_EQ(createModule(&left, 0, 0, 0, 0, 0, 0), TARNWELL_OK); // the module destroys it when it is unloaded
        EXPECT_TRUE(library.unload());
    }
    automation::setErrorDisplay({});
    QApplication::processEvents();
}
