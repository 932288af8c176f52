// SPDX-License-Identifier: MIT
// The condition over ticked records, from which records can be cut out again.
#pragma once

#include "data/recordkey.h"

#include <QHash>
#include <QString>

#include <vector>

namespace data {

/// Holds what anyOfRecords() made of the keys, less what was cut. Cutting gives the text that withoutRecord() gives,
/// to the letter, but thousands of cuts take the time of one reading of the text.
class RecordChoice {
public:
    RecordChoice() = default;
    explicit RecordChoice(const std::vector<RecordKey> &keys);

    void cut(const RecordKey &key);
    [[nodiscard]] QString text() const;

private:
    struct Clause {
        qsizetype begin; ///< of its "(" in m_text
        qsizetype end; ///< behind its ")"
        bool isCut = false;
        int nextAlike = -1; ///< the next clause of the same text
    };

    [[nodiscard]] static qsizetype goneFrom(const Clause &clause);
    /// The first clause of that text that still stands; -1 when there is none.
    [[nodiscard]] int firstStanding(const QString &clause);
    void dropFromStart(qsizetype characters);

    QString m_text; // as it was made
    std::vector<Clause> m_clauses; // in the order of the text
    QHash<QString, int> m_firstAlike; // of each text the first clause that may still stand
    qsizetype m_start = 0; // what stands before is gone
    std::size_t m_passed = 0; // clauses that lie wholly before m_start
    bool m_isPlain = true; // else m_text is the text as it stands, and nothing but it is kept
};

} // namespace data
