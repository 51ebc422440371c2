// SPDX-License-Identifier: MIT
// Reads a pair made from the input, which holds the ".mif", a byte 0x1E and the ".mid". What comes is
// written again, and that is read too.
#include "VelorExchange/MIF.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <stdexcept>

using namespace VelorExchange;
using namespace VelorExchange::mif;

namespace {

constexpr std::uint8_t kSeparator = 0x1E;

// In memory where the system has such a folder.
const QString& Folder()
{
    static const QTemporaryDir folder(
        (QDir(QStringLiteral("/dev/shm")).exists() ? QStringLiteral("/dev/shm") : QDir::tempPath())
        + QStringLiteral("/mif-fuzz-XXXXXX"));
    static const QString path = folder.path();
    return path;
}

void Put(const char* name, const std::uint8_t* begin, const std::uint8_t* end)
{
    QFile file(Folder() + QLatin1String(name));
    if (!file.open(QIODevice::WriteOnly)
        || file.write(reinterpret_cast<const char*>(begin), end - begin) != end - begin)
    {
        std::abort();
    }
}

// Counts what comes and hands it to a writer, if there is one.
class CHost final : public IMIFReader
{
public:
    explicit CHost(IMIFWriter* target) : writer(target) { }

    void AddArc(const CArcMIF& r) override { Count(r); }
    void AddRoundRect(const CRoundRectMIF& r) override { Count(r); }
    void AddEllipse(const CRectMIF& r) override { Count(r); }
    void AddRect(const CRectMIF& r) override { Count(r); }
    void AddText(const CTextMIF& r) override
    {
        Count(r);
        const QString layer = QStringLiteral("../%1").arg(r.text.size() % 4);
        isWritten = writer != nullptr && writer->AddText(r, layer);
    }
    void AddPolyline(const CPolylineMIF& r) override
    {
        Count(r);
        isWritten = writer != nullptr && writer->AddPolyline(r, QStringLiteral("lines"));
    }
    void AddRegion(const CRegionMIF& r) override
    {
        Count(r);
        isWritten = writer != nullptr && writer->AddRegion(r, QStringLiteral("a/b"));
    }
    void AddPoint(const CPointMIF& r) override
    {
        Count(r);
        isWritten = writer != nullptr && writer->AddPoint(r, QStringLiteral("points"));
    }
    void SetProgressRange(int) override { }
    void SetProgress(int) override { }
    void Finish() override { }

    std::size_t attributes = 0;
    bool isWritten = false;

private:
    void Count(const CAttributeHolderMIF& record) { attributes += record.attributes.size(); }

    IMIFWriter* writer;
};

void ReadPair(const QString& path, IMIFWriter* writer)
{
    CHost host(writer);
    try {
        Read(path, &host);
    } catch (const std::length_error&) {
        // What a count that no file could back is answered with.
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::uint8_t* const end = data + size;
    const std::uint8_t* const middle = std::find(data, end, kSeparator);
    Put("/in.mif", data, middle);
    Put("/in.mid", middle == end ? end : middle + 1, end);
    IMIFWriter* const writer = CreateMIFWriter(nullptr);
    CExportLog log;
    writer->Init(&log);
    ReadPair(Folder() + QStringLiteral("/in"), writer);
    writer->Rewrite(Folder(), nullptr);
    DeleteMIFWriter(writer);
    ReadPair(Folder() + QStringLiteral("/lines"), nullptr);
    ReadPair(Folder() + QStringLiteral("/points"), nullptr);
    return 0;
}
