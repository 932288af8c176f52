// SPDX-License-Identifier: MIT
// Values by node: one byte each for the common ones.
#include "toolkit/treelist/storedvalues.h"

namespace toolkit::treelist {

namespace {

// The integer 2 and the text "2" are different values with the same text: the type has to be equal as well.
bool same(const QVariant &left, const QVariant &right)
{
    if (left.metaType() != right.metaType())
        return false;
    if (left.metaType() == QMetaType::fromType<QString>()) // nearly always; the general way is many times slower
        return *static_cast<const QString *>(left.constData()) == *static_cast<const QString *>(right.constData());
    return left == right;
}

} // namespace

const QVariant &StoredValues::value(int node) const
{
    const Code code = m_codes[static_cast<std::size_t>(node)];
    return code == Own ? own(node) : shared(code).value;
}

QString StoredValues::text(int node) const
{
    const Code code = m_codes[static_cast<std::size_t>(node)];
    return code == Own ? own(node).toString() : shared(code).text;
}

std::string_view StoredValues::utf8(int node, std::string &scratch) const
{
    const Code code = m_codes[static_cast<std::size_t>(node)];
    if (code != Own)
        return shared(code).utf8;
    scratch = own(node).toString().toStdString();
    return scratch;
}

void StoredValues::set(int node, const QVariant &value)
{
    const auto at = static_cast<std::size_t>(node);
    if (at >= m_codes.size())
        m_codes.resize(at + 1, Unset);
    const Code code = codeFor(value);
    if (code == Own) {
        if (at >= m_own.size())
            m_own.resize(at + 1);
        m_own[at] = value;
    } else if (m_codes[at] == Own) {
        m_own[at] = QVariant();
    }
    m_codes[at] = code;
}

void StoredValues::setAll(int count, const QVariant &value)
{
    m_own.clear();
    m_shared.clear();
    m_codes.assign(static_cast<std::size_t>(count), codeFor(value));
}

StoredValues::Code StoredValues::codeFor(const QVariant &value)
{
    for (std::size_t i = 0; i < m_shared.size(); ++i) {
        if (same(m_shared[i].value, value))
            return static_cast<Code>(i + 1);
    }
    if (m_shared.size() == MostShared)
        return Own;
    const QString text = value.toString();
    m_shared.push_back({value, text, text.toStdString()});
    return static_cast<Code>(m_shared.size());
}

} // namespace toolkit::treelist
