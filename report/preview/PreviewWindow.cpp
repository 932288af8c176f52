// SPDX-License-Identifier: MIT
#include "report/preview/PreviewWindow.h"

#include "report/output/dialogs.h"
#include "report/output/filename.h"
#include "report/output/print.h"
#include "report/output/spreadsheet.h"
#include "ui_PreviewWindow.h"

#include "toolkit/dialogsize.h"
#include "toolkit/guard.h"
#include "toolkit/messageboxes.h"

#include <QElapsedTimer>
#include <QPrinter>
#include <QShortcut>
#include <QSignalBlocker>

#include <algorithm>
#include <utility>

namespace report {

namespace {

/// The clerk does not notice a pause of this length.
constexpr qint64 SliceMilliseconds = 15;
constexpr qint64 Patience = 1000;

// What the clerk is doing when something fails.
const QString Printing = QStringLiteral("打印");
const QString SavingPdf = QStringLiteral("保存 PDF ");
const QString Exporting = QStringLiteral("导出表格");
const QString TurningPages = QStringLiteral("翻页");
const QString Zooming = QStringLiteral("缩放");
const QString LayingOut = QStringLiteral("排版");
const QString Closing = QStringLiteral("关闭窗口");

struct ZoomLevel {
    Zoom zoom;
    int percent;
    QStringView caption;
};
constexpr ZoomLevel ZoomLevels[] = {
    {Zoom::FitWidth, 0, u"适合宽度"}, {Zoom::FitPage, 0, u"整页"},   {Zoom::Percent, 50, u"50%"},
    {Zoom::Percent, 75, u"75%"},      {Zoom::Percent, 100, u"100%"}, {Zoom::Percent, 125, u"125%"},
    {Zoom::Percent, 150, u"150%"},    {Zoom::Percent, 200, u"200%"}, {Zoom::Percent, 400, u"400%"}};

} // namespace

PreviewWindow::PreviewWindow(Document &document, QWidget *parent, Elapsed elapsed)
    : QDialog(parent)
    , m_document(document)
    , m_elapsed(std::move(elapsed))
    , m_ui(std::make_unique<Ui::PreviewWindow>())
{
    m_ui->setupUi(this);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    setWindowTitle(QStringLiteral("打印预览 - %1").arg(document.source().title));
    m_ui->barLayout->setRange(0, 1000);
    fillZoomLevels();
    m_ui->view->setDocument(&m_document);
    connectButtons();
    addShortcuts();
    toolkit::connectGuarded(&m_timer, &QTimer::timeout, this, LayingOut, [this] { layOutSlice(); });
    showState();
    m_ui->view->setFocus();
}

PreviewWindow::~PreviewWindow() = default;

void PreviewWindow::run()
{
    if (!m_document.isFinished())
        m_timer.start();
    toolkit::fitToScreen(*this, size());
    exec();
    m_timer.stop();
    if (m_failure)
        std::rethrow_exception(m_failure);
}

void PreviewWindow::connectButtons()
{
    const auto onClick = [this](QPushButton *button, const QString &doing, auto action) {
        toolkit::connectGuarded(button, &QPushButton::clicked, this, doing, action);
    };
    onClick(m_ui->btnPrint, Printing, [this] { print(); });
    onClick(m_ui->btnPdf, SavingPdf, [this] { savePdf(); });
    onClick(m_ui->btnSpreadsheet, Exporting, [this] { exportSpreadsheet(); });
    onClick(m_ui->btnFirst, TurningPages, [this] { showPage(0); });
    onClick(m_ui->btnPrevious, TurningPages, [this] { turnPage(-1); });
    onClick(m_ui->btnNext, TurningPages, [this] { turnPage(1); });
    onClick(m_ui->btnLast, TurningPages, [this] { showPage(m_document.pageCount() - 1); });
    onClick(m_ui->btnStopLayout, LayingOut, [this] { stopLayingOut(); });
    onClick(m_ui->btnClose, Closing, [this] { accept(); });
    toolkit::connectGuarded(m_ui->edtPage, &QSpinBox::valueChanged, this, TurningPages,
                            [this](int page) { showPage(page - 1); });
    toolkit::connectGuarded(m_ui->cbZoom, &QComboBox::currentIndexChanged, this, Zooming,
                            [this](int index) { chooseZoom(index); });
    toolkit::connectGuarded(m_ui->view, &PageView::turnPage, this, TurningPages,
                            [this](int direction) { turnPage(direction); });
    toolkit::connectGuarded(m_ui->view, &PageView::zoomStep, this, Zooming,
                            [this](int direction) { stepZoom(direction); });
}

void PreviewWindow::addShortcuts()
{
    const auto add = [this](const QKeySequence &keys, const QString &doing, auto action) {
        toolkit::connectGuarded(new QShortcut(keys, this), &QShortcut::activated, this, doing, action);
    };
    add(QKeySequence(Qt::CTRL | Qt::Key_P), Printing, [this] { print(); });
    add(QKeySequence(Qt::CTRL | Qt::Key_S), SavingPdf, [this] { savePdf(); });
    add(QKeySequence(Qt::CTRL | Qt::Key_E), Exporting, [this] { exportSpreadsheet(); });
    add(QKeySequence(Qt::CTRL | Qt::Key_Home), TurningPages, [this] { showPage(0); });
    add(QKeySequence(Qt::CTRL | Qt::Key_End), TurningPages, [this] { showPage(m_document.pageCount() - 1); });
    add(QKeySequence(Qt::CTRL | Qt::Key_Plus), Zooming, [this] { stepZoom(1); });
    add(QKeySequence(Qt::CTRL | Qt::Key_Equal), Zooming, [this] { stepZoom(1); });
    add(QKeySequence(Qt::CTRL | Qt::Key_Minus), Zooming, [this] { stepZoom(-1); });
}

void PreviewWindow::fillZoomLevels()
{
    for (const ZoomLevel &level : ZoomLevels)
        m_ui->cbZoom->addItem(level.caption.toString());
}

void PreviewWindow::layOutSlice()
{
    QElapsedTimer slice;
    slice.start();
    try {
        while (!m_document.isFinished() && slice.elapsed() < SliceMilliseconds)
            m_document.layOutNext();
    } catch (...) {
        // It belongs to whoever asked for the report, who stands below the modal loop.
        m_failure = std::current_exception();
        m_timer.stop();
        reject();
        return;
    }
    if (m_document.isFinished()) {
        m_timer.stop();
        m_ui->view->refresh();
    }
    showState();
}

void PreviewWindow::stopLayingOut()
{
    m_timer.stop();
    m_stopped = true;
    showState();
    m_ui->view->setFocus();
}

void PreviewWindow::showPage(int index)
{
    m_ui->view->setPage(std::clamp(index, 0, m_document.pageCount() - 1));
    showState();
}

void PreviewWindow::turnPage(int direction)
{
    const int index = m_ui->view->page() + direction;
    if (index >= 0 && index < m_document.pageCount())
        showPage(index);
}

void PreviewWindow::chooseZoom(int index)
{
    const ZoomLevel &level = ZoomLevels[index];
    m_ui->view->setZoom(level.zoom, level.percent);
}

void PreviewWindow::stepZoom(int direction)
{
    const int now = m_ui->view->percent();
    int chosen = m_ui->cbZoom->currentIndex();
    for (int at = 0; at < static_cast<int>(std::size(ZoomLevels)); ++at) {
        const int percent = ZoomLevels[at].percent;
        if (ZoomLevels[at].zoom != Zoom::Percent || (percent - now) * direction <= 0)
            continue;
        chosen = at;
        if (direction > 0)
            break;
    }
    m_ui->cbZoom->setCurrentIndex(chosen);
}

void PreviewWindow::showState()
{
    const int count = m_document.pageCount();
    const int page = m_ui->view->page();
    {
        const QSignalBlocker blocker(m_ui->edtPage);
        m_ui->edtPage->setRange(1, count);
        m_ui->edtPage->setValue(page + 1);
    }
    m_ui->LbPages->setText(m_document.isFinished() ? QStringLiteral("页，共 %1 页").arg(count)
                                                   : QStringLiteral("页，已排 %1 页").arg(count));
    m_ui->btnFirst->setEnabled(page > 0);
    m_ui->btnPrevious->setEnabled(page > 0);
    m_ui->btnNext->setEnabled(page + 1 < count);
    m_ui->btnLast->setEnabled(page + 1 < count);
    const bool busy = !m_document.isFinished() && !m_stopped && m_elapsed() >= Patience;
    m_ui->barLayout->setVisible(busy);
    m_ui->btnStopLayout->setVisible(busy);
    m_ui->barLayout->setValue(m_document.permille());
    if (busy)
        m_ui->LbState->setText(QStringLiteral("正在排版……"));
    else if (m_stopped && !m_document.isFinished())
        m_ui->LbState->setText(QStringLiteral("排版已停止，只显示前 %1 页。").arg(count));
    else
        m_ui->LbState->setText(m_message);
}

template <typename Job> bool PreviewWindow::runJob(const QString &what, Job job)
{
    const bool layingOut = m_timer.isActive();
    m_timer.stop();
    const auto carryOn = [this, layingOut] {
        m_ui->view->refresh();
        if (layingOut && !m_document.isFinished())
            m_timer.start();
    };
    bool done = false;
    try {
        BusyDialog busy(this, what);
        done = job([&busy](int permille) { return busy.advance(permille); });
    } catch (...) {
        carryOn();
        throw;
    }
    carryOn();
    return done;
}

void PreviewWindow::print()
{
    if (!dialogs().hasPrinter()) {
        toolkit::messageBoxes().tell(this, QStringLiteral("打印"),
                                     QStringLiteral("没有可用的打印机，将保存为 PDF 文件。"));
        savePdf();
        return;
    }
    const bool complete =
        runJob(QStringLiteral("正在排版……"), [this](const Progress &progress) { return m_document.finish(progress); });
    QPrinter printer(QPrinter::HighResolution);
    if (!complete || !dialogs().choosePrinter(this, printer, m_document.pageCount()))
        return;
    const bool done = runJob(QStringLiteral("正在打印……"), [this, &printer](const Progress &progress) {
        return printDocument(m_document, printer, progress);
    });
    m_message = done ? QStringLiteral("已送往打印机。") : QStringLiteral("打印已取消。");
    showState();
}

void PreviewWindow::savePdf()
{
    const QString path =
        dialogs().chooseFile(this, QStringLiteral("保存为 PDF"), fileName(m_document), QStringLiteral("pdf"));
    if (path.isEmpty())
        return;
    const bool done = runJob(QStringLiteral("正在保存 PDF……"),
                             [this, &path](const Progress &progress) { return writePdf(m_document, path, progress); });
    m_message = done ? QStringLiteral("已保存：%1").arg(path) : QStringLiteral("保存已取消。");
    showState();
}

void PreviewWindow::exportSpreadsheet()
{
    const QString path =
        dialogs().chooseFile(this, QStringLiteral("导出表格"), fileName(m_document), QStringLiteral("xlsx"));
    if (path.isEmpty())
        return;
    const bool done = runJob(QStringLiteral("正在导出表格……"), [this, &path](const Progress &progress) {
        return writeSpreadsheet(m_document, path, progress);
    });
    m_message = done ? QStringLiteral("已导出：%1").arg(path) : QStringLiteral("导出已取消。");
    showState();
}

} // namespace report
