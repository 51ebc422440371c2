// SPDX-License-Identifier: MIT
#pragma once

#include <QTextCodec>

/// Sets the process's local codec for its life and puts the former one back.
class CLocalCodec
{
public:
    explicit CLocalCodec(const char* name)
        : before(QTextCodec::codecForLocale()), codec(QTextCodec::codecForName(name))
    {
        QTextCodec::setCodecForLocale(codec);
    }
    CLocalCodec(const CLocalCodec&) = delete;
    CLocalCodec& operator=(const CLocalCodec&) = delete;
    ~CLocalCodec() { QTextCodec::setCodecForLocale(before); }

    QTextCodec* Codec() const { return codec; }

private:
    QTextCodec* before;
    QTextCodec* codec;
};
