// SPDX-License-Identifier: MIT
// The least that any writer of maps has to do with the same coordinates: sxf_write_bare binary|text
// MEGABYTES FILE adds up the bytes and copies them, or prints the numbers, to a file.
#include "SxfSurveyMap.h"

#include <cstdio>
#include <cstdlib>
#include <string>

using namespace VelorExchange::pnr;

namespace {

// Copies or prints vertices and knows no object.
class CBareWriter final : public IPnrWriter
{
public:
    CBareWriter(const char* name, bool text)
        : IPnrWriter(nullptr), file(std::fopen(name, "wb")), asText(text)
    {
    }
    ~CBareWriter() override { std::fclose(file); }
    void Init(bool, VelorExchange::CExportLog*) override { }
    void SetPrecision(int) override { }
    int GetPrecision() const override { return 0; }
    bool Open(const QString&, const PnrFileParams&) override { return true; }
    bool Close() override
    {
        std::printf("checksum %d\n", checksum);
        return std::fflush(file) == 0;
    }
    bool WriteWithTexts(const PnrTextGroup&) override { return true; }
    bool WriteText(CTextObject* text) override { return Put(*text); }
    bool WriteSquare(CSquareObject* square) override { return Put(*square); }
    bool WriteLine(CLineObject* line) override { return Put(*line); }
    bool WritePoint(CPointObject* point) override { return Put(*point); }

private:
    bool Put(const CBaseObject& object)
    {
        for (const auto& holder : object.holders) {
            const auto& vertices = static_cast<const CVertexHolder2D&>(*holder).vertices;
            if (asText) {
                for (const auto& p : vertices) {
                    std::fprintf(file, "%.4f %.4f\n", p.x, p.y);
                }
            } else {
                const auto* bytes = reinterpret_cast<const signed char*>(vertices.data());
                for (std::size_t i = 0; i < vertices.size() * sizeof vertices[0]; ++i) {
                    checksum += bytes[i];
                }
                std::fwrite(vertices.data(), sizeof vertices[0], vertices.size(), file);
            }
        }
        return true;
    }

    std::FILE* file;
    bool asText;
    int checksum = 0;
};

} // namespace

int main(int argc, char** argv)
{
    if (argc < 4) {
        return 2;
    }
    CBareWriter writer(argv[3], std::string(argv[1]) == "text");
    CSxfSurveyMap map;
    std::printf("%ld objects\n", map.Write(writer, std::atof(argv[2])));
    return writer.Close() ? 0 : 1;
}
