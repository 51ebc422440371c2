// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/foundation/Export.h"

#include <QString>

#include <string>

namespace VelorExchange::pnr {

struct CLineObject;
struct CPointObject;
struct CSquareObject;
struct CTextObject;

/// Reads one SXF map and hands its objects to the host one at a time, in file order. Made by
/// `CreateReader`, used for one `Read`, given back to `DeleteReader`. It holds the object in hand
/// and a block of the file, nothing that grows with the file.
class VELOREXCHANGE_EXPORT IPnrReader
{
public:
    /// The host's side of reading. Each object belongs to the reader, which deletes it when the
    /// call returns: the host copies or moves out what it wants to keep. What an operation throws
    /// passes through `Read`.
    class VELOREXCHANGE_EXPORT IContext
    {
    public:
        virtual void AddText(CTextObject* text) = 0; ///< A text, never null.
        virtual void AddSquare(CSquareObject* square) = 0; ///< An area, never null.
        virtual void AddLine(CLineObject* line) = 0; ///< A line, never null.
        virtual void AddPoint(CPointObject* point) = 0; ///< A point or vector, never null.

    protected:
        ~IContext() = default;
    };

    IPnrReader(const IPnrReader&) = delete;
    IPnrReader& operator=(const IPnrReader&) = delete;
    virtual ~IPnrReader();

    /// Reads the whole file through `Open`. False on failure; objects delivered before it stay
    /// delivered.
    virtual bool Read(const QString& fileName) = 0;

    /// What the last failure was, in Russian, for people; empty if there was none, and also where a
    /// binary file ends inside the head of a record.
    virtual const std::wstring& GetLastError() const = 0;

    /// Opens the file for reading. False on failure, with a message.
    virtual bool Open(const QString& fileName) = 0;

protected:
    /// `host` stays the host's and outlives the reader.
    explicit IPnrReader(IContext* host) : context(host) { }

    IContext* context; ///< Who gets the objects; with null they go nowhere.
};

} // namespace VelorExchange::pnr
