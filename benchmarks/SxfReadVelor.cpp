// SPDX-License-Identifier: MIT
// Reads a map, of either form, with a host that adds up the coordinates.
#include "VelorExchange/Pnr.h"

#include <QTextCodec>

#include <cstdio>

using namespace VelorExchange::pnr;

namespace {

class CSummingHost final : public IPnrReader::IContext
{
public:
    void AddText(CTextObject* text) override { Count(*text); }
    void AddSquare(CSquareObject* square) override { Count(*square); }
    void AddLine(CLineObject* line) override { Count(*line); }
    void AddPoint(CPointObject* point) override { Count(*point); }

    double sum = 0;
    long objects = 0;

private:
    void Count(const CBaseObject& object)
    {
        ++objects;
        for (const auto& holder : object.holders) {
            if (holder->Is2D()) {
                for (const auto& p : static_cast<const CVertexHolder2D&>(*holder).vertices) {
                    sum += p.x;
                }
            }
        }
    }
};

} // namespace

int main(int argc, char** argv)
{
    if (argc < 2) {
        return 2;
    }
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("windows-1251"));
    const QString path = QString::fromLocal8Bit(argv[1]);
    bool text = false;
    CSummingHost host;
    bool good = IsTxtFile(path, text);
    IPnrReader* reader = CreateReader(text, &host);
    good = good && reader->Read(path);
    DeleteReader(reader);
    std::printf("%ld objects, sum %.3f\n", host.objects, host.sum);
    return good ? 0 : 1;
}
