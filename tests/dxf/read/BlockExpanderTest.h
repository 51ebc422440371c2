// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/DxfRecorder.h"

#include <limits>

namespace VelorExchange::test {

constexpr quint32 kByBlock = 0xFFFFFFFF;
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

inline dxf::CInsertDXF Insert(double rotation, double scaleX, double scaleY)
{
    dxf::CInsertDXF insert;
    insert.rotation = rotation;
    insert.scaleX = scaleX;
    insert.scaleY = scaleY;
    return insert;
}

// Puts the block point (1, 2, 3) at (4, 22, 42), and (2, 1, 0) at (7, 24, 30).
inline dxf::CInsertDXF Quarter()
{
    dxf::CInsertDXF insert = Insert(90, 2, 3);
    insert.scaleZ = 4;
    insert.point = {10, 20, 30};
    insert.color = 0x123456;
    insert.lineStyle.name = QStringLiteral("DASHED");
    return insert;
}

inline std::string Quartered(const char* entities)
{
    return Replayed(entities, Quarter());
}

// What the host gets of one entity that no file can hold as it is.
inline std::string Expanded(const dxf::CEntityVariantDXF& entity, const dxf::CInsertDXF& insert)
{
    dxf::CBlockDXF block;
    block.entities.push_back(entity);
    CDxfRecorder host;
    EXPECT_TRUE(dxf::ParseBlock(block, insert, &host));
    return host.text;
}

// Keeps the last of what has more than the recorder shows.
class CLast final : public dxf::IDXFReader
{
public:
    dxf::CLineDXF line;
    dxf::CInsertDXF insert;
    dxf::CArcDXF arc;

    bool OnLine(const dxf::CLineDXF& record) override
    {
        line = record;
        return false;
    }
    bool OnInsert(const dxf::CInsertDXF& record) override
    {
        insert = record;
        return false;
    }
    bool OnArc(const dxf::CArcDXF& record) override
    {
        arc = record;
        return false;
    }
};

inline CLast Last(const dxf::CEntityVariantDXF& entity, const dxf::CInsertDXF& insert)
{
    dxf::CBlockDXF block;
    block.entities.push_back(entity);
    CLast host;
    EXPECT_TRUE(dxf::ParseBlock(block, insert, &host));
    return host;
}

} // namespace VelorExchange::test
