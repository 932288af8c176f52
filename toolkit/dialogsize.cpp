// SPDX-License-Identifier: MIT
#include "toolkit/dialogsize.h"

#include <QDialog>
#include <QScreen>
#include <QScrollArea>
#include <QVBoxLayout>

namespace toolkit {

namespace {

/// What a desktop puts around a dialog; that of the window behind it, once there is one on the screen.
QSize frameOf(const QWidget *behind)
{
    constexpr QSize usual(16, 40);
    return behind != nullptr && behind->isVisible() ? (behind->frameSize() - behind->size()).expandedTo(usual) : usual;
}

void letContentsScroll(QDialog &dialog)
{
    auto *area = new QScrollArea(&dialog);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidgetResizable(true);
    auto *contents = new QWidget(area);
    contents->setLayout(dialog.layout()); // which takes the components along
    area->setWidget(contents);
    auto *layout = new QVBoxLayout(&dialog);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(area);
}

} // namespace

void fitToScreen(QDialog &dialog, const QSize &wanted)
{
    const QWidget *behind = dialog.parentWidget() != nullptr ? dialog.parentWidget()->window() : nullptr;
    const QScreen *screen = behind != nullptr ? behind->screen() : dialog.screen();
    const QSize room = screen->availableGeometry().size() - frameOf(behind);
    const QSize least = dialog.minimumSizeHint();
    const bool scrolls = least.boundedTo(room) != least;
    if (scrolls)
        letContentsScroll(dialog);
    dialog.resize(scrolls ? room : wanted.expandedTo(least).boundedTo(room));
}

} // namespace toolkit
