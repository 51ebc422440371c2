// SPDX-License-Identifier: MIT
#pragma once

#include "tools/velorx/features/PlainText.h"

#include <QChar>
#include <QString>

namespace velorx {

/// Reads a coded text from left to right; what is no code stands for itself. This class knows the codes
/// of all texts of drawings. A decoder decodes once.
class CTextDecoder
{
public:
    /// `coded` outlives this object.
    explicit CTextDecoder(const QString& coded) : in(coded) { }
    CTextDecoder(const CTextDecoder&) = delete;
    CTextDecoder(CTextDecoder&&) = delete;
    CTextDecoder& operator=(const CTextDecoder&) = delete;
    CTextDecoder& operator=(CTextDecoder&&) = delete;
    virtual ~CTextDecoder() = default;

    SPlainText Decode();

protected:
    /// Takes a further code at `at` and moves behind it; false if there is none.
    virtual bool TakeFormat() { return false; }

    /// What stands at `index`, the null character behind the end.
    QChar At(int index) const { return index < in.size() ? in.at(index) : QChar(); }

    static bool IsDigit(QChar c) { return c >= u'0' && c <= u'9'; }

    /// Appends to the result.
    void Put(QChar c);
    void Put(const QString& letters);

    const QString& in;
    int at = 0; ///< Of what comes next.
    SPlainText out;
    SLetters now; ///< How letters look from here on.

private:
    bool TakePercent();
    bool TakeByNumber();
    bool TakeUnicode();
    bool TakeDoubleByte();
    bool TakeCaret();

    bool hasLetter = false;
};

} // namespace velorx
