// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/check/Findings.h"
#include "tools/velorx/check/TextLines.h"

#include <QTextCodec>

#include <string>
#include <string_view>
#include <vector>

namespace velorx {

/// Goes over the lines of a ".mif" that are not blank, looks whether they can be decoded, and cuts them.
class CMifScan
{
public:
    /// Both outlive this object.
    CMifScan(QIODevice& source, CFindings& results);

    /// Goes to the next line that is not blank; false at the end of the file.
    bool Next();

    /// Makes the next call of `Next` stay where it is.
    void Back() { isBack = true; }

    /// The line without blanks around it; good until the next call of `Next`.
    std::string_view Line() const { return line; }

    /// The letters at the start of the line, in lower case.
    std::string Word() const;

    /// The line, cut at blanks and tabs.
    std::vector<std::string_view> Tokens() const;

    SPlace Place() const { return {lines.Line(), lines.Byte()}; }

    /// The header tells this codec; empty for none.
    void SetCharset(const QByteArray& name);

private:
    void CheckText();

    CFindings& findings;
    CTextLines lines;
    std::string_view line;
    const QTextCodec* codec; ///< Qt's.
    QByteArray charset; ///< That the header tells, if it is not the codec's.
    bool isBack = false;
};

/// Whether `token` reads as a finite number.
bool IsMifNumber(std::string_view token);

/// Whether `token` reads as a whole number of 32 bits, and which.
bool IsMifInteger(std::string_view token, int& number);

} // namespace velorx
