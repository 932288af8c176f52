// SPDX-License-Identifier: MIT
#include "uMain/PageControl.h"

#include "toolkit/guard.h"

#include <QScopedValueRollback>
#include <QTabBar>

namespace {

class Tabs : public QTabBar {
public:
    using QTabBar::QTabBar;

    /// Whether the page is being changed by a key that the tabs have for it.
    [[nodiscard]] bool isWalked() const noexcept { return m_isWalked; }

protected:
    void keyPressEvent(QKeyEvent *event) override
    {
        const QScopedValueRollback walked(m_isWalked, true);
        QTabBar::keyPressEvent(event);
    }

private:
    bool m_isWalked = false;
};

} // namespace

PageControl::PageControl(QWidget *parent)
    : QTabWidget(parent)
{
    auto *tabs = new Tabs(this);
    setTabBar(tabs);
    const QString doing = QStringLiteral("切换页面");
    toolkit::connectGuarded(this, &QTabWidget::currentChanged, this, doing, [this, tabs] {
        if (!tabs->isWalked())
            focusPage();
    });
    toolkit::connectGuarded(this, &QTabWidget::tabBarClicked, this, doing, [this](int tab) {
        if (tab == currentIndex()) // another page is changed to in a moment
            focusPage();
    });
}

void PageControl::focusPage() const
{
    if (QWidget *page = currentWidget())
        page->setFocus();
}
