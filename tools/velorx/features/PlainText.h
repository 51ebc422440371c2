// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QtGlobal>

namespace velorx {

/// How the letters of a text look, as far as codes inside of it tell.
struct SLetters
{
    QString font; ///< A typeface; empty where none is told.
    bool isBold = false;
    bool isItalic = false;
    bool isUnderlined = false;
    double height = 0.0; ///< File units; 0 where the codes tell none.
    double heightFactor = 1.0; ///< On the height, the text's own or `height`.
    double widthFactor = 0.0; ///< 0 where the codes tell none.
    double slant = 0.0; ///< Radians.
    int colour = -1; ///< Index of the colour table, 256 for that of the layer; -1 for none.
    qint64 trueColour = -1; ///< 0x00BBGGRR; -1 for none.

    bool operator==(const SLetters& other) const;
};

/// A text without the codes of drawings.
struct SPlainText
{
    QString text; ///< Lines are separated by "\n"; it does not end with one.
    SLetters letters; ///< Of the first letter that is no blank.
    bool isSimplified = false; ///< Further letters look otherwise, or have what `SLetters` has not.
};

/// Decodes the text of a TEXT or an ATTRIB: `%%` codes, `\U+XXXX`, `\M+nXXXX`, carets.
SPlainText PlainOfText(const QString& coded);

/// Decodes the text of an MTEXT, which has the codes of formatting as well. What looks like a code and is
/// none stays as it is.
SPlainText PlainOfMText(const QString& coded);

} // namespace velorx
