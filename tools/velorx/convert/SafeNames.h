// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QSet>
#include <QString>

namespace velorx {

/// Gives names of a source the spelling that they have in a drawing: without the characters that
/// drawing programs refuse, one spelling for names that differ in case alone, and no two names under one.
///
/// Memory grows with the number of distinct names.
class CSafeNames
{
public:
    /// Takes `target` out of use: no name of the source gets it.
    void Reserve(const QString& target);

    /// `source`, in any case, is spelled `target`, which is safe.
    void Define(const QString& source, const QString& target);

    /// Forgets the definition of `source`, in any case, but keeps its spelling out of use, so that the name
    /// gets another one.
    void Withdraw(const QString& source);

    /// The spelling of `source`. What is empty when made safe becomes "_".
    QString Of(const QString& source);

    /// How many names are spelled otherwise, blanks and case aside. Empty ones do not count.
    qint64 Changed() const { return changed.size(); }

private:
    QString Unused(const QString& safe);

    QHash<QString, QString> exact; ///< By the name as given.
    QHash<QString, QString> folded; ///< By the name without regard to case.
    QSet<QString> used; ///< Spellings in use, without regard to case.
    QHash<QString, int> numbers; ///< The last one behind a spelling, without regard to case.
    QSet<QString> changed; ///< Of `folded`, those whose spelling is another.
};

} // namespace velorx
