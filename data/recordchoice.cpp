// SPDX-License-Identifier: MIT
// The condition over ticked records, from which records can be cut out again.
#include "data/recordchoice.h"

#include <algorithm>

namespace data {

namespace {

constexpr int None = -1;
constexpr qsizetype BlankBefore = 1; // the first clause
constexpr qsizetype JoinerBefore = 4; // " or " before every other one
constexpr qsizetype CutBefore = 3; // "or ", which goes with the clause

bool isNumber(const QString &value)
{
    return std::all_of(value.begin(), value.end(), [](QChar character) {
        return (character >= u'0' && character <= u'9') || QStringView(u"+-. ").contains(character);
    });
}

/// Whether a clause of this key can be found nowhere but where a clause of the same key begins. Text stands in quotes,
/// numbers do not.
bool standsOnlyAtItsPlace(const RecordKey &key)
{
    return isNumber(key.idNo) && isNumber(key.diagNo);
}

/// Whether no other clause can begin within the clause of this key.
bool holdsNoOther(const RecordKey &key)
{
    constexpr QStringView beginning = u"(OrgCode=";
    return standsOnlyAtItsPlace(key) && !key.orgCode.contains(beginning) && !key.coopMedCode.contains(beginning);
}

} // namespace

RecordChoice::RecordChoice(const std::vector<RecordKey> &keys)
    : m_text(anyOfRecords(keys))
    , m_isPlain(std::all_of(keys.begin(), keys.end(), holdsNoOther))
{
    if (!m_isPlain)
        return;
    m_clauses.reserve(keys.size());
    qsizetype begin = BlankBefore;
    for (const RecordKey &key : keys) {
        m_clauses.push_back({begin, begin + recordClause(key).size()});
        begin = m_clauses.back().end + JoinerBefore;
    }
    m_firstAlike.reserve(static_cast<qsizetype>(keys.size()));
    for (auto clause = static_cast<int>(m_clauses.size()) - 1; clause >= 0; --clause) {
        Clause &at = m_clauses[static_cast<std::size_t>(clause)];
        const QString text = m_text.sliced(at.begin, at.end - at.begin);
        at.nextAlike = m_firstAlike.value(text, None);
        m_firstAlike.insert(text, clause);
    }
}

void RecordChoice::cut(const RecordKey &key)
{
    if (!m_isPlain || !standsOnlyAtItsPlace(key)) {
        m_text = withoutRecord(text(), key);
        m_isPlain = false;
        return;
    }
    const QString clause = recordClause(key);
    const int found = firstStanding(clause);
    if (found == None) {
        dropFromStart(clause.size() - 1);
        return;
    }
    Clause &at = m_clauses[static_cast<std::size_t>(found)];
    if (found == 0 || goneFrom(at) < m_start)
        m_start = at.end; // fewer characters than a joiner has are left before it
    else
        at.isCut = true;
}

QString RecordChoice::text() const
{
    if (!m_isPlain)
        return m_text;
    QString text;
    text.reserve(m_text.size() - m_start);
    qsizetype from = m_start;
    for (auto clause = m_clauses.begin() + static_cast<std::ptrdiff_t>(m_passed); clause != m_clauses.end(); ++clause) {
        if (!clause->isCut || clause->end <= from)
            continue;
        if (from < goneFrom(*clause))
            text.append(QStringView(m_text).sliced(from, goneFrom(*clause) - from));
        from = clause->end;
    }
    return text.append(QStringView(m_text).sliced(from));
}

qsizetype RecordChoice::goneFrom(const Clause &clause)
{
    return clause.begin - CutBefore;
}

int RecordChoice::firstStanding(const QString &clause)
{
    const auto first = m_firstAlike.find(clause);
    if (first == m_firstAlike.end())
        return None;
    const auto at = [this](int index) -> const Clause & { return m_clauses[static_cast<std::size_t>(index)]; };
    while (*first != None && (at(*first).isCut || at(*first).begin < m_start))
        *first = at(*first).nextAlike;
    return *first;
}

void RecordChoice::dropFromStart(qsizetype characters)
{
    for (; m_passed < m_clauses.size(); ++m_passed) {
        const Clause &clause = m_clauses[m_passed];
        if (clause.end <= m_start)
            continue;
        const qsizetype standing = std::max<qsizetype>((clause.isCut ? goneFrom(clause) : clause.end) - m_start, 0);
        if (characters <= standing) {
            m_start += characters;
            return;
        }
        characters -= standing;
        m_start = clause.end;
    }
    m_start = std::min(m_start + characters, m_text.size());
}

} // namespace data
