// SPDX-License-Identifier: MIT
// Tests of loading a module.
#include "vortaq/app/exitcode.h"
#include "vortaq/app/modulelibrary.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace vortaq::test {

std::string refusal(const QString &file)
{
    try {
        const ModuleLibrary module(file);
    } catch (const StartupError &error) {
        EXPECT_EQ(error.exitCode(), ExitCode::Module);
        return error.what();
    }
    return {};
}

TEST(ModuleLibrary, ReadsTheInfoWithoutMakingAForm)
{
    const ModuleLibrary module(QStringLiteral(TEST_PLAIN_MODULE));
    EXPECT_EQ(module.info().library, QStringLiteral("Plain"));
    EXPECT_EQ(module.info().function.caption, QStringLiteral("制单"));
    EXPECT_EQ(module.form(), nullptr);
}

TEST(ModuleLibrary, MakesOneFormUntilItIsFreed)
{
    ModuleLibrary module(QStringLiteral(TEST_PLAIN_MODULE));
    QWidget *form = &module.createForm();
    EXPECT_EQ(&module.createForm(), form);
    EXPECT_FALSE(form->isVisible());
    module.freeForm();
    EXPECT_EQ(module.form(), nullptr);
    module.freeForm();
    module.refresh();
}

TEST(ModuleLibrary, FreesAFormThatIsLeftOver)
{
    QPointer<QWidget> form;
    {
        ModuleLibrary module(QStringLiteral(TEST_PLAIN_MODULE));
        form = &module.createForm();
    }
    EXPECT_TRUE(form.isNull());
}

TEST(ModuleLibrary, AFormThatIsBusyStaysWithItsLibrary)
{
    QPointer<QWidget> form;
    {
        ModuleLibrary module(QStringLiteral(TEST_PLAIN_MODULE));
        form = &module.createForm();
        form->setProperty("busy", true);
        EXPECT_THROW(module.freeForm(), std::runtime_error);
        EXPECT_EQ(module.form(), form);
    }
    ASSERT_FALSE(form.isNull());
    EXPECT_FALSE(form->isVisible()) << "its code is still there";
    form->setProperty("busy", false);
    void *freed = form;
    QLibrary library(QStringLiteral(TEST_PLAIN_MODULE)); // the same, still loaded
    ASSERT_TRUE(library.isLoaded());
    EXPECT_EQ(reinterpret_cast<TarnwellFreeModule>(library.resolve("FreeModule"))(&freed), TARNWELL_OK);
    EXPECT_TRUE(library.unload());
}

TEST(ModuleLibrary, AMissingFileIsNamed)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("No.so"));
    EXPECT_EQ(refusal(file), "找不到模块“" + file.toStdString() + "”。");
}

TEST(ModuleLibrary, AFileThatIsNoLibraryIsRefused)
{
    const QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("Text.so"));
    QFile file(name);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("no library");
    file.close();
    EXPECT_EQ(refusal(name).find("无法装入模块“" + name.toStdString() + "”："), 0U);
}

TEST(ModuleLibrary, AMissingEntryPointIsNamed)
{
    EXPECT_NE(refusal(QStringLiteral(TEST_HALF_MODULE)).find("没有入口“CreateModule”"), std::string::npos);
}

} // namespace vortaq::test
