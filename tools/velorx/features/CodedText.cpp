// SPDX-License-Identifier: MIT
#include "tools/velorx/features/CodedText.h"

#include "tools/velorx/formats/DrawingText.h"

namespace velorx {

namespace {

constexpr QChar kFirstLetter = u' ';

QChar At(const QString& text, int index)
{
    return index >= 0 && index < text.size() ? text.at(index) : QChar();
}

bool IsPercentCode(const QString& text, int at)
{
    return At(text, at) == u'%' && (At(text, at - 1) == u'%' || At(text, at + 1) == u'%');
}

bool IsLetterCode(const QString& text, int at)
{
    return text.midRef(at, 3) == QLatin1String("\\U+")
        || text.midRef(at, 3) == QLatin1String("\\M+");
}

// The writer drops blanks at the ends and all but one of several.
bool IsBlankToLose(const QString& text, int at)
{
    return At(text, at) == u' ' && (at == 0 || at + 1 == text.size() || At(text, at - 1).isSpace());
}

} // namespace

QString CodedText(const QString& plain, bool& isWhole)
{
    QString coded;
    for (int i = 0; i < plain.size(); ++i) {
        const QChar c = plain.at(i);
        if (c == u'\n') {
            coded += QLatin1String("^J");
        } else if (c == u'\t') {
            coded += QLatin1String("^I");
        } else if (c < kFirstLetter) {
            continue;
        } else if (IsPercentCode(plain, i)) {
            coded += QLatin1String("%%%");
        } else if (c == u'^') {
            coded += QLatin1String("^ ");
        } else if (IsLetterCode(plain, i)) {
            coded += QLatin1String("\\U+005C");
        } else if (IsBlankToLose(plain, i)) {
            coded += QLatin1String("\\U+0020");
        } else {
            coded += c;
        }
    }
    return TextForDrawing(coded, isWhole);
}

QString CodedMText(const QString& plain, bool& isWhole)
{
    QString coded;
    for (int i = 0; i < plain.size(); ++i) {
        const QChar c = plain.at(i);
        if (c == u'\n') {
            coded += QLatin1String("\\P");
        } else if (c == u'\t') {
            coded += QLatin1String("^I");
        } else if (c < kFirstLetter) {
            continue;
        } else if (IsPercentCode(plain, i)) {
            coded += QLatin1String("%%%");
        } else if (c == u'^') {
            coded += QLatin1String("^ ");
        } else {
            if (c == u'\\' || c == u'{' || c == u'}') {
                coded += u'\\';
            }
            coded += c;
        }
    }
    return TextForDrawing(coded, isWhole);
}

QString WithCodesAtSeams(QString coded)
{
    constexpr int kPart = 250;
    const QString code = QStringLiteral("\\U+0020");
    for (int i = 1; i < coded.size(); ++i) {
        const bool isAtSeam = i % kPart == 0 || i % kPart == kPart - 1;
        if (isAtSeam && coded.at(i) == u' ' && coded.at(i - 1) != u'^') {
            coded.replace(i, 1, code);
        }
    }
    return coded;
}

} // namespace velorx
