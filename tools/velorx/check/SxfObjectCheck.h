// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/check/Findings.h"
#include "tools/velorx/check/TextLines.h"

#include <QTextCodec>

#include <string>
#include <string_view>
#include <vector>

namespace velorx {

/// Goes over a map in text form, line by line, and object by object behind its head.
class CSxfObjectCheck
{
public:
    /// Both outlive this object.
    CSxfObjectCheck(QIODevice& source, CFindings& results);

    /// Goes through the passport up to the count of objects; false if there is none.
    bool TakePassport();

    /// Takes one line and what belongs to it; false at the end of the file.
    bool Next();

    /// Compares what was told with what was there.
    void Finish();

    SPlace Place() const { return {lines.Line(), lines.Byte()}; }

private:
    bool NextLine();
    void Back() { isBack = true; }
    void CheckText() const;
    void CheckMarks() const;
    void Cut();
    void StartObject();
    void EndObject();
    void TakeLine();
    void TakeContour(int count);
    void TakeAttributes();
    void TakeDrawingLine();
    bool IsMark() const;
    bool Is(const char* word) const;
    int LastNumber(bool& isNumber) const;
    void Add(const SFindingKind& kind) const;

    CFindings& findings;
    CTextLines lines;
    const QTextCodec* codec; ///< Qt's.
    std::string_view line;
    std::vector<std::string_view> tokens;
    bool isBack = false;
    qint64 told = 0;
    SPlace toldPlace;
    qint64 objects = 0;
    bool isEnded = false;
    bool isInObject = false;
    SPlace objectPlace;
    QString objectLine;
    bool hasOwnDrawing = false; ///< Of the object at hand: it has no classifier code.
    int subContours = 0;
    int contours = 0;
    bool isInDrawing = false; ///< Of a line or an area, whose lines are taken apart.
};

} // namespace velorx
