// SPDX-License-Identifier: MIT
// The hands and eyes of the tour: finds components by name, works them by keys and clicks, answers dialogs, takes
// pictures.
#pragma once

#include "vortaq/app/tour/tourerror.h"

#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QWidget>

#include <functional>
#include <vector>

class QAbstractItemView;
class QMenu;
class QModelIndex;

namespace vortaq {

class Guide : public QObject {
    Q_OBJECT

public:
    /// `window` is borrowed. Pictures and documents go to `directory`, which exists.
    Guide(QWidget &window, const QString &directory);

    [[nodiscard]] QWidget &window() { return m_window; }
    [[nodiscard]] const QString &directory() const { return m_directory; }

    /// The visible component of that name in the window at work. Throws TourError when there is none.
    template <typename Component> Component &find(const QString &name)
    {
        auto *component = qobject_cast<Component *>(&findWidget(name));
        if (!component)
            throw TourError(QStringLiteral("“%1”不是所要的控件。").arg(name));
        return *component;
    }

    void click(QWidget &widget) { click(widget, widget.rect().center()); }
    void click(QWidget &widget, const QPoint &position, Qt::MouseButton button = Qt::LeftButton);
    void doubleClick(QWidget &widget, const QPoint &position);
    void clickIndex(QAbstractItemView &view, const QModelIndex &index);
    void doubleClickIndex(QAbstractItemView &view, const QModelIndex &index);
    /// The cell in the column with that caption. Throws TourError when there is no such row or column.
    [[nodiscard]] static QModelIndex cell(const QAbstractItemView &grid, int row, const QString &caption);
    void press(QWidget &widget, Qt::Key key, const QString &text = {}, Qt::KeyboardModifiers modifiers = {});
    void type(QWidget &widget, const QString &text);

    /// Runs `act`, which opens a modal window, and `inside` while that window is open; `inside` must close it.
    void withModal(const std::function<void()> &act, const std::function<void(QWidget &modal)> &inside);
    /// Opens the context menu at an index and runs `inside`, which must choose an item.
    void withMenu(QAbstractItemView &view, const QModelIndex &index, const std::function<void(QMenu &menu)> &inside);
    /// Chooses a menu's item by its component name.
    void choose(QMenu &menu, const QString &item);
    /// Clicks the button whose caption begins with `caption`.
    void clickButton(QWidget &dialog, const QString &caption);

    /// Lets the event loop run until everything asked for is on the screen.
    void settle();
    /// Waits until `condition` holds. Throws TourError naming `what` when that takes too long.
    void waitFor(const std::function<bool()> &condition, const QString &what);
    /// Saves a picture under the next number. Throws TourError when it cannot be written.
    void picture(const QString &caption);

    /// What went wrong outside the steps' own calls: unexpected windows, dialogs left open.
    [[nodiscard]] const QStringList &troubles() const { return m_troubles; }

private:
    using Visit = std::function<void(QWidget &)>;
    enum class WindowKind { Modal, Menu };
    struct Expectation {
        WindowKind kind;
        Visit inside;
    };

    QWidget &findWidget(const QString &name);
    void expect(WindowKind kind, const std::function<void()> &act, const Visit &inside);
    void watch();
    void visit(QWidget &opened, const Visit &inside);
    void dismiss(QWidget &opened, const QString &trouble);

    QWidget &m_window;
    QString m_directory;
    int m_pictures = 0;
    std::vector<Expectation> m_expected;
    std::vector<QPointer<QWidget>> m_visited;
    QStringList m_troubles;
};

} // namespace vortaq
