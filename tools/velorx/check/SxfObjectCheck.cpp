// SPDX-License-Identifier: MIT
#include "tools/velorx/check/SxfObjectCheck.h"

#include "tools/velorx/check/Bytes.h"
#include "tools/velorx/check/Encoding.h"
#include "tools/velorx/check/SxfKindsOfFinding.h"

#include <QByteArray>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace velorx {

using namespace sxffindings;

namespace {

constexpr const char* kKinds[] = {"LIN", "SQR", "DOT", "VEC", "TIT", "MIX"};

bool IsNumber(std::string_view token)
{
    bool isNumber = false;
    const double number = Bytes(token).toDouble(&isNumber);
    return isNumber && std::isfinite(number);
}

bool Contains(std::string_view text, const char* word)
{
    return Bytes(text).toUpper().contains(word);
}

} // namespace

CSxfObjectCheck::CSxfObjectCheck(QIODevice& source, CFindings& results)
    : findings(results), lines(source, ELineEnd::Feed), codec(QTextCodec::codecForLocale())
{
}

void CSxfObjectCheck::Add(const SFindingKind& kind) const
{
    findings.Add(kind, Place(), Shown(line));
}

bool CSxfObjectCheck::NextLine()
{
    if (isBack) {
        isBack = false;
        return true;
    }
    while (lines.Next()) {
        line = WithoutBlanks(lines.Text());
        if (!line.empty()) {
            CheckText();
            Cut();
            return true;
        }
    }
    line = {};
    tokens.clear();
    return false;
}

void CSxfObjectCheck::Cut()
{
    tokens.clear();
    std::size_t start = 0;
    for (std::size_t i = 0; i <= line.size(); ++i) {
        if (i < line.size() && line[i] != ' ') {
            continue;
        }
        if (i > start) {
            tokens.push_back(line.substr(start, i - start));
        }
        start = i + 1;
    }
}

void CSxfObjectCheck::CheckText() const
{
    if (!IsAscii(line) && !Decodes(line, *codec)) {
        Add(kBadText);
    }
}

bool CSxfObjectCheck::Is(const char* word) const
{
    return !tokens.empty() && qstricmp(Bytes(tokens[0]).constData(), word) == 0;
}

bool CSxfObjectCheck::IsMark() const
{
    return line.front() == '.' && !IsNumber(tokens[0]);
}

int CSxfObjectCheck::LastNumber(bool& isNumber) const
{
    const int number = Bytes(tokens.back()).toInt(&isNumber);
    isNumber = isNumber && tokens.size() > 1;
    return number;
}

bool CSxfObjectCheck::TakePassport()
{
    bool isFirst = true;
    while (NextLine()) {
        if (isFirst && !Is(".SXF") && !Is(".SIT")) {
            Add(kNoStart);
        }
        isFirst = false;
        if (!Contains(line, ".DAT")) {
            continue;
        }
        bool isNumber = false;
        told = LastNumber(isNumber);
        toldPlace = Place();
        if (!isNumber || told < 0) {
            Add(kBadObjectCount);
            told = -1;
        }
        return true;
    }
    findings.Add(kBadObjectCount, Place());
    return false;
}

bool CSxfObjectCheck::Next()
{
    if (!NextLine()) {
        return false;
    }
    if (isEnded) {
        Add(kBehindEnd);
    } else if (Is(".OBJ")) {
        EndObject();
        StartObject();
    } else if (Is(".END")) {
        EndObject();
        isEnded = true;
    } else {
        CheckMarks();
        if (isInObject) {
            TakeLine();
        }
    }
    return true;
}

// Marks count wherever they stand in a line.
void CSxfObjectCheck::CheckMarks() const
{
    if (Contains(line, ".OBJ") || Contains(line, ".END")) {
        Add(kOtherWord);
    }
}

