// SPDX-License-Identifier: MIT
// Node handles: every use goes through the list that holds the node.
#include "toolkit/TdxTreeListNode.h"

#include "toolkit/treelist/listprivate.h"

#include <stdexcept>

int TdxTreeListNode::index() const
{
    return contents().rank(m_id);
}

int TdxTreeListNode::level() const
{
    return contents().level(m_id);
}

TdxTreeListNode TdxTreeListNode::parent() const
{
    return m_list->d->handleOrNull(contents().parent(m_id));
}

int TdxTreeListNode::childCount() const
{
    return static_cast<int>(contents().children(m_id).size());
}

TdxTreeListNode TdxTreeListNode::child(int index) const
{
    const std::vector<int> &children = contents().children(m_id);
    const auto at = static_cast<std::size_t>(index);
    return at < children.size() ? m_list->d->handle(children[at]) : TdxTreeListNode();
}

QString TdxTreeListNode::text(int position) const
{
    return contents().text(m_id, position);
}

std::string_view TdxTreeListNode::utf8(int position, std::string &scratch) const
{
    return contents().utf8(m_id, position, scratch);
}

QVariant TdxTreeListNode::value(int position) const
{
    return contents().value(m_id, position);
}

void TdxTreeListNode::setValue(int position, const QVariant &value) const
{
    contents().setValue(m_id, position, value);
    m_list->d->valueChanged(m_id, position);
}

void TdxTreeListNode::setImages(int image, int selectedImage) const
{
    contents().setImages(m_id, image, selectedImage);
    m_list->d->valueChanged(m_id, 0);
}

toolkit::treelist::NodeStore &TdxTreeListNode::contents() const
{
    if (m_list == nullptr)
        throw std::logic_error("没有选中表格的行。");
    toolkit::treelist::NodeStore &store = m_list->d->store;
    if (m_generation != store.generation())
        throw std::logic_error("表格的这一行已不存在。");
    return store;
}
