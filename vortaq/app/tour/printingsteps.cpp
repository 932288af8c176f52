// SPDX-License-Identifier: MIT
// The printed documents of one stay: each in its preview, and as a PDF file beside the pictures.
#include "vortaq/app/tour/steps.h"

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QDir>
#include <QPushButton>
#include <QRadioButton>

namespace vortaq {

namespace {

constexpr int StayWithManyFees = 3; // row among the candidates of the demo data

/// While it lives, a module writes its documents into a folder instead of showing them.
class WrittenReports {
public:
    explicit WrittenReports(const QString &folder) { qApp->setProperty("reportFolder", folder); }
    ~WrittenReports() { qApp->setProperty("reportFolder", QVariant()); }
    WrittenReports(const WrittenReports &) = delete;
    WrittenReports &operator=(const WrittenReports &) = delete;
};

qsizetype pdfFiles(const Guide &guide)
{
    return QDir(guide.directory()).entryList({QStringLiteral("*.pdf")}, QDir::Files).size();
}

/// Prints by one button: first a look at the preview, then the file.
void printBy(Guide &guide, const char *button, const QString &caption)
{
    auto &pushButton = guide.find<QPushButton>(QString::fromLatin1(button));
    guide.withModal([&] { guide.click(pushButton); },
                    [&](QWidget &preview) {
                        guide.picture(caption);
                        guide.press(preview, Qt::Key_Escape);
                    });
    const qsizetype before = pdfFiles(guide);
    {
        const WrittenReports written(guide.directory());
        guide.click(pushButton);
    }
    if (pdfFiles(guide) != before + 1)
        throw TourError(QStringLiteral("没有写出“%1”的PDF文件。").arg(caption));
}

} // namespace

void printSettlementSheet(TourScene &scene)
{
    Guide &guide = scene.guide;
    choosePage(guide, QStringLiteral("TabSheet3"));
    auto &grid = guide.find<QAbstractItemView>(QStringLiteral("dxTLUp"));
    guide.clickIndex(grid, Guide::cell(grid, StayWithManyFees, QStringLiteral("患者姓名")));
    printBy(guide, "btnOutFee", QStringLiteral("结算单"));
}

void printApprovalForm(TourScene &scene)
{
    printBy(scene.guide, "btnFeeGs", QStringLiteral("住院审批表"));
}

void printFeeLists(TourScene &scene)
{
    Guide &guide = scene.guide;
    guide.withModal([&guide] { guide.click(guide.find<QPushButton>(QStringLiteral("btnFeeInfo"))); },
                    [&guide](QWidget &) {
                        guide.picture(QStringLiteral("打印费用清单"));
                        printBy(guide, "btnPrint", QStringLiteral("每日清单"));
                        guide.press(guide.find<QRadioButton>(QStringLiteral("rbAll")), Qt::Key_Space,
                                    QStringLiteral(" "));
                        printBy(guide, "btnPrint", QStringLiteral("总清单"));
                        guide.click(guide.find<QPushButton>(QStringLiteral("btnExit")));
                    });
}

} // namespace vortaq
