// SPDX-License-Identifier: MIT
#include "VelorExchange/pnr/classifier/PanoramaRscClsReader.h"

#include "VelorExchange/pnr/classifier/FloatingPointGuard_p.h"
#include "VelorExchange/pnr/classifier/RscLibrary_p.h"
#include "VelorExchange/pnr/classifier/RscPlatform_p.h"

#include <QByteArray>
#include <QFile>

#include <algorithm>
#include <array>

namespace VelorExchange::pnr {

CPanoramaRscClsReader CPanoramaRscClsReader::m_instance;

CPanoramaRscClsReader* CPanoramaRscClsReader::GetInstance(const QString& libraryPath)
{
    CPanoramaRscClsReader& reader = m_instance;
    if (!libraryPath.isEmpty() && libraryPath != reader.libraryPath) {
        reader.libraryPath = libraryPath;
        if (!reader.LoadFunctionsAdress()) {
            reader.libraryPath.clear();
            reader.FreeLoadedLibrary();
        }
    }
    return reader.hLibrary != nullptr ? &reader : nullptr;
}

// An open classifier stays marked as open: no function of the library runs here. The test
// KillInstanceClosesNothing holds it.
void CPanoramaRscClsReader::KillInstance()
{
    m_instance.libraryPath.clear();
    m_instance.FreeLoadedLibrary();
}

// Leaves the library loaded where a function is missing; the caller frees it.
bool CPanoramaRscClsReader::LoadFunctionsAdress()
{
    if (!QFile::exists(libraryPath)) {
        return false;
    }
    FreeLoadedLibrary();
    hLibrary = platform::Load(libraryPath.toLocal8Bit().constData());
    if (hLibrary == nullptr) {
        return false;
    }
    const auto& operations = CRscLibrary::Operations();
    return std::all_of(operations.begin(), operations.end(),
                       [this](const CRscOperation& operation) {
                           void* address = platform::Find(hLibrary, operation.name);
                           operation.assign(*this, address);
                           return address != nullptr;
                       });
}

// The last pointer, that of mapGetRscObjectKey, stays as it is; nothing calls it without a library.
// The test KeepsOnlyTheLastFunctionWhenFreed holds it.
void CPanoramaRscClsReader::FillFunctionsZero()
{
    const auto& operations = CRscLibrary::Operations();
    std::for_each(operations.begin(), operations.end() - 1,
                  [this](const CRscOperation& operation) { operation.assign(*this, nullptr); });
}

void CPanoramaRscClsReader::FreeLoadedLibrary()
{
    if (hLibrary != nullptr) {
        FillFunctionsZero();
        platform::Free(hLibrary);
        hLibrary = nullptr;
    }
}

bool CPanoramaRscClsReader::Open(const QString& file)
{
    Close();
    if (hLibrary == nullptr) {
        return false;
    }
    const CFloatingPointGuard guard;
    hRsc = mapOpenRsc(file.toLocal8Bit().constData());
    opened = hRsc != nullptr;
    return opened;
}

void CPanoramaRscClsReader::Close()
{
    if (!opened) {
        return;
    }
    if (hLibrary != nullptr) {
        const CFloatingPointGuard guard;
        mapCloseRsc(hRsc);
    }
    opened = false;
    hRsc = nullptr;
}

bool CPanoramaRscClsReader::isOpen() const
{
    return opened && hLibrary != nullptr;
}

bool CPanoramaRscClsReader::OpenToDrawPreview(const QString& file)
{
    if (file.isEmpty() || hLibrary == nullptr) {
        return false;
    }
    const CFloatingPointGuard guard;
    hMap = mapCreateTempSite(file.toLocal8Bit().constData());
    return hMap != nullptr;
}

// The handle stays: the test KeepsTheHandleOfTheClosedMap holds it.
void CPanoramaRscClsReader::CloseToDrawPriview()
{
    if (hLibrary == nullptr) {
        return;
    }
    const CFloatingPointGuard guard;
    mapCloseMap(hMap);
}

HBITMAP CPanoramaRscClsReader::CreatePnrBitmap(int width, int height)
{
    if (hLibrary == nullptr) {
        return nullptr;
    }
    const CFloatingPointGuard guard;
    return mapCreateBitmapEx(width, height);
}

void CPanoramaRscClsReader::ClosePnrBitMap(HBITMAP bitmap)
{
    if (hLibrary == nullptr) {
        return;
    }
    const CFloatingPointGuard guard;
    mapCloseBitmap(bitmap);
}

bool CPanoramaRscClsReader::DrawPreview(HDC dc, int object, int width, int height)
{
    if (object == -1 || hLibrary == nullptr) {
        return false;
    }
    const CFloatingPointGuard guard;
    std::array<qint32, 4> rectangle{0, 0, width, height}; // left, top, right, bottom
    return mapPaintExampleObject(hMap, dc, rectangle.data(), object) != 0;
}

} // namespace VelorExchange::pnr
