// SPDX-License-Identifier: MIT
// The key of a reimbursement record and the conditions that statements build from it.
#include "data/recordkey.h"

#include "data/quoting.h"

#include <algorithm>

namespace data {

namespace {

constexpr RecordKeySpelling ClauseSpelling{u"OrgCode=", u" and CoopMedCode=", u" and IDNo=", u" and DiagNo="};
constexpr RecordKeySpelling DocumentSpelling{u"OrgCode=", u" and CoopMedCode=", u"   and IDNo=", u" and DiagNo="};

void appendCondition(QString &text, const RecordKey &key, const RecordKeySpelling &spelling)
{
    text.append(spelling.orgCode).append(quotedStr(key.orgCode));
    text.append(spelling.coopMedCode).append(quotedStr(key.coopMedCode));
    text.append(spelling.idNo).append(key.idNo);
    text.append(spelling.diagNo).append(key.diagNo);
}

} // namespace

QString recordCondition(const RecordKey &key, const RecordKeySpelling &spelling)
{
    QString text;
    appendCondition(text, key, spelling);
    return text;
}

QString recordCondition(const RecordKey &key)
{
    return recordCondition(key, DocumentSpelling);
}

QString recordClause(const RecordKey &key)
{
    return u'(' + recordCondition(key, ClauseSpelling) + u')';
}

QString anyOfRecords(const std::vector<RecordKey> &keys)
{
    constexpr QStringView Joiner = u" or (";
    constexpr qsizetype LeadingOr = 3; // the first three characters, so that the blank after "or" stays
    QString text;
    for (const RecordKey &key : keys) {
        text.append(Joiner);
        appendCondition(text, key, ClauseSpelling);
        text.append(u')');
    }
    return text.sliced(std::min(LeadingOr, text.size()));
}

QString withoutRecord(const QString &condition, const RecordKey &key)
{
    constexpr qsizetype JoinerBefore = 3; // "or " stands before every clause but the first
    const QString clause = recordClause(key);
    const qsizetype found = condition.indexOf(clause);
    const qsizetype kept = std::max<qsizetype>(found - JoinerBefore, 0);
    return condition.first(kept) + condition.mid(found + clause.size());
}

} // namespace data
