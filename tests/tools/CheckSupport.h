// SPDX-License-Identifier: MIT
#pragma once

#include "tests/tools/RunVelorx.h"
#include "tools/velorx/check/IChecker.h"

#include <QTextCodec>

#include <string>
#include <vector>

namespace velorx::test {

/// Makes a code page that of the process as long as it lives.
class CCodePage
{
public:
    explicit CCodePage(const char* name) : former(QTextCodec::codecForLocale())
    {
        QTextCodec::setCodecForLocale(QTextCodec::codecForName(name));
    }
    CCodePage(const CCodePage&) = delete;
    CCodePage& operator=(const CCodePage&) = delete;
    ~CCodePage() { QTextCodec::setCodecForLocale(former); }

private:
    QTextCodec* former;
};

/// Findings as text, in their order: "bad-code line 3: x", "bad-length byte 452: length 1 (2 times)".
std::vector<std::string> Texts(const CFindings& findings);

/// What the checker of a family finds in a file of `content`.
std::vector<std::string> FindingsIn(const char* family, bool isText, const std::string& content);

} // namespace velorx::test
