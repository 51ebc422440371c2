// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/DxfTags.h"
#include "VelorExchange/dxf/write/IDXFWriter.h"

#include <QTemporaryDir>

#include <memory>
#include <string>

namespace VelorExchange::test {

/// A drawing under test: a writer whose results go through the checker.
class CDrawing
{
public:
    explicit CDrawing(int version = 1018,
                      VelorExchange::dxf::IDXFWriter::IContext* context = nullptr,
                      VelorExchange::CExportLog* log = nullptr);

    VelorExchange::dxf::IDXFWriter* operator->() const { return writer.get(); }
    VelorExchange::dxf::IDXFWriter& operator*() const { return *writer; }

    /// The whole drawing as `Rewrite` writes it. Each problem that the checker finds fails the test.
    QByteArray Bytes();

    /// Leaves the checker out, for behaviours that are meant though they aren't good.
    QByteArray UncheckedBytes();

    /// What stands in a section, one group a line.
    std::string Section(const char* name) { return AsText(SectionOf(ParseTags(Bytes()), name)); }

    /// What stands in a table, one group a line.
    std::string Table(const char* name) { return AsText(TableOf(ParseTags(Bytes()), name)); }

    /// The entities, one group a line.
    std::string Entities() { return Section("ENTITIES"); }

    /// The groups of the entities.
    CTags EntityTags() { return SectionOf(ParseTags(Bytes()), "ENTITIES"); }

private:
    struct CDeleter
    {
        void operator()(VelorExchange::dxf::IDXFWriter* made) const
        {
            VelorExchange::dxf::DeleteDXFWriter(made);
        }
    };

    QTemporaryDir folder;
    std::unique_ptr<VelorExchange::dxf::IDXFWriter, CDeleter> writer;
};

/// A context that shifts by (100, 200), scales by `scale` and knows styles by name.
class CTestContext final : public VelorExchange::dxf::IDXFWriter::IContext
{
public:
    VelorExchange::CPoint2D TransformPoint(const VelorExchange::CPoint2D& in) override
    {
        return {in.x + 100, in.y + 200};
    }
    bool GetLineStyle(const QString& name, VelorExchange::dxf::CLineStyleDXF& style) override;
    void CompleteTextStyle(VelorExchange::dxf::CTextStyleDXF& style) override;
    double GetScale() override { return scale; }

    double scale = 2.0;
    std::string calls; ///< Names that were asked for.
};

} // namespace VelorExchange::test
