// SPDX-License-Identifier: MIT
#include "tests/support/DxfChecker.h"

#include "tests/support/DxfTags.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <map>
#include <set>

namespace VelorExchange::test {

namespace {

constexpr const char* kSections[] = {"HEADER", "CLASSES",  "TABLES",
                                     "BLOCKS", "ENTITIES", "OBJECTS"};

struct CRange
{
    int first;
    int last;
};

constexpr CRange kReals[] = {{10, 59}, {140, 149}, {210, 239}, {1010, 1059}};
constexpr CRange kIntegers[] = {{60, 79},   {90, 99},   {170, 179}, {270, 289},
                                {290, 299}, {370, 389}, {420, 429}, {1060, 1071}};
constexpr CRange kPointers[] = {{320, 369}, {390, 399}};

template <std::size_t Count>
bool IsIn(const CRange (&ranges)[Count], int code)
{
    return std::any_of(std::begin(ranges), std::end(ranges), [code](const CRange& range) {
        return code >= range.first && code <= range.last;
    });
}

bool HasForbiddenCharacter(const QByteArray& name)
{
    return std::any_of(name.begin(), name.end(), [](char c) {
        return std::strchr("`<>/\\:;?*|,='\"", c) != nullptr || (c > 0 && c < ' ');
    });
}

std::string Head(const CTags& record)
{
    std::string head = record[0].value.toStdString();
    for (const CTag& tag : record) {
        if (tag.code == 5 || tag.code == 105) {
            return head + " " + tag.value.toStdString();
        }
    }
    return head;
}

class CChecker
{
public:
    explicit CChecker(const QByteArray& drawing) : bytes(drawing), tags(ParseTags(drawing)) { }

    std::vector<std::string> Run()
    {
        CheckLineEnds();
        CheckNumbers();
        CheckSections();
        CollectRecords();
        CollectNames();
        CheckHandles();
        CheckPointers();
        for (const CTags& record : records) {
            CheckHead(record);
            CheckNames(record);
            CheckCounts(record);
            CheckPairs(record);
        }
        CheckBlocks();
        return problems;
    }

private:
    void Report(const std::string& problem) { problems.push_back(problem); }

    // Bare line feeds stand only in the bodies of multiline styles, which the host brings.
    void CheckLineEnds()
    {
        if (!bytes.endsWith("0\r\nEOF\r\n")) {
            Report("no EOF at the end");
        }
        const bool hasStyleBodies = bytes.contains("\r\nMLINESTYLE\r\n5\r\n");
        for (int i = 0; i < bytes.size() && !hasStyleBodies; ++i) {
            if ((bytes[i] == '\n') != (i > 0 && bytes[i - 1] == '\r')) {
                Report("a line that doesn't end in CR LF at byte " + std::to_string(i));
                return;
            }
        }
    }

    void CheckNumbers()
    {
        for (const CTag& tag : tags) {
            const std::string where =
                " in group " + std::to_string(tag.code) + ": " + tag.value.toStdString();
            bool isNumber = true;
            if (tag.code < 0) {
                Report("a code that is no number, value" + tag.value.toStdString());
            } else if (IsIn(kReals, tag.code)) {
                const double value = tag.value.trimmed().toDouble(&isNumber);
                isNumber = isNumber && std::isfinite(value) && !tag.value.contains('e');
            } else if (IsIn(kIntegers, tag.code)) {
                tag.value.trimmed().toInt(&isNumber);
            }
            if (!isNumber) {
                Report("no number" + where);
            }
        }
    }

    void CheckSections()
    {
        std::vector<std::string> names;
        int open = 0;
        for (std::size_t i = 0; i < tags.size(); ++i) {
            if (tags[i].code != 0) {
                continue;
            }
            if (tags[i].value == "SECTION" && i + 1 < tags.size()) {
                ++open;
                names.push_back(tags[i + 1].value.toStdString());
            } else if (tags[i].value == "ENDSEC") {
                --open;
            }
            if (open < 0 || open > 1) {
                Report("sections out of balance");
                return;
            }
        }
        if (!std::equal(names.begin(), names.end(), std::begin(kSections), std::end(kSections))) {
            Report("sections are missing or out of order");
        }
    }

    void CollectRecords()
    {
        for (const CTag& tag : tags) {
            if (tag.code == 0) {
                records.emplace_back();
            }
            if (!records.empty()) {
                records.back().push_back(tag);
            }
        }
    }

    void CollectNames()
    {
        for (const CTags& record : records) {
            const std::vector<std::string> names = ValuesOf(record, 2);
            if (!names.empty()) {
                const QByteArray name = QByteArray::fromStdString(names[0]);
                const bool isLayer = record[0].value == "LAYER";
                known[record[0].value].insert(isLayer ? name : name.toLower());
            }
        }
    }

    void CheckHandles()
    {
        const CTags header = SectionOf(tags, "HEADER");
        const std::vector<std::string> seeds = ValuesOf(header, 5);
        const int seed =
            seeds.empty() ? 0 : QByteArray::fromStdString(seeds.back()).toInt(nullptr, 16);
        for (const CTags& record : records) {
            if (record[0].value == "SECTION") {
                continue;
            }
            for (const CTag& tag : record) {
                if (tag.code == 5 || tag.code == 105) {
                    const int handle = tag.value.toInt(nullptr, 16);
                    if (handle <= 0 || handle >= seed) {
                        Report("handle not below the seed: " + Head(record));
                    }
                    if (!handles.insert(handle).second) {
                        Report("handle used twice: " + Head(record));
                    }
                }
            }
        }
    }

