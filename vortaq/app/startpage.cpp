// SPDX-License-Identifier: MIT
// Institution, clerk and the way into the function.
#include "vortaq/app/startpage.h"

#include "vortaq/app/menucaption.h"
#include "vortaq/app/moduleinfo.h"
#include "vortaq/app/naming.h"
#include "vortaq/app/session.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace vortaq {

namespace {

QLabel *line(const QString &text, double scale, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignCenter);
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * scale);
    label->setFont(font);
    return label;
}

} // namespace

StartPage::StartPage(const Session &session, const ModuleInfo &info, QWidget *parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("startPage"));
    auto *open = new QPushButton(menuCaption(info.function.caption), this);
    open->setObjectName(QStringLiteral("openFunctionButton"));
    open->setDefault(true);
    setFocusProxy(open);
    open->setMinimumSize(open->fontMetrics().averageCharWidth() * 28, open->fontMetrics().height() * 3);
    connect(open, &QPushButton::clicked, this, &StartPage::functionWanted);

    auto *layout = new QVBoxLayout(this);
    layout->addStretch(2);
    layout->addWidget(line(programTitle(), 2.2, this));
    layout->addWidget(line(session.parameter(QStringLiteral("OrgName")).toString(), 1.3, this));
    layout->addSpacing(fontMetrics().height() * 2);
    layout->addWidget(open, 0, Qt::AlignHCenter);
    layout->addSpacing(fontMetrics().height());
    layout->addWidget(line(QStringLiteral("操作员：%1").arg(session.user().name), 1.0, this));
    layout->addStretch(3);
}

} // namespace vortaq
