// SPDX-License-Identifier: MIT
// Makes a map of objects that all lie in memory: sxf_write_velor binary|text MEGABYTES FILE. With
// "nothing" in place of the form only the objects are made, which is what the host's side costs.
#include "SxfSurveyMap.h"

#include <QTextCodec>

#include <cstdio>
#include <cstdlib>
#include <string>

using namespace VelorExchange::pnr;

namespace {

// Takes everything and writes nothing.
class CNoWriter final : public IPnrWriter
{
public:
    CNoWriter() : IPnrWriter(nullptr) { }
    void Init(bool, VelorExchange::CExportLog*) override { }
    void SetPrecision(int) override { }
    int GetPrecision() const override { return 0; }
    bool Open(const QString&, const PnrFileParams&) override { return true; }
    bool Close() override { return true; }
    bool WriteWithTexts(const PnrTextGroup&) override { return true; }
    bool WriteText(CTextObject*) override { return true; }
    bool WriteSquare(CSquareObject*) override { return true; }
    bool WriteLine(CLineObject*) override { return true; }
    bool WritePoint(CPointObject*) override { return true; }
};

} // namespace

int main(int argc, char** argv)
{
    if (argc < 4) {
        return 2;
    }
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("windows-1251"));
    const std::string form = argv[1];
    IPnrWriter* writer = form == "nothing" ? static_cast<IPnrWriter*>(new CNoWriter)
                                           : CreatePnrWriter(form == "text", false, nullptr);
    writer->Init(false, nullptr);
    writer->Open(QString::fromLocal8Bit(argv[3]), {QStringLiteral("Benchmark"), 10000, 0, 0, 0, 0});
    CSxfSurveyMap map;
    const long objects = map.Write(*writer, std::atof(argv[2]));
    const bool good = writer->Close();
    if (form == "nothing") {
        delete writer;
    } else {
        DeletePnrWriter(writer);
    }
    std::printf("%ld objects\n", objects);
    return good ? 0 : 1;
}
