// SPDX-License-Identifier: MIT
#include "forms/rowdrawing.h"

#include "host/parameters.h"
#include "host/references.h"
#include "toolkit/TdxTreeListNode.h"

namespace forms {

namespace {

toolkit::WindowsColour hostColour(const QString &parameter)
{
    return host::toColour(host::shared().FuncStorage.CustomParam(parameter));
}

void drawFocused(toolkit::CellStyle &style)
{
    style.background = hostColour(host::parameter::FocusedRowColour);
    style.font = toolkit::WindowColour;
}

} // namespace

toolkit::CellDrawing organisationTreeDrawing()
{
    return [](const TdxTreeListNode &, const TdxTreeListColumn &, bool focused, toolkit::CellStyle &style) {
        if (focused)
            drawFocused(style);
    };
}

toolkit::CellDrawing billListDrawing()
{
    return [](const TdxTreeListNode &node, const TdxTreeListColumn &, bool focused, toolkit::CellStyle &style) {
        const bool odd = node.index() % 2 != 0;
        style.background = odd ? hostColour(host::parameter::OddRowColour) : toolkit::WindowColour;
        style.font = toolkit::NoColour;
        if (focused)
            drawFocused(style);
    };
}

toolkit::CellDrawing rowNumberDrawing()
{
    return [](const TdxTreeListNode &node, const TdxTreeListColumn &, bool, toolkit::CellStyle &style) {
        style.text = QString::number(node.index() + 1);
    };
}

} // namespace forms
