// SPDX-License-Identifier: MIT
#pragma once

#include <QTextCodec>

namespace VelorExchange::test {

/// Makes a codec the one of the process while it lives.
class CLocaleCodec final
{
public:
    explicit CLocaleCodec(const char* name) : before(QTextCodec::codecForLocale())
    {
        QTextCodec::setCodecForLocale(QTextCodec::codecForName(name));
    }
    ~CLocaleCodec() { QTextCodec::setCodecForLocale(before); }
    CLocaleCodec(const CLocaleCodec&) = delete;
    CLocaleCodec& operator=(const CLocaleCodec&) = delete;

private:
    QTextCodec* before;
};

} // namespace VelorExchange::test
