// SPDX-License-Identifier: MIT
#include "tools/velorx/check/DxfTexts.h"

#include "tools/velorx/check/Bytes.h"
#include "tools/velorx/check/DxfKindsOfFinding.h"
#include "tools/velorx/check/Encoding.h"

namespace velorx {

namespace {

constexpr int kVariableCode = 9;
constexpr int kFirstUtf8Version = 1019;
constexpr int kIbm866Version = 1006;

// "ANSI_1251" and "dos866" under the names that Qt knows.
QByteArray CodecName(const QByteArray& codePage)
{
    const QByteArray name = codePage.toUpper();
    if (name.startsWith("ANSI_")) {
        return "windows-" + name.mid(5);
    }
    return name.startsWith("DOS") ? "IBM" + name.mid(3) : name;
}

} // namespace

CDxfTexts::CDxfTexts(CFindings& results)
    : findings(results), codec(QTextCodec::codecForLocale()) { }

void CDxfTexts::Take(const SDxfPair& pair)
{
    if (pair.code == kVariableCode) {
        variable = Bytes(pair.value).toUpper();
        return;
    }
    TakeHeader(pair);
    if (IsAscii(pair.value)) {
        return;
    }
    if (!codePage.isEmpty() && isLocal) {
        findings.Add(dxffindings::kOtherCodePage, pair.valuePlace, QString::fromLatin1(codePage));
    }
    if (!Decodes(pair.value, *codec)) {
        findings.Add(dxffindings::kBadText, pair.valuePlace, Shown(pair.value));
    }
}

void CDxfTexts::TakeHeader(const SDxfPair& pair)
{
    if (variable == "$ACADVER") {
        TakeVersion(pair.value);
    } else if (variable == "$DWGCODEPAGE") {
        TakeCodePage(pair.value);
    }
    variable.clear();
}

void CDxfTexts::TakeVersion(std::string_view value)
{
    constexpr int kDigits = 4;
    const int version = Bytes(value).right(kDigits).toInt();
    if (version >= kFirstUtf8Version) {
        codec = QTextCodec::codecForName("UTF-8");
        isLocal = false;
    } else if (version == kIbm866Version) {
        codec = QTextCodec::codecForName("IBM866");
        isLocal = false;
    }
}

void CDxfTexts::TakeCodePage(std::string_view value)
{
    const QByteArray told = Bytes(value);
    const QTextCodec* wanted = QTextCodec::codecForName(CodecName(told));
    const bool isSame = wanted != nullptr && wanted->mibEnum() == codec->mibEnum();
    codePage = isSame ? QByteArray() : told;
}

} // namespace velorx
