// SPDX-License-Identifier: MIT
// A line of text and a button.
#include "vortaq/app/loadingnotice.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace vortaq {

LoadingNotice::LoadingNotice(QWidget *parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("loadingNotice"));
    auto *text = new QLabel(QStringLiteral("载入失败，功能暂停使用"), this);
    text->setObjectName(QStringLiteral("statusLoading"));
    QFont font = text->font();
    font.setBold(true);
    text->setFont(font);
    auto *retry = new QPushButton(QStringLiteral("重试(&T)"), this);
    retry->setObjectName(QStringLiteral("retryButton"));
    retry->setToolTip(QStringLiteral("排除出错的原因之后，重新载入。"));
    retry->setAutoDefault(true); // the return key presses it, too
    setFocusProxy(retry);
    connect(retry, &QPushButton::clicked, this, &LoadingNotice::retryWanted);

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(text);
    layout->addWidget(retry);
}

} // namespace vortaq
