// SPDX-License-Identifier: MIT
#include "SurveyDrawing.h"

#include <cmath>
#include <random>

namespace bench {

namespace {

class CDrawing
{
public:
    CDrawing(std::FILE* target, const CSurveyOptions& chosen) : file(target), options(chosen) { }

    bool Write()
    {
        WriteHeader();
        WriteTables();
        WriteBlocks();
        Tag(0, "SECTION");
        Tag(2, "ENTITIES");
        if (options.onePolyline) {
            Contour(static_cast<int>(options.bytes / 36));
        }
        while (!options.onePolyline && written < options.bytes && good) {
            Entity();
        }
        Tag(0, "ENDSEC");
        Tag(0, "EOF");
        Flush();
        return good;
    }

private:
    void Tag(int code, const char* value)
    {
        char line[256];
        const int size = std::snprintf(line, sizeof line, "%3d%s%s%s", code, options.lineEnd, value,
                                       options.lineEnd);
        buffer.append(line, static_cast<std::size_t>(size));
        if (buffer.size() > kFlushAt) {
            Flush();
        }
    }

    void Tag(int code, int value)
    {
        char text[16];
        std::snprintf(text, sizeof text, "%6d", value);
        Tag(code, text);
    }

    // Two in three coordinates are rounded to millimetres, the others are as computed.
    void Real(int code, double value)
    {
        char text[32];
        std::snprintf(text, sizeof text, random() % 3 != 0 ? "%.3f" : "%.10f", value);
        Tag(code, text);
    }

    void Handle()
    {
        char text[16];
        std::snprintf(text, sizeof text, "%X", ++handle);
        Tag(5, text);
    }

    void Point(int x, double px, double py)
    {
        Real(x, px);
        Real(x + 10, py);
    }

    double Uniform(double low, double high)
    {
        return low + (high - low) * static_cast<double>(random() % 1000003) / 1000003.0;
    }

    void Layer()
    {
        char name[32];
        std::snprintf(name, sizeof name, "\xD1\xEB\xEE\xE9_%d", // "Слой"
                      static_cast<int>(random() % static_cast<unsigned>(options.layers)));
        Tag(8, name);
    }

    void Head(const char* kind, const char* subclass)
    {
        Tag(0, kind);
        Handle();
        Tag(330, "1F");
        Tag(100, "AcDbEntity");
        Layer();
        if (random() % 4 == 0) {
            Tag(62, static_cast<int>(random() % 255 + 1));
        }
        Tag(100, subclass);
    }

    void Entity()
    {
        switch (random() % 12) {
        case 0:
        case 1:
            return Contour(8 + static_cast<int>(random() % 40));
        case 2:
        case 3:
        case 4:
            return SpotHeight();
        case 5:
        case 6:
            return Line();
        case 7:
        case 8:
            return Symbol();
        case 9:
            return Building();
        case 10:
            return Arc();
        default:
            return Breakline(5 + static_cast<int>(random() % 20));
        }
    }

    void Contour(int vertices)
    {
        Head("LWPOLYLINE", "AcDbPolyline");
        Tag(90, vertices);
        Tag(70, 0);
        Real(43, 0.0);
        Real(38, Uniform(90, 240));
        double x = Uniform(500000, 520000);
        double y = Uniform(6100000, 6120000);
        double heading = Uniform(0, 6.28);
        for (int i = 0; i < vertices; ++i) {
            Point(10, x, y);
            heading += Uniform(-0.3, 0.3);
            x += 5 * std::cos(heading);
            y += 5 * std::sin(heading);
        }
    }

    void SpotHeight()
    {
        const double x = Uniform(500000, 520000);
        const double y = Uniform(6100000, 6120000);
        const double z = Uniform(90, 240);
        Head("POINT", "AcDbPoint");
        Point(10, x, y);
        Real(30, z);
        Head("TEXT", "AcDbText");
        Point(10, x + 1, y + 1);
        Real(30, 0.0);
        Real(40, 2.5);
        char text[64];
        std::snprintf(text, sizeof text, "\xEE\xF2\xEC. %.2f", z); // "отм."
        Tag(1, text);
        Tag(7, "GOST");
        Tag(100, "AcDbText");
    }

    void Line()
    {
        Head("LINE", "AcDbLine");
        const double x = Uniform(500000, 520000);
        const double y = Uniform(6100000, 6120000);
        Point(10, x, y);
        Real(30, 0.0);
        Point(11, x + Uniform(-50, 50), y + Uniform(-50, 50));
        Real(31, 0.0);
    }