    void CheckPointers()
    {
        constexpr int kImageVariables = 0x8E;
        for (const CTags& record : records) {
            for (const CTag& tag : record) {
                const int handle = tag.value.toInt(nullptr, 16);
                if (IsIn(kPointers, tag.code) && handle != 0 && handle != kImageVariables
                    && handles.count(handle) == 0)
                {
                    Report("pointer without a target: " + tag.value.toStdString() + " in "
                           + Head(record));
                }
            }
        }
    }

    // Records begin with their handle, behind it the subclass marker, the layer, the colour.
    void CheckHead(const CTags& record)
    {
        static const std::set<QByteArray> kFrame = {"SECTION", "ENDSEC", "ENDTAB", "EOF", "CLASS"};
        if (kFrame.count(record[0].value) != 0) {
            return;
        }
        const std::size_t handleAt = record[0].value == "TABLE" ? 2 : 1;
        if (record.size() <= handleAt
            || (record[handleAt].code != 5 && record[handleAt].code != 105)) {
            Report("no handle in its place: " + Head(record));
        }
        const auto isEntity = [](const CTag& tag) { return tag.value == "AcDbEntity"; };
        const auto marker = std::find_if(record.begin(), record.end(), isEntity);
        if (marker == record.end()) {
            return;
        }
        const auto layer =
            std::find_if(marker, record.end(), [](const CTag& tag) { return tag.code == 8; });
        const auto subclass =
            std::find_if(marker + 1, record.end(), [](const CTag& tag) { return tag.code == 100; });
        if (layer == record.end() || layer > subclass) {
            Report("no layer in its place: " + Head(record));
        }
    }

    void CheckNames(const CTags& record)
    {
        static const std::set<QByteArray> kNamed = {"LAYER",        "LTYPE", "STYLE",
                                                    "BLOCK_RECORD", "BLOCK", "INSERT"};
        for (const CTag& tag : record) {
            if (tag.code == 2 && kNamed.count(record[0].value) != 0
                && HasForbiddenCharacter(tag.value.startsWith('*') ? tag.value.mid(1) : tag.value))
            {
                Report("illegal name: " + tag.value.toStdString() + " in " + Head(record));
            }
            CheckUse(record, tag, 8, "LAYER");
            CheckUse(record, tag, 6, "LTYPE");
            CheckUse(record, tag, 7, "STYLE");
        }
        if (record[0].value == "INSERT" && !record.empty()) {
            for (const std::string& name : ValuesOf(record, 2)) {
                if (HasForbiddenCharacter(QByteArray::fromStdString(name))) {
                    Report("illegal block name: " + name);
                }
            }
        }
    }

    void CheckUse(const CTags& record, const CTag& tag, int code, const char* table)
    {
        const bool isUse = record[0].value != "LAYOUT" && record[0].value != "MLINESTYLE"
            && record[0].value != "SECTION";
        const bool isLayer = code == 8;
        if (tag.code == code && isUse
            && known[table].count(isLayer ? tag.value : tag.value.toLower()) == 0) {
            Report(std::string("name not in table ") + table + ": " + tag.value.toStdString()
                   + " in " + Head(record));
        }
    }

    void CheckCount(const CTags& record, const char* kind, int countCode, int itemCode, int extra)
    {
        if (record[0].value != kind) {
            return;
        }
        const std::vector<std::string> counts = ValuesOf(record, countCode);
        const auto items = static_cast<int>(ValuesOf(record, itemCode).size()) - extra;
        if (counts.empty() || std::stoi(counts[0]) != items) {
            Report("group " + std::to_string(countCode) + " miscounts: " + Head(record));
        }
    }

    void CheckCounts(const CTags& record)
    {
        CheckCount(record, "LWPOLYLINE", 90, 10, 0);
        CheckCount(record, "SPLINE", 72, 40, 0);
        CheckCount(record, "SPLINE", 73, 10, 0);
        CheckCount(record, "MLINE", 72, 11, 0);
        CheckCount(record, "LTYPE", 73, 49, 0);
        if (record[0].value == "HATCH") {
            // A hole that vanishes is still counted, so that there can be fewer loops.
            const auto loops = ValuesOf(record, 92).size();
            if (loops == 0 || static_cast<std::size_t>(std::stoi(ValuesOf(record, 91)[0])) < loops)
            {
                Report("more loops than counted: " + Head(record));
            }
        }
    }

    // Each X is followed by its Y.
    void CheckPairs(const CTags& record)
    {
        for (std::size_t i = 0; i < record.size(); ++i) {
            const int code = record[i].code;
            const bool isX = code >= 10 && code <= 18 && record[0].value != "SECTION";
            if (isX && (i + 1 == record.size() || record[i + 1].code != code + 10)) {
                Report("an X without its Y: " + Head(record));
            }
        }
    }

    void CheckBlocks()
    {
        int open = 0;
        for (const CTags& record : records) {
            if (record[0].value == "BLOCK") {
                ++open;
                const std::vector<std::string> names = ValuesOf(record, 2);
                if (names.empty()
                    || known["BLOCK_RECORD"].count(QByteArray::fromStdString(names[0]).toLower())
                        == 0)
                {
                    Report("block without its record: " + Head(record));
                }
            } else if (record[0].value == "ENDBLK") {
                --open;
            }
            if (open < 0 || open > 1) {
                Report("blocks out of balance at " + Head(record));
                return;
            }
        }
    }

    const QByteArray& bytes;
    CTags tags;
    std::vector<CTags> records;
    std::map<QByteArray, std::set<QByteArray>> known; // table entries; all but layers in lower case
    std::set<int> handles;
    std::vector<std::string> problems;
};

} // namespace

std::vector<std::string> ProblemsOf(const QByteArray& drawing)
{
    return CChecker(drawing).Run();
}

} // namespace VelorExchange::test
