// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>

#include <cstddef>
#include <map>
#include <unordered_map>

namespace VelorExchange::dxf {

/// A registered name.
struct CName
{
    QByteArray text; ///< The safe name in Windows-1251.
    int handle = -1; ///< Handle of its record.
};

/// The names of one table with the handles of their records. Each spelling that a host uses is made
/// safe once.
class CNameTable
{
public:
    /// Turns a name as given into the one under which it is filed.
    using Rule = QString (*)(const QString& name);

    explicit CNameTable(Rule nameRule) : rule(nameRule) { }

    /// The name as given, or null if it is not registered. Stays valid until `Clear`.
    const CName* Find(const QString& given);

    /// Registers a name that is not.
    const CName& Add(const QString& given, int handle);

    bool IsEmpty() const { return handles.empty(); }
    void Clear();

private:
    struct CHasher
    {
        std::size_t operator()(const QString& name) const { return qHash(name); }
    };

    const CName& Remember(const QString& given, const QString& filed, int handle);

    Rule rule;
    std::map<QString, int> handles; // by the name as filed
    std::unordered_map<QString, CName, CHasher> spellings; // by the name as given
    QString lastGiven;
    const CName* last = nullptr;
};

} // namespace VelorExchange::dxf
