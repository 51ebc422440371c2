// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonArray>
#include <QtGlobal>

#include <cstddef>
#include <map>
#include <utility>
#include <vector>

namespace velorx {

/// How many entries of a list are kept for the report.
constexpr std::size_t kKeptEntries = 10000;

/// A list of a file that keeps its first entries and counts all of them, so that a file with
/// millions of blocks needs no more memory than one with a few thousand.
template <class T>
struct CListed
{
    std::vector<T> first; ///< The first entries, `kKeptEntries` at most.
    qint64 total = 0; ///< All entries.

    void Add(T entry)
    {
        ++total;
        if (first.size() < kKeptEntries) {
            first.push_back(std::move(entry));
        }
    }
};

/// How often each key occurs, for the first keys that are met; what comes with other keys is counted
/// in one number.
template <class Key>
struct CTally
{
    std::map<Key, qint64> counts; ///< For `kKeptEntries` keys at most.
    qint64 others = 0; ///< Occurrences of keys beyond those.

    void Add(const Key& key)
    {
        const auto found = counts.find(key);
        if (found != counts.end()) {
            ++found->second;
        } else if (counts.size() < kKeptEntries) {
            counts.emplace(key, 1);
        } else {
            ++others;
        }
    }
};

/// The entries that a list keeps, each turned by `convert` into JSON.
template <class T, class Convert>
QJsonArray ToArray(const CListed<T>& list, Convert convert)
{
    QJsonArray array;
    for (const T& entry : list.first) {
        array.append(convert(entry));
    }
    return array;
}

} // namespace velorx
