// SPDX-License-Identifier: MIT
#include "VelorExchange/pnr/TxtObject_p.h"

#include <QStringList>

namespace VelorExchange::pnr {

namespace {

constexpr qint32 kTextSemantic = 9; // holds the text of a text object without one

using ReadField = void (*)(const CTxtBlock&, const CTxtSpan&, PnrTextImage&);

template <quint32 PnrTextImage::*field>
void Read32(const CTxtBlock& block, const CTxtSpan& token, PnrTextImage& image)
{
    image.*field = block.UInt(token);
}

// A 16-bit number of which the low byte stays.
template <quint8 PnrTextImage::*field>
void Read8(const CTxtBlock& block, const CTxtSpan& token, PnrTextImage& image)
{
    image.*field = static_cast<quint8>(block.UShort(token));
}

void ReadWeight(const CTxtBlock& block, const CTxtSpan& token, PnrTextImage& image)
{
    image.weight = static_cast<quint16>(block.UInt(token));
}

void ReadCharset(const CTxtBlock& block, const CTxtSpan& token, PnrTextImage& image)
{
    image.charset = static_cast<quint8>(block.Int(token));
}

struct CTextField
{
    std::string_view word;
    ReadField read;
};

// "NAME" takes the rest of its line and stands apart; any other word is passed over.
constexpr CTextField kTextFields[] = {
    {"COLOR", Read32<&PnrTextImage::color>},
    {"BCOLOR", Read32<&PnrTextImage::bColor>},
    {"SCOLOR", Read32<&PnrTextImage::sColor>},
    {"HEIGHT", Read32<&PnrTextImage::height>},
    {"WEIGHT", ReadWeight},
    {"WIDE", Read8<&PnrTextImage::wide>},
    {"HORIZONTAL", Read8<&PnrTextImage::horizontal>},
    {"ITALIC", Read8<&PnrTextImage::italic>},
    {"ULINE", Read8<&PnrTextImage::uline>},
    {"CHARSET", ReadCharset},
};

struct CAlignWord
{
    std::string_view word;
    int value;
};

constexpr CAlignWord kAlignWords[] = {{"LEFT", 0},   {"RIGHT", 1}, {"CENTER", 2}, {"TOP", 9},
                                      {"BOTTOM", 6}, {"BASE", 0},  {"MIDDLE", 3}};

void KeepFirstContour(CBaseObject& object)
{
    if (object.holders.size() > 1 && object.holders.front()->Count() == 2) {
        object.holders.resize(1);
    }
}

} // namespace

bool CTxtObjectParser::Read(CTextObject& object) const
{
    if (!ReadHead(object)) {
        return false;
    }
    object.text = JoinTextLines();
    if (!ReadMetric(object)) {
        return false;
    }
    KeepFirstContour(object);
    if (object.code == 0) {
        ReadDrawing(object);
    }
    ReadSemantics(object);
    for (const PnrSemantic& semantic : object.semantics) {
        if (object.text.isEmpty() && semantic.code == kTextSemantic) {
            object.text = semantic.value.toString();
        }
    }
    return true;
}

QString CTxtObjectParser::JoinTextLines() const
{
    QString joined;
    for (const CTxtBlock::CMark& mark : block.Marks()) {
        if (*block.Token(mark).data == '>') {
            joined += block.Text(block.Line(mark.line));
        }
    }
    return joined;
}

void CTxtObjectParser::ReadDrawing(CTextObject& object) const
{
    std::size_t index = FindDrawing("_TEXT");
    if (index == 0 || index + 1 == block.Count()) {
        return;
    }
    while (++index < block.Count()) {
        ReadTextField(block.Line(index), object.image);
    }
    object.image.align = SumAlignments();
}

void CTxtObjectParser::ReadTextField(const CTxtSpan& line, PnrTextImage& image) const
{
    CTxtTokens tokens(line);
    const CTxtSpan word = tokens.Next();
    if (word == "NAME") {
        QStringList names;
        for (CTxtSpan name = tokens.Next(); name.size > 0; name = tokens.Next()) {
            names += block.Text(name);
        }
        image.fontName = names.join(QLatin1Char(' '));
        return;
    }
    for (const CTextField& field : kTextFields) {
        if (word == field.word) {
            field.read(block, tokens.Next(), image);
            return;
        }
    }
}

// All lines of alignment add up, without the base of 20 that the writer has
// (PnrTxtReader.AddsUpAllAlignments).
qint16 CTxtObjectParser::SumAlignments() const
{
    int sum = 0;
    for (const CTxtBlock::CMark& mark : block.Marks()) {
        if (!(block.Token(mark) == ".ALG")) {
            continue;
        }
        CTxtTokens tokens(block.Line(mark.line));
        tokens.Next();
        for (CTxtSpan token = tokens.Next(); token.size > 0; token = tokens.Next()) {
            for (const CAlignWord& align : kAlignWords) {
                sum += token == align.word ? align.value : 0;
            }
        }
    }
    return static_cast<qint16>(sum);
}

} // namespace VelorExchange::pnr
