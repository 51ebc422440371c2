// SPDX-License-Identifier: MIT
// The least that any writer of the scene has to do: std::to_chars for each real and fixed text around
// it, gathered in a buffer. No tables, no handles, no names to look up. DxfWriteBare OUT OBJECTS.
#include "WriteScene.h"

#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string_view>
#include <vector>

namespace {

class CSink
{
public:
    explicit CSink(std::FILE* target) : file(target), buffer(262144), end(buffer.data()) { }
    ~CSink() { Flush(); }
    CSink(const CSink&) = delete;
    CSink& operator=(const CSink&) = delete;

    void Contour(int layer, std::uint32_t, const bench::CSpot* spots)
    {
        Head("0\r\nLWPOLYLINE\r\n8\r\n", layer);
        Text("100\r\nAcDbPolyline\r\n90\r\n40\r\n70\r\n128\r\n");
        for (std::size_t i = 0; i < bench::CWriteScene::kContour; ++i) {
            Point("10\r\n", "20\r\n", "30\r\n", spots[i], 0);
        }
    }
    void Line(int layer, std::uint32_t, const bench::CSpot& from, const bench::CSpot& to)
    {
        Head("0\r\nLINE\r\n8\r\n", layer);
        Point("10\r\n", "20\r\n", "30\r\n", from, 0);
        Point("11\r\n", "21\r\n", "31\r\n", to, 0);
    }
    void Height(int layer, std::uint32_t, const bench::CSpot& spot, double z)
    {
        Head("0\r\nPOINT\r\n8\r\n", layer);
        Point("10\r\n", "20\r\n", "30\r\n", spot, z);
    }
    void Label(int layer, std::uint32_t, const bench::CSpot& spot, long number)
    {
        Head("0\r\nTEXT\r\n8\r\n", layer);
        Point("10\r\n", "20\r\n", "30\r\n", spot, 0);
        Point("11\r\n", "21\r\n", "31\r\n", spot, 0);
        Real("40\r\n", 2.5);
        Text("1\r\n");
        end = std::to_chars(end, end + 32, number).ptr;
        Text("\r\n");
    }

private:
    void Text(std::string_view text)
    {
        if (buffer.data() + buffer.size() - end < 512) {
            Flush();
        }
        std::memcpy(end, text.data(), text.size());
        end += text.size();
    }
    void Head(std::string_view head, int layer)
    {
        Text(head);
        Text(bench::CWriteScene::kLayers[static_cast<std::size_t>(layer)]);
        Text("\r\n");
    }
    void Real(std::string_view code, double value)
    {
        Text(code);
        end = std::to_chars(end, end + 400, value, std::chars_format::fixed, 6).ptr;
        Text("\r\n");
    }
    void Point(std::string_view x, std::string_view y, std::string_view height,
               const bench::CSpot& spot, double z)
    {
        Real(x, spot.x);
        Real(y, spot.y);
        Real(height, z);
    }
    void Flush()
    {
        std::fwrite(buffer.data(), 1, static_cast<std::size_t>(end - buffer.data()), file);
        end = buffer.data();
    }

    std::FILE* file;
    std::vector<char> buffer;
    char* end;
};

} // namespace

int main(int argc, char** argv)
{
    std::FILE* file = argc > 2 ? std::fopen(argv[1], "wb") : nullptr;
    if (file == nullptr) {
        return 2;
    }
    {
        CSink sink(file);
        bench::CWriteScene().Draw(std::atol(argv[2]), sink);
    }
    std::fclose(file);
    return 0;
}
