// SPDX-License-Identifier: MIT
#include "VelorExchange/pnr/PnrTxtWriterImpl_p.h"

#include "VelorExchange/pnr/Texts_p.h"
#include "VelorExchange/pnr/TxtOutput_p.h"

#include <algorithm>

namespace VelorExchange::pnr {

void CPnrTxtWriterImpl::BeginObject()
{
    finite = true;
    output.Clear();
}

bool CPnrTxtWriterImpl::EndObject(const CBaseObject& object, bool ofUserMap,
                                  const QString& kindName)
{
    if (!finite) {
        return false;
    }
    Register(object);
    CountInLog(ofUserMap, kindName);
    return body->Append(output.Data(), output.Size());
}

bool CPnrTxtWriterImpl::WriteLine(CLineObject* object)
{
    if (!IsWhole(object)) {
        return false;
    }
    BeginObject();
    Put(".OBJ ");
    PutInt(object->code);
    PutField(" LIN\n.KEY", objectCount + 1);
    Put(".SCL ON\n");
    if (object->image) {
        PutField(".SEG", object->layer);
    }
    PutContours(*object);
    PutSemantics(*object);
    if (object->image) {
        PutField(".IMG 1\n_LINE 2\nCOLOR", object->image->color);
        PutField("THICK", object->image->thickness);
    }
    return EndObject(*object, userMap, texts::LineObjects());
}

bool CPnrTxtWriterImpl::WriteSquare(CSquareObject* object)
{
    if (!IsWhole(object)) {
        return false;
    }
    BeginObject();
    Put(".OBJ ");
    PutInt(object->code);
    PutField(" SQR\n.KEY", objectCount + 1);
    Put(".SCL ON\n");
    if (object->image) {
        PutField(".SEG", object->layer);
    }
    PutContours(*object);
    PutSemantics(*object);
    if (object->image) {
        PutField(".IMG 1\n_SQUARE 1\nCOLOR", object->image->color);
    }
    return EndObject(*object, userMap, texts::SquareObjects());
}

bool CPnrTxtWriterImpl::WritePoint(CPointObject* object)
{
    if (!IsWhole(object)) {
        return false;
    }
    const bool isVector = !object->holders.empty() && object->holders.front()->Count() > 1;
    BeginObject();
    Put(".OBJ ");
    PutInt(object->code);
    if (isVector) {
        Put(" VEC");
    } else {
        Put(" DOT");
    }
    PutField("\n.KEY", objectCount + 1);
    Put(".SCL ON\n");
    if (object->image) {
        PutField(".SEG", object->layer);
    }
    if (!object->holders.empty()) {
        PutContour(*object->holders.front(), false);
    }
    PutSemantics(*object);
    if (object->image) {
        PutMark(*object->image);
    }
    return EndObject(*object, userMap, texts::PointObjects());
}

// The report counts texts by their drawing, whichever map they are written for
// (PnrTxtWriter.CountsTextsByTheirDrawing).
bool CPnrTxtWriterImpl::WriteText(CTextObject* object)
{
    if (!IsWhole(object)) {
        return false;
    }
    BeginObject();
    if (object->hasOwnImage) {
        PutOwnText(*object);
    } else {
        PutClassifiedText(*object);
    }
    return EndObject(*object, object->hasOwnImage, texts::TextObjects());
}

// The code is always 0, and further parts have no place here.
void CPnrTxtWriterImpl::PutOwnText(const CTextObject& object)
{
    Put(".OBJ 0 TIT\n");
    PutField(".SEG", object.layer);
    PutField(".SCL ON\n.KEY", objectCount + 1);
    PutAlignment(object.image.align, 0);
    PutTextContour(object, object.text);
    PutSemantics(object);
    PutTextImage(object.image);
}

void CPnrTxtWriterImpl::PutClassifiedText(const CTextObject& object)
{
    const std::size_t parts = object.extraTexts.size();
    Put(".OBJ ");
    PutInt(object.code);
    if (parts == 0) {
        Put(" TIT");
    } else {
        Put(" MIX");
    }
    PutField("\n.KEY", objectCount + 1);
    PutAlignment(object.image.align, 0);
    for (std::size_t i = 0; i < std::max(parts, object.extraAligns.size()); ++i) {
        PutAlignment(i < object.extraAligns.size() ? object.extraAligns[i] : kDefaultAlign,
                     static_cast<qint64>(i) + 1);
    }
    if (parts > 0) {
        PutField(".MET", static_cast<qint64>(parts));
    }
    PutTextContour(object, object.text);
    for (const QString& part : object.extraTexts) {
        PutTextContour(object, part);
    }
    PutSemantics(object);
}

} // namespace VelorExchange::pnr
