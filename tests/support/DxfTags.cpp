// SPDX-License-Identifier: MIT
#include "tests/support/DxfTags.h"

#include <QList>

namespace VelorExchange::test {

CTags ParseTags(const QByteArray& drawing)
{
    CTags tags;
    QList<QByteArray> lines = drawing.split('\n');
    for (int i = 0; i + 1 < lines.size(); i += 2) {
        CTag tag;
        bool isNumber = false;
        tag.code = lines[i].trimmed().toInt(&isNumber);
        tag.code = isNumber ? tag.code : -1;
        tag.value = lines[i + 1];
        if (tag.value.endsWith('\r')) {
            tag.value.chop(1);
        }
        tags.push_back(tag);
    }
    return tags;
}

CTags SectionOf(const CTags& tags, const char* name)
{
    CTags section;
    bool isIn = false;
    for (std::size_t i = 0; i < tags.size(); ++i) {
        const CTag& tag = tags[i];
        if (isIn && tag.code == 0 && tag.value == "ENDSEC") {
            return section;
        }
        if (isIn) {
            section.push_back(tag);
        } else {
            isIn = tag.code == 2 && tag.value == name && i > 0 && tags[i - 1].value == "SECTION";
        }
    }
    return section;
}

CTags TableOf(const CTags& tags, const char* name)
{
    CTags table;
    bool isIn = false;
    for (std::size_t i = 0; i < tags.size(); ++i) {
        const CTag& tag = tags[i];
        if (isIn && tag.code == 0 && tag.value == "ENDTAB") {
            return table;
        }
        if (isIn) {
            table.push_back(tag);
        } else {
            isIn = tag.code == 2 && tag.value == name && i > 0 && tags[i - 1].value == "TABLE";
        }
    }
    return table;
}

std::vector<CTags> RecordsOf(const CTags& tags, const char* name)
{
    std::vector<CTags> records;
    bool isIn = false;
    for (const CTag& tag : tags) {
        if (tag.code == 0) {
            isIn = tag.value == name;
            if (isIn) {
                records.emplace_back();
            }
        }
        if (isIn) {
            records.back().push_back(tag);
        }
    }
    return records;
}

std::vector<std::string> ValuesOf(const CTags& tags, int code)
{
    std::vector<std::string> values;
    for (const CTag& tag : tags) {
        if (tag.code == code) {
            values.push_back(tag.value.toStdString());
        }
    }
    return values;
}

std::string AsText(const CTags& tags)
{
    std::string text;
    for (const CTag& tag : tags) {
        text += std::to_string(tag.code) + ' ' + tag.value.toStdString() + '\n';
    }
    return text;
}

} // namespace VelorExchange::test