void CSxfObjectCheck::StartObject()
{
    constexpr int kNoCode = -1;
    ++objects;
    isInObject = true;
    objectPlace = Place();
    objectLine = Shown(line);
    subContours = contours = 0;
    isInDrawing = false;
    bool hasCode = false;
    const int code = tokens.size() > 1 ? Bytes(tokens[1]).toInt(&hasCode) : kNoCode;
    hasOwnDrawing = hasCode && code == 0;
    const std::string_view kind = tokens.back();
    const bool isKnown = std::find(std::begin(kKinds), std::end(kKinds), kind) != std::end(kKinds);
    if (!hasCode || code == kNoCode || !isKnown) {
        Add(kBadObject);
    }
}

void CSxfObjectCheck::EndObject()
{
    if (isInObject && contours != subContours + 1) {
        findings.Add(kBadContours, objectPlace,
                     objectLine
                         + QStringLiteral(": tells %1, has %2").arg(subContours + 1).arg(contours));
    }
    isInObject = false;
}

void CSxfObjectCheck::TakeLine()
{
    bool isNumber = false;
    if (Is(".MET")) {
        subContours = LastNumber(isNumber);
        if (!isNumber || subContours < 0) {
            Add(kBadCount);
            subContours = 0;
        }
    } else if (Is(".SEM")) {
        TakeAttributes();
    } else if (IsMark()) {
        isInDrawing = false;
    } else if (line.front() == '_') {
        isInDrawing = hasOwnDrawing && (Is("_LINE") || Is("_SQUARE"));
    } else if (isInDrawing) {
        TakeDrawingLine();
    } else if (contours <= subContours && line.front() != '>') {
        const int count = Bytes(tokens[0]).toInt(&isNumber);
        if (isNumber && tokens.size() == 1) {
            TakeContour(count);
        }
    }
}

void CSxfObjectCheck::TakeDrawingLine()
{
    constexpr std::size_t kWordAndValue = 2;
    if (tokens.size() != kWordAndValue) {
        Add(kBadDrawingLine);
    }
}

void CSxfObjectCheck::TakeContour(int count)
{
    ++contours;
    const SPlace place = Place();
    if (count <= 0) {
        Add(kBadCount);
    }
    std::size_t dimensions = 0;
    for (int i = 0; i < count; ++i) {
        if (!NextLine() || IsMark() || line.front() == '>') {
            findings.Add(kBadCount, place, QStringLiteral("tells %1, has %2").arg(count).arg(i));
            if (!line.empty()) {
                Back();
            }
            return;
        }
        dimensions = i == 0 ? tokens.size() : dimensions;
        const bool isVertex = (dimensions == 2 || dimensions == 3) && tokens.size() == dimensions
            && std::all_of(tokens.begin(), tokens.end(), IsNumber);
        if (!isVertex) {
            Add(kBadVertex);
        }
    }
}

void CSxfObjectCheck::TakeAttributes()
{
    bool isNumber = false;
    const int count = LastNumber(isNumber);
    const SPlace place = Place();
    if (!isNumber || count < 0) {
        Add(kBadCount);
        return;
    }
    for (int i = 0; i < count; ++i) {
        if (!NextLine() || IsMark()) {
            findings.Add(kBadCount, place, QStringLiteral("tells %1, has %2").arg(count).arg(i));
            if (!line.empty()) {
                Back();
            }
            return;
        }
        CheckMarks();
        bool hasCode = false;
        Bytes(tokens[0]).toInt(&hasCode);
        const bool hasValue = lines.Text().find(' ') != std::string_view::npos; // may be empty
        if (!hasCode || !hasValue) {
            Add(kBadAttributeLine);
        }
    }
}

void CSxfObjectCheck::Finish()
{
    EndObject();
    if (!isEnded) {
        findings.Add(kNoEnd, Place());
    }
    if (told >= 0 && told != objects) {
        findings.Add(kBadObjectCount, toldPlace,
                     QStringLiteral("tells %1, has %2").arg(told).arg(objects));
    }
}

} // namespace velorx
