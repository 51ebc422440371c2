// SPDX-License-Identifier: MIT
#include "tools/velorx/check/DxfChecker.h"

#include "tools/velorx/check/DxfKindsOfFinding.h"
#include "tools/velorx/check/DxfValues.h"

#include <QFile>

#include <charconv>

namespace velorx {

using namespace dxffindings;

namespace {

constexpr char kBinaryStart[] = "AutoCAD Binary DXF";
constexpr qint64 kLongestLine = 999;
constexpr int kComment = 999;
constexpr char kByteOrderMark[] = "\xEF\xBB\xBF";

} // namespace

class CDxfChecker::CRun
{
public:
    CRun(QIODevice& device, CFindings& results)
        : findings(results), lines(device, ELineEnd::Any), structure(results), texts(results),
          counts(results)
    {
    }

    void Run(VelorExchange::dxf::IDXFProgress* progress)
    {
        while (!structure.IsEnded() && NextPair()) {
            CheckStart();
            structure.Take(pair);
            if (pair.code != kComment) {
                CheckDxfValue(pair, findings);
                references.Take(pair, structure);
                blockLoops.Take(pair, structure);
                counts.Take(pair, structure);
            }
            texts.Take(pair);
            if (progress != nullptr) {
                progress->SetPosition(lines.Byte());
            }
        }
        counts.Finish();
        structure.Finish(Here());
        references.Finish(findings);
        blockLoops.Finish(findings);
        if (!isStarted) {
            findings.Add(kNoStart, Here());
        }
        CheckBehindEnd();
    }

private:
    SPlace Here() const { return {lines.Line(), lines.Byte()}; }

    bool NextLine()
    {
        if (!lines.Next()) {
            return false;
        }
        if (lines.Length() > kLongestLine) {
            findings.Add(kLongLine, Here(), QStringLiteral("%1 bytes").arg(lines.Length()));
        }
        return true;
    }

    bool NextPair()
    {
        if (!NextLine()) {
            return false;
        }
        pair.codePlace = Here();
        TakeCode(WithoutBlanks(lines.Text()));
        const bool isBlank = WithoutBlanks(lines.Text()).empty();
        if (!NextLine()) {
            if (!isBlank) {
                findings.Add(kOddEnd, pair.codePlace);
            }
            return false;
        }
        pair.valuePlace = Here();
        pair.value = WithoutBlanks(lines.Text());
        if (pair.code < 0) {
            findings.Add(kBadCode, pair.codePlace, badCode);
        }
        return true;
    }

    // What follows is the value's line, so the text of a bad code is kept here.
    void TakeCode(std::string_view text)
    {
        if (lines.Line() == 1 && text.substr(0, 3) == kByteOrderMark) {
            hasByteOrderMark = true;
            text.remove_prefix(3);
        }
        const char* end = text.data() + text.size();
        const bool hasPlus = !text.empty() && text.front() == '+';
        const char* begin = text.data() + (hasPlus ? 1 : 0);
        const std::from_chars_result result = std::from_chars(begin, end, pair.code);
        if (result.ec != std::errc() || result.ptr != end || pair.code < 0) {
            pair.code = -1;
            badCode = Shown(text);
            return;
        }
        const bool hasZero = text.size() > 1 && text.front() == '0';
        if (hasPlus || hasZero) {
            findings.Add(kOddCode, Here(), Shown(text));
        }
    }

    void CheckStart()
    {
        if (!isStarted && pair.code != kComment) {
            isStarted = true;
            if (hasByteOrderMark) {
                findings.Add(kNoStart, {1, 0}, QStringLiteral("a byte order mark"));
            } else if (pair.code != 0 || pair.value != "SECTION") {
                findings.Add(kNoStart, pair.codePlace, Shown(pair.value));
            }
        }
    }

    void CheckBehindEnd()
    {
        while (lines.Next()) {
            if (!WithoutBlanks(lines.Text()).empty()) {
                findings.Add(kBehindEnd, Here());
            }
        }
    }

    CFindings& findings;
    CTextLines lines;
    CDxfStructure structure;
    CDxfTexts texts;
    CDxfReferences references;
    CDxfBlockLoops blockLoops;
    CDxfCounts counts;
    SDxfPair pair;
    QString badCode;
    bool hasByteOrderMark = false;
    bool isStarted = false;
};

QString CDxfChecker::Check(const QString& path, CFindings& findings,
                           VelorExchange::dxf::IDXFProgress* progress)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return file.errorString();
    }
    if (file.peek(sizeof kBinaryStart - 1) == kBinaryStart) {
        findings.Add(kBinary, {0, 0});
        return {};
    }
    if (progress != nullptr) {
        progress->Begin(QString(), file.size());
    }
    CRun(file, findings).Run(progress);
    if (progress != nullptr) {
        progress->Finish();
    }
    return {};
}

} // namespace velorx
