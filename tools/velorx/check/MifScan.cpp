// SPDX-License-Identifier: MIT
#include "tools/velorx/check/MifScan.h"

#include "tools/velorx/check/Bytes.h"
#include "tools/velorx/check/Encoding.h"
#include "tools/velorx/check/MifKindsOfFinding.h"

#include <QByteArray>

#include <cmath>

namespace velorx {

namespace {

bool IsLetter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

} // namespace

CMifScan::CMifScan(QIODevice& source, CFindings& results)
    : findings(results), lines(source, ELineEnd::Feed), codec(QTextCodec::codecForLocale())
{
}

bool CMifScan::Next()
{
    if (isBack) {
        isBack = false;
        return true;
    }
    while (lines.Next()) {
        line = WithoutBlanks(lines.Text());
        if (!line.empty()) {
            CheckText();
            return true;
        }
    }
    return false;
}

void CMifScan::CheckText()
{
    if (IsAscii(line)) {
        return;
    }
    if (!charset.isEmpty()) {
        findings.Add(miffindings::kOtherCodePage, Place(), QString::fromLatin1(charset));
    }
    if (!Decodes(line, *codec)) {
        findings.Add(miffindings::kBadText, Place(), Shown(line));
    }
}

void CMifScan::SetCharset(const QByteArray& name)
{
    const QTextCodec* told = QTextCodec::codecForName(name);
    const bool isOther = told != nullptr && told->mibEnum() != codec->mibEnum();
    charset = isOther ? name : QByteArray();
}

std::string CMifScan::Word() const
{
    std::string word;
    for (const char c : line) {
        if (!IsLetter(c)) {
            break;
        }
        word += static_cast<char>(c | 0x20); // lower case
    }
    return word;
}

std::vector<std::string_view> CMifScan::Tokens() const
{
    std::vector<std::string_view> tokens;
    std::size_t start = 0;
    for (std::size_t i = 0; i <= line.size(); ++i) {
        if (i < line.size() && line[i] != ' ' && line[i] != '\t') {
            continue;
        }
        if (i > start) {
            tokens.push_back(line.substr(start, i - start));
        }
        start = i + 1;
    }
    return tokens;
}

bool IsMifNumber(std::string_view token)
{
    bool isNumber = false;
    const double number = Bytes(token).toDouble(&isNumber);
    return isNumber && std::isfinite(number);
}

bool IsMifInteger(std::string_view token, int& number)
{
    bool isNumber = false;
    number = Bytes(token).toInt(&isNumber);
    return isNumber;
}

} // namespace velorx
