// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/DXF.h"

#include <cstdint>
#include <cstring>
#include <vector>

namespace fuzz {

using namespace VelorExchange;
using namespace VelorExchange::dxf;

/// Takes numbers, texts and records from an input; zeros once it is used up.
class CDxfInput
{
public:
    CDxfInput(const std::uint8_t* data, std::size_t size) : p(data), end(data + size) { }

    bool IsOver() const { return p == end; }
    int Byte() { return p == end ? 0 : *p++; }
    bool Flag() { return Byte() % 2 != 0; }

    /// Mostly an ordinary number, sometimes any bits at all.
    double Real()
    {
        if (Byte() % 4 != 0) {
            return (Byte() * 256 + Byte() - 32768) / 16.0;
        }
        double value = 0;
        for (std::size_t i = 0; i < sizeof value; ++i) {
            const auto byte = static_cast<std::uint8_t>(Byte());
            std::memcpy(reinterpret_cast<std::uint8_t*>(&value) + i, &byte, 1);
        }
        return value;
    }

    /// Short enough for the reader's lines.
    QString Text()
    {
        QString text;
        for (int left = Byte() % 200; left > 0; --left) {
            const int high = Byte();
            text += QChar(static_cast<ushort>(high % 8 == 0 ? Byte() * 256 + Byte() : high));
        }
        return text;
    }

    CPoint2D Point2D() { return {Real(), Real()}; }
    CPoint3D Point3D() { return {Real(), Real(), Real()}; }

    std::vector<double> Reals()
    {
        std::vector<double> reals(static_cast<std::size_t>(Byte() % 8));
        for (double& real : reals) {
            real = Real();
        }
        return reals;
    }

    std::vector<CPoint3D> Points()
    {
        std::vector<CPoint3D> points(static_cast<std::size_t>(Byte() % 8));
        for (CPoint3D& point : points) {
            point = Point3D();
        }
        return points;
    }

    std::vector<CVertexDXF> Vertices()
    {
        std::vector<CVertexDXF> vertices;
        for (const CPoint3D& point : Points()) {
            vertices.push_back({point, Real()});
        }
        return vertices;
    }

    CLineStyleDXF LineStyle()
    {
        CLineStyleDXF style;
        style.name = Text();
        for (int left = Byte() % 5; left > 0; --left) {
            style.pattern.push_back(Real());
            if (Flag()) {
                style.pattern.push_back(Complex(CLineTextDXF{}));
            } else {
                style.pattern.push_back(Complex(CLineShapeDXF{}));
            }
        }
        return style;
    }

    CTextStyleDXF TextStyle()
    {
        CTextStyleDXF style;
        style.name = Text();
        if (Flag()) {
            style.fontFile = Text();
            style.faceName = Text();
            style.height = Real();
            style.widthFactor = Real();
        }
        return style;
    }

    void Head(CEntityDXF& head)
    {
        head.layer = Text();
        head.color = static_cast<quint32>(Byte() * 65793);
        head.lineWeight = Real();
        if (Flag()) {
            head.lineStyle = LineStyle();
        }
    }

    void Letters(CTextDXF& text)
    {
        text.text = Text();
        text.layer = Text();
        text.position = Point2D();
        text.height = Real();
        text.rotation = Real();
        text.alignment = Byte();
        text.style = TextStyle();
    }

    CHatchStyleDXF HatchStyle()
    {
        CHatchStyleDXF style;
        style.name = Text();
        style.lines.resize(static_cast<std::size_t>(Byte() % 3));
        for (CHatchLineDXF& line : style.lines) {
            line.angle = Real();
            line.offsetX = Real();
            line.dashes = Reals();
        }
        return style;
    }

private:
    template <class Element>
    Element Complex(Element element)
    {
        element.absolute = Flag();
        element.style = Text();
        element.scale = Real();
        element.rotation = Real();
        return element;
    }

    const std::uint8_t* p;
    const std::uint8_t* end;
};

} // namespace fuzz
