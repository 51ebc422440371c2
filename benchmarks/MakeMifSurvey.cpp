// SPDX-License-Identifier: MIT
// make_mif_survey PATH MEGABYTES: writes the pair PATH.mif and PATH.mid of about that size together.
#include "MifSurvey.h"

#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

class CPair
{
public:
    explicit CPair(const std::string& path)
        : mif(std::fopen((path + ".mif").c_str(), "wb")),
          mid(std::fopen((path + ".mid").c_str(), "wb"))
    {
        if (mif == nullptr || mid == nullptr) {
            std::exit(1);
        }
        std::fputs("Version 450\r\nCharset \"WindowsCyrillic\"\r\nDelimiter \";\"\r\n"
                   "CoordSys Nonearth Units \"m\" Bounds (0, 0) (1000000, 10000000)\r\n"
                   "Columns 5\r\nnumber Integer\r\nname Char (80)\r\nuse Char (40)\r\n"
                   "area Decimal (20, 5)\r\nheight Float\r\nData\r\n\r\n",
                   mif);
    }
    CPair(const CPair&) = delete;
    CPair& operator=(const CPair&) = delete;
    ~CPair()
    {
        std::fclose(mif);
        std::fclose(mid);
    }

    long Size() const { return std::ftell(mif) + std::ftell(mid); }

    void Write(const bench::CMifObject& object) const
    {
        const std::vector<double>& c = object.coordinates;
        switch (object.kind) {
        case bench::EMifKind::Parcel:
            std::fprintf(mif, "Region  1\r\n");
            WriteVertices("  ", c);
            std::fputs("    Pen (1,2,0) \r\n    Brush (2,16777215,16777215)\r\n", mif);
            std::fprintf(mif, "    Center %.4f %.4f \r\n", c[0], c[1]);
            break;
        case bench::EMifKind::Contour:
            WriteVertices("Pline ", c);
            std::fputs("    Pen (1,2,8388608) \r\n", mif);
            break;
        case bench::EMifKind::Height:
            std::fprintf(mif, "Point %.4f %.4f\r\n    Symbol (35,0,12) \r\n", c[0], c[1]);
            break;
        case bench::EMifKind::Note:
            std::fprintf(mif, "Text\r\n    \"%s\"\r\n    %.4f %.4f %.4f %.4f\r\n",
                         object.name.c_str(), c[0], c[1], c[2], c[3]);
            std::fputs("    Font (\"Arial\",0,0,0)\r\n    Angle 15\r\n", mif);
            break;
        }
        std::fprintf(mid, "%d;\"%s\";\"%s\";%.5f;%.6g\r\n", object.number, object.name.c_str(),
                     object.use.c_str(), object.area, static_cast<double>(object.height));
    }

private:
    void WriteVertices(const char* head, const std::vector<double>& c) const
    {
        std::fprintf(mif, "%s%zu\r\n", head, c.size() / 2);
        for (std::size_t i = 0; i < c.size(); i += 2) {
            std::fprintf(mif, "%.4f %.4f\r\n", c[i], c[i + 1]);
        }
    }

    std::FILE* mif;
    std::FILE* mid;
};

} // namespace

int main(int argc, char** argv)
{
    if (argc < 3) {
        std::fputs("usage: make_mif_survey PATH MEGABYTES\n", stderr);
        return 2;
    }
    const CPair pair(argv[1]);
    bench::CMifSurvey survey;
    const auto size = static_cast<long>(std::atof(argv[2]) * (1U << 20U));
    while (pair.Size() < size) {
        pair.Write(survey.Next());
    }
    return 0;
}
