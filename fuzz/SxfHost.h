// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/Pnr.h"

#include <QString>

#include <cstddef>
#include <memory>

namespace fuzz {

/// Looks at everything an object holds, and writes the object again without a target.
class CSxfHost final : public VelorExchange::pnr::IPnrReader::IContext
{
public:
    explicit CSxfHost(VelorExchange::pnr::IPnrWriter& target) : writer(target) { }

    void AddText(VelorExchange::pnr::CTextObject* text) override
    {
        total += static_cast<std::size_t>(text->text.size() + text->image.fontName.size());
        Look(*text);
        writer.WriteText(text);
    }
    void AddSquare(VelorExchange::pnr::CSquareObject* square) override
    {
        Look(*square);
        writer.WriteSquare(square);
    }
    void AddLine(VelorExchange::pnr::CLineObject* line) override
    {
        Look(*line);
        writer.WriteLine(line);
    }
    void AddPoint(VelorExchange::pnr::CPointObject* point) override
    {
        Look(*point);
        writer.WritePoint(point);
    }

private:
    void Look(const VelorExchange::pnr::CBaseObject& object)
    {
        total += static_cast<std::size_t>(object.layer.size()) + (object.IsValid() ? 1 : 0);
        for (const auto& holder : object.holders) {
            total += holder->Count();
        }
        for (const auto& semantic : object.semantics) {
            total += static_cast<std::size_t>(semantic.value.toString().size());
        }
    }

    VelorExchange::pnr::IPnrWriter& writer;
    std::size_t total = 0;
};

inline void ReadMap(const QString& path, bool text)
{
    using namespace VelorExchange::pnr;
    const std::unique_ptr<IPnrWriter, void (*)(IPnrWriter*)> writer(
        CreatePnrWriter(!text, false, nullptr), DeletePnrWriter);
    CSxfHost host(*writer);
    const std::unique_ptr<IPnrReader, void (*)(IPnrReader*)> reader(CreateReader(text, &host),
                                                                    DeleteReader);
    reader->Read(path);
}

} // namespace fuzz
