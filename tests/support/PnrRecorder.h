// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/Pnr.h"

#include <QByteArray>
#include <QString>

#include <memory>
#include <string>
#include <vector>

/// A host that writes each object it gets as lines of text and keeps the object's contours alive no
/// longer than the call.
class CPnrRecorder final : public VelorExchange::pnr::IPnrReader::IContext
{
public:
    void AddText(VelorExchange::pnr::CTextObject* text) override;
    void AddSquare(VelorExchange::pnr::CSquareObject* square) override;
    void AddLine(VelorExchange::pnr::CLineObject* line) override;
    void AddPoint(VelorExchange::pnr::CPointObject* point) override;

    /// All calls so far, one or more lines each.
    std::string Log() const { return log; }

private:
    void Head(const char* kind, const VelorExchange::pnr::CBaseObject& object);
    void Tail(const VelorExchange::pnr::CBaseObject& object);

    std::string log;
};

/// What a read gave.
struct CPnrResult
{
    bool result = false;
    std::wstring message;
    std::string log;
};

/// Reads bytes, by way of a file, in the form told.
CPnrResult ReadPnr(const QByteArray& bytes, bool text);

/// Reads the file in the form told.
CPnrResult ReadPnrFile(const QString& fileName, bool text);

/// "text" with backslashes for what can't be shown: "\x18".
std::string Shown(const QString& text);

/// The value with its type in front.
std::string Shown(const QVariant& value);
