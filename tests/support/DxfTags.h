// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <string>
#include <vector>

namespace VelorExchange::test {

/// A group of a written drawing.
struct CTag
{
    int code = 0;
    QByteArray value;
};

using CTags = std::vector<CTag>;

/// Cuts a drawing into groups, whatever its line ends. A code that is no number becomes -1.
CTags ParseTags(const QByteArray& drawing);

/// The groups between the name of a section and its ENDSEC.
CTags SectionOf(const CTags& tags, const char* name);

/// The groups of the table called `name`, its own name and ENDTAB left out.
CTags TableOf(const CTags& tags, const char* name);

/// The records of the kind called `name` (group 0), each from that group to the next record.
std::vector<CTags> RecordsOf(const CTags& tags, const char* name);

/// All values of the groups with that code.
std::vector<std::string> ValuesOf(const CTags& tags, int code);

/// One group a line: code, blank, value.
std::string AsText(const CTags& tags);

} // namespace VelorExchange::test
