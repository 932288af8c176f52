// SPDX-License-Identifier: MIT
// Filter edit, list and keys of the code look-up.
#include "vortaq/app/lookup/lookupdialog.h"

#include "vortaq/app/lookup/lookupmodel.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>
#include <optional>

namespace vortaq {

namespace {

constexpr int UsualRows = 12; // with the header
constexpr int LeastRows = 4;

} // namespace

LookupDialog::LookupDialog(LookupModel &model, const QString &filter, int rowHeight, QWidget *parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint)
    , m_model(model)
    , m_filter(new QLineEdit(this))
    , m_table(new QTableView(this))
    , m_count(new QLabel(this))
{
    setObjectName(QStringLiteral("codeSearchDialog"));
    setWindowTitle(QStringLiteral("代码查询"));
    auto *frame = new QFrame(this);
    frame->setFrameShape(QFrame::Box);
    auto *outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->addWidget(frame);
    auto *inner = new QVBoxLayout(frame);
    inner->addWidget(m_filter);
    inner->addWidget(m_table, 1);
    inner->addWidget(m_count);

    m_filter->setObjectName(QStringLiteral("codeSearchFilter"));
    m_filter->setPlaceholderText(QStringLiteral("输入代码或名称"));
    m_filter->setClearButtonEnabled(true);
    m_filter->installEventFilter(this);
    connect(m_filter, &QLineEdit::textChanged, this, &LookupDialog::applyFilter);
    dressTable(rowHeight);
    m_filter->setText(filter);
    applyFilter(filter);
    m_filter->setFocus();
}

void LookupDialog::dressTable(int rowHeight)
{
    m_table->setObjectName(QStringLiteral("codeSearchList"));
    m_table->setModel(&m_model);
    m_table->setFocusPolicy(Qt::NoFocus);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setAlternatingRowColors(true);
    m_table->setShowGrid(false);
    m_table->verticalHeader()->hide();
    const int height = std::max(rowHeight, fontMetrics().height() * 3 / 2);
    m_table->verticalHeader()->setDefaultSectionSize(height);
    m_table->resizeColumnsToContents();
    for (int column = 0; column < m_model.columnCount(); ++column)
        m_table->setColumnWidth(column, m_table->columnWidth(column) + height);
    m_table->horizontalHeader()->setStretchLastSection(true);
    m_table->horizontalHeader()->setHighlightSections(false);
    m_table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    const int width = fontMetrics().averageCharWidth() * 36;
    m_table->setMinimumSize(width, height * LeastRows);
    m_preferred = QSize(width, height * UsualRows);
    connect(m_table, &QTableView::doubleClicked, this, &LookupDialog::take);
}

QSize LookupDialog::sizeHint() const
{
    return QDialog::sizeHint() - m_table->sizeHint().expandedTo(m_table->minimumSize()) + m_preferred;
}

void LookupDialog::applyFilter(const QString &text)
{
    m_model.setFilter(text.trimmed());
    const int rows = m_model.rowCount();
    if (rows > 0)
        m_table->selectRow(0);
    m_count->setText(QStringLiteral("共 %1 条　↑↓ 选择　回车 选定　Esc 取消").arg(rows));
}

void LookupDialog::setVisible(bool visible)
{
    QDialog::setVisible(visible);
    // A dialog that appears selects the text of its first field; the clerk's next key must be added to it.
    m_filter->deselect();
    m_filter->end(false);
}

bool LookupDialog::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_filter && event->type() == QEvent::KeyPress) {
        const auto *key = static_cast<QKeyEvent *>(event);
        if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
            take();
            return true;
        }
        if (moveBy(key->key(), key->modifiers()))
            return true;
    }
    return QDialog::eventFilter(watched, event);
}

bool LookupDialog::moveBy(int key, Qt::KeyboardModifiers modifiers)
{
    const int last = m_model.rowCount() - 1;
    const int current = m_table->currentIndex().row();
    const int page = std::max(1, m_table->viewport()->height() / m_table->verticalHeader()->defaultSectionSize() - 1);
    const bool control = modifiers.testFlag(Qt::ControlModifier);
    const auto wanted = [&]() -> std::optional<int> {
        switch (key) {
        case Qt::Key_Up:
            return current - 1;
        case Qt::Key_Down:
            return current + 1;
        case Qt::Key_PageUp:
            return current - page;
        case Qt::Key_PageDown:
            return current + page;
        case Qt::Key_Home:
            return control ? std::optional(0) : std::nullopt;
        case Qt::Key_End:
            return control ? std::optional(last) : std::nullopt;
        default:
            return std::nullopt;
        }
    }();
    if (!wanted)
        return false;
    if (last >= 0)
        m_table->selectRow(std::clamp(*wanted, 0, last));
    return true;
}

void LookupDialog::take()
{
    const QModelIndex current = m_table->currentIndex();
    if (!current.isValid())
        return;
    m_chosenRow = m_model.packetRow(current.row());
    accept();
}

} // namespace vortaq
