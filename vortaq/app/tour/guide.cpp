// SPDX-License-Identifier: MIT
// Synthesised keys and clicks, and the watch over modal windows.
#include "vortaq/app/tour/guide.h"

#include "vortaq/app/tour/picture.h"
#include "vortaq/app/windowatwork.h"

#include "automation/error.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QDeadlineTimer>
#include <QDialog>
#include <QDir>
#include <QEventLoop>
#include <QKeyEvent>
#include <QMenu>
#include <QMessageBox>
#include <QMouseEvent>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace vortaq {

namespace {

constexpr int WatchMilliseconds = 30;
constexpr int SettleMilliseconds = 90;
constexpr int PatienceMilliseconds = 30000;
constexpr int OpeningPatience = 30; // rounds of settling

void sendMouse(QWidget &widget, QEvent::Type type, const QPoint &position, Qt::MouseButton button)
{
    const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : button;
    QMouseEvent event(type, position, widget.mapToGlobal(position), button, held, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
}

/// Views are clicked on their viewport, but it is the view that takes the focus.
void focusByMouse(QWidget &widget)
{
    QWidget *target = &widget;
    while ((target->focusPolicy() & Qt::ClickFocus) == 0) {
        if (target->isWindow())
            return;
        target = target->parentWidget();
    }
    target->setFocus(Qt::MouseFocusReason);
}

/// Scrolls an entry into view; the middle of what is seen of it, which on a narrow screen may be less than the whole.
QPoint reach(QAbstractItemView &view, const QModelIndex &index)
{
    view.scrollTo(index);
    return view.visualRect(index).intersected(view.viewport()->rect()).center();
}

QString describe(const QWidget &modal)
{
    const auto *box = qobject_cast<const QMessageBox *>(&modal);
    return box ? box->text() : QStringLiteral("%1 %2").arg(modal.objectName(), modal.windowTitle());
}

} // namespace

Guide::Guide(QWidget &window, const QString &directory)
    : m_window(window)
    , m_directory(directory)
{
    watch();
}

QWidget &Guide::findWidget(const QString &name)
{
    QWidget *root = QApplication::activeModalWidget();
    const QList<QWidget *> found = (root ? root : &m_window)->findChildren<QWidget *>(name);
    for (QWidget *widget : found) {
        if (widget->isVisible())
            return *widget;
    }
    throw TourError(QStringLiteral("窗口中没有可见的控件“%1”。").arg(name));
}

void Guide::click(QWidget &widget, const QPoint &position, Qt::MouseButton button)
{
    if (!widget.isEnabled())
        throw TourError(QStringLiteral("控件“%1”不可用。").arg(widget.objectName()));
    focusByMouse(widget);
    sendMouse(widget, QEvent::MouseButtonPress, position, button);
    sendMouse(widget, QEvent::MouseButtonRelease, position, button);
    settle();
}

void Guide::doubleClick(QWidget &widget, const QPoint &position)
{
    focusByMouse(widget);
    sendMouse(widget, QEvent::MouseButtonPress, position, Qt::LeftButton);
    sendMouse(widget, QEvent::MouseButtonRelease, position, Qt::LeftButton);
    sendMouse(widget, QEvent::MouseButtonDblClick, position, Qt::LeftButton);
    sendMouse(widget, QEvent::MouseButtonRelease, position, Qt::LeftButton);
    settle();
}

void Guide::clickIndex(QAbstractItemView &view, const QModelIndex &index)
{
    click(*view.viewport(), reach(view, index));
}

void Guide::doubleClickIndex(QAbstractItemView &view, const QModelIndex &index)
{
    doubleClick(*view.viewport(), reach(view, index));
}

QModelIndex Guide::cell(const QAbstractItemView &grid, int row, const QString &caption)
{
    const QAbstractItemModel &model = *grid.model();
    if (row >= model.rowCount())
        throw TourError(QStringLiteral("表格“%1”没有第 %2 行。").arg(grid.objectName()).arg(row + 1));
    for (int column = 0; column < model.columnCount(); ++column) {
        if (model.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString() == caption)
            return model.index(row, column);
    }
    throw TourError(QStringLiteral("表格“%1”没有列“%2”。").arg(grid.objectName(), caption));
}

void Guide::press(QWidget &widget, Qt::Key key, const QString &text, Qt::KeyboardModifiers modifiers)
{
    widget.setFocus(Qt::OtherFocusReason);
    QKeyEvent down(QEvent::KeyPress, key, modifiers, text);
    QApplication::sendEvent(&widget, &down);
    QKeyEvent up(QEvent::KeyRelease, key, modifiers, text);
    QApplication::sendEvent(&widget, &up);
    settle();
}

void Guide::type(QWidget &widget, const QString &text)
{
    for (const QChar character : text) {
        const bool isAscii = character.unicode() < 0x80;
        press(widget, isAscii ? static_cast<Qt::Key>(character.toUpper().unicode()) : Qt::Key_unknown,
              QString(character));
    }
}

void Guide::withModal(const std::function<void()> &act, const std::function<void(QWidget &modal)> &inside)
{
    expect(WindowKind::Modal, act, inside);
}

void Guide::withMenu(QAbstractItemView &view, const QModelIndex &index, const std::function<void(QMenu &menu)> &inside)
{
    const QPoint position = reach(view, index);
    const auto ask = [&view, position] {
        QContextMenuEvent event(QContextMenuEvent::Mouse, position, view.viewport()->mapToGlobal(position));
        QApplication::sendEvent(view.viewport(), &event);
    };
    expect(WindowKind::Menu, ask, [&inside](QWidget &opened) {
        auto *menu = qobject_cast<QMenu *>(&opened);
        if (!menu)
            throw TourError(QStringLiteral("打开的不是菜单：%1。").arg(describe(opened)));
        inside(*menu);
    });
}

void Guide::choose(QMenu &menu, const QString &item)
{
    for (QAction *action : menu.actions()) {
        if (action->objectName() != item)
            continue;
        if (!action->isEnabled())
            throw TourError(QStringLiteral("菜单项“%1”不可用。").arg(item));
        menu.setActiveAction(action);
        press(menu, Qt::Key_Return, QStringLiteral("\r"));
        return;
    }
    throw TourError(QStringLiteral("菜单中没有“%1”。").arg(item));
}

void Guide::clickButton(QWidget &dialog, const QString &caption)
{
    for (QAbstractButton *button : dialog.findChildren<QAbstractButton *>()) {
        if (button->isVisible() && button->text().startsWith(caption)) {
            click(*button);
            return;
        }
    }
    throw TourError(QStringLiteral("窗口中没有按钮“%1”。").arg(caption));
}

void Guide::expect(WindowKind kind, const std::function<void()> &act, const Visit &inside)
{
    const std::size_t waiting = m_expected.size();
    m_expected.push_back({kind, inside});
    act();
    for (int patience = 0; m_expected.size() > waiting; ++patience) {
        if (patience == OpeningPatience) {
            m_expected.pop_back();
            throw TourError(QStringLiteral("应当打开的窗口没有打开。"));
        }
        settle();
    }
}

void Guide::settle()
{
    // The window manager's part: when a dialog closes, the window behind it is active again.
    if (!QApplication::activeWindow())
        windowAtWork()->activateWindow();
    QEventLoop loop;
    QTimer::singleShot(SettleMilliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

void Guide::waitFor(const std::function<bool()> &condition, const QString &what)
{
    const QDeadlineTimer deadline(PatienceMilliseconds);
    while (!condition()) {
        if (deadline.hasExpired())
            throw TourError(QStringLiteral("没有等到：%1。").arg(what));
        settle();
    }
}

void Guide::picture(const QString &caption)
{
    settle();
    ++m_pictures;
    const QString name = QStringLiteral("%1-%2.png").arg(m_pictures, 2, 10, QLatin1Char('0')).arg(caption);
    if (!pictureOf(m_window).save(QDir(m_directory).filePath(name)))
        throw TourError(QStringLiteral("无法保存画面“%1”。").arg(name));
}

void Guide::watch()
{
    QTimer::singleShot(WatchMilliseconds, this, &Guide::watch);
    QWidget *menu = QApplication::activePopupWidget();
    QWidget *modal = QApplication::activeModalWidget();
    if (!m_expected.empty()) {
        QWidget *wanted = m_expected.back().kind == WindowKind::Menu ? menu : modal;
        if (wanted && std::find(m_visited.begin(), m_visited.end(), wanted) == m_visited.end()) {
            const Visit inside = std::move(m_expected.back().inside);
            m_expected.pop_back();
            visit(*wanted, inside);
            return;
        }
    }
    if (modal && std::find(m_visited.begin(), m_visited.end(), modal) == m_visited.end())
        dismiss(*modal, QStringLiteral("意外的窗口：%1").arg(describe(*modal)));
}

void Guide::visit(QWidget &opened, const Visit &inside)
{
    const QPointer<QWidget> open(&opened);
    m_visited.push_back(open);
    QString trouble;
    try {
        inside(opened);
        if (open && open->isVisible())
            trouble = QStringLiteral("窗口没有关闭：%1").arg(describe(opened));
    } catch (const std::exception &error) {
        trouble = automation::messageOf(error);
    }
    m_visited.pop_back();
    if (trouble.isEmpty())
        return;
    if (open)
        dismiss(*open, trouble);
    else
        m_troubles.append(trouble);
}

void Guide::dismiss(QWidget &opened, const QString &trouble)
{
    m_troubles.append(trouble);
    const QString name = QStringLiteral("trouble-%1.png").arg(m_troubles.size());
    if (!pictureOf(m_window).save(QDir(m_directory).filePath(name)))
        m_troubles.append(QStringLiteral("无法保存画面“%1”。").arg(name));
    if (auto *dialog = qobject_cast<QDialog *>(&opened))
        dialog->reject();
    else
        opened.close();
}

} // namespace vortaq
