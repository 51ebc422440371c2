// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/write/NameTable_p.h"

#include "VelorExchange/dxf/write/TagOutput_p.h"

namespace VelorExchange::dxf {

const CName* CNameTable::Find(const QString& given)
{
    if (last != nullptr && given == lastGiven) {
        return last;
    }
    const auto spelling = spellings.find(given);
    if (spelling != spellings.end()) {
        lastGiven = given;
        last = &spelling->second;
        return last;
    }
    const QString filed = rule(given);
    const auto known = handles.find(filed);
    return known == handles.end() ? nullptr : &Remember(given, filed, known->second);
}

const CName& CNameTable::Add(const QString& given, int handle)
{
    const QString filed = rule(given);
    handles[filed] = handle;
    return Remember(given, filed, handle);
}

void CNameTable::Clear()
{
    last = nullptr;
    lastGiven.clear();
    spellings.clear();
    handles.clear();
}

const CName& CNameTable::Remember(const QString& given, const QString& filed, int handle)
{
    CName name;
    AppendValue(name.text, filed.constData(), filed.size());
    name.handle = handle;
    lastGiven = given;
    last = &(spellings[given] = name);
    return *last;
}

} // namespace VelorExchange::dxf
