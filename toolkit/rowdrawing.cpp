// SPDX-License-Identifier: MIT
#include "toolkit/rowdrawing.h"

#include "host/parameters.h"
#include "host/references.h"
#include "toolkit/TdxTreeListNode.h"

namespace toolkit {

namespace {

WindowsColour hostColour(const QString &parameter)
{
    return host::toColour(host::shared().FuncStorage.CustomParam(parameter));
}

void drawFocused(CellStyle &style)
{
    style.background = hostColour(host::parameter::FocusedRowColour);
    style.font = WindowColour;
}

} // namespace

CellDrawing organisationTreeDrawing()
{
    return [](const TdxTreeListNode &, const TdxTreeListColumn &, bool focused, CellStyle &style) {
        if (focused)
            drawFocused(style);
    };
}

CellDrawing billListDrawing()
{
    return [](const TdxTreeListNode &node, const TdxTreeListColumn &, bool focused, CellStyle &style) {
        const bool odd = node.index() % 2 != 0;
        style.background = odd ? hostColour(host::parameter::OddRowColour) : WindowColour;
        style.font = NoColour;
        if (focused)
            drawFocused(style);
    };
}

CellDrawing rowNumberDrawing()
{
    return [](const TdxTreeListNode &node, const TdxTreeListColumn &, bool, CellStyle &style) {
        style.text = QString::number(node.index() + 1);
    };
}

} // namespace toolkit