    void Symbol()
    {
        Head("INSERT", "AcDbBlockReference");
        Tag(66, 1);
        char name[16];
        std::snprintf(name, sizeof name, "SIGN_%d", static_cast<int>(random() % 10));
        Tag(2, name);
        const double x = Uniform(500000, 520000);
        const double y = Uniform(6100000, 6120000);
        Point(10, x, y);
        Real(30, 0.0);
        Real(50, Uniform(0, 360));
        Head("ATTRIB", "AcDbText");
        Point(10, x + 2, y);
        Real(30, 0.0);
        Real(40, 2.0);
        Tag(1, "\xEA\xEE\xEB\xEE\xE4\xE5\xF6"); // "колодец"
        Tag(100, "AcDbAttribute");
        Tag(2, "KIND");
        Tag(70, 0);
        Tag(0, "SEQEND");
        Handle();
    }

    void Building()
    {
        const double x = Uniform(500000, 520000);
        const double y = Uniform(6100000, 6120000);
        Head("HATCH", "AcDbHatch");
        Point(10, 0.0, 0.0);
        Real(30, 0.0);
        Tag(210, "0.0");
        Tag(220, "0.0");
        Tag(230, "1.0");
        Tag(2, "ANSI31");
        Tag(70, 0);
        Tag(71, 0);
        Tag(91, 1);
        Tag(92, 3);
        Tag(72, 0);
        Tag(73, 1);
        Tag(93, 4);
        for (int corner = 0; corner < 4; ++corner) {
            Point(10, x + (corner == 1 || corner == 2 ? 12 : 0), y + (corner > 1 ? 9 : 0));
        }
        Tag(97, 0);
        Tag(75, 1);
        Tag(76, 1);
        Real(52, 45.0);
        Real(41, 1.0);
        Tag(98, 0);
    }

    void Arc()
    {
        const bool circle = random() % 2 == 0;
        Head(circle ? "CIRCLE" : "ARC", "AcDbCircle");
        Point(10, Uniform(500000, 520000), Uniform(6100000, 6120000));
        Real(30, 0.0);
        Real(40, Uniform(1, 30));
        if (!circle) {
            Tag(100, "AcDbArc");
            Real(50, Uniform(0, 360));
            Real(51, Uniform(0, 360));
        }
    }

    void Breakline(int vertices)
    {
        Head("POLYLINE", "AcDb3dPolyline");
        Tag(66, 1);
        Point(10, 0.0, 0.0);
        Real(30, 0.0);
        Tag(70, 8);
        double x = Uniform(500000, 520000);
        double y = Uniform(6100000, 6120000);
        for (int i = 0; i < vertices; ++i) {
            Head("VERTEX", "AcDbVertex");
            Tag(100, "AcDb3dPolylineVertex");
            Point(10, x += Uniform(1, 9), y += Uniform(1, 9));
            Real(30, Uniform(90, 240));
            Tag(70, 32);
        }
        Tag(0, "SEQEND");
        Handle();
    }

    void WriteHeader()
    {
        Tag(0, "SECTION");
        Tag(2, "HEADER");
        Tag(9, "$ACADVER");
        Tag(1, "AC1015");
        Tag(9, "$DWGCODEPAGE");
        Tag(3, "ANSI_1251");
        Tag(0, "ENDSEC");
    }

    void WriteTables()
    {
        Tag(0, "SECTION");
        Tag(2, "TABLES");
        Tag(0, "TABLE");
        Tag(2, "LAYER");
        Tag(70, options.layers);
        for (int i = 0; i < options.layers; ++i) {
            char name[32];
            std::snprintf(name, sizeof name, "\xD1\xEB\xEE\xE9_%d", i);
            Tag(0, "LAYER");
            Handle();
            Tag(100, "AcDbSymbolTableRecord");
            Tag(100, "AcDbLayerTableRecord");
            Tag(2, name);
            Tag(70, 0);
            Tag(62, i % 255 + 1);
            Tag(6, "CONTINUOUS");
        }
        Tag(0, "ENDTAB");
        Tag(0, "ENDSEC");
    }

    void WriteBlocks()
    {
        Tag(0, "SECTION");
        Tag(2, "BLOCKS");
        for (int i = 0; i < 10; ++i) {
            char name[16];
            std::snprintf(name, sizeof name, "SIGN_%d", i);
            Tag(0, "BLOCK");
            Handle();
            Tag(8, "0");
            Tag(2, name);
            Tag(70, 0);
            Point(10, 0.0, 0.0);
            Real(30, 0.0);
            Arc();
            Line();
            Tag(0, "ENDBLK");
            Handle();
            Tag(8, "0");
        }
        Tag(0, "ENDSEC");
    }

    void Flush()
    {
        good = good && std::fwrite(buffer.data(), 1, buffer.size(), file) == buffer.size();
        written += buffer.size();
        buffer.clear();
    }

    static constexpr std::size_t kFlushAt = 1U << 16U;

    std::FILE* file;
    const CSurveyOptions& options;
    std::mt19937 random{20260101};
    std::string buffer;
    std::uint64_t written = 0;
    unsigned handle = 0x100;
    bool good = true;
};

} // namespace

bool WriteSurveyDrawing(std::FILE* file, const CSurveyOptions& options)
{
    return CDrawing(file, options).Write();
}

} // namespace bench
