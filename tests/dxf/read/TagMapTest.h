// SPDX-License-Identifier: MIT
#pragma once

#include "VelorExchange/dxf/read/TagMap_p.h"

#include "tests/support/DxfRecorder.h"
#include "tests/support/LocaleCodec.h"
#include "tests/support/PlainTags.h"

#include <QBuffer>

/// A map of groups and what is known of it as text.
namespace VelorExchange::test {

using dxf::CDXFTag;
using dxf::CDXFTagMap;
using dxf::CTagReader;

inline constexpr int kUtf8Version = 1021;

// A map over the groups of a file, given as for `Tags`, and what is known of it as text.
class CMappedObject
{
public:
    explicit CMappedObject(const QByteArray& bytes) : device(std::make_unique<QBuffer>())
    {
        device->setData(bytes);
        device->open(QIODevice::ReadOnly);
        reader = std::make_unique<CTagReader>(*device);
        reader->SetVersion(kUtf8Version);
        reader->StartObject();
        map = std::make_unique<CDXFTagMap>(*reader);
    }
    explicit CMappedObject(const char* tags) : CMappedObject(Tags(tags)) { }

    CDXFTagMap* operator->() { return map.get(); }
    CTagReader& Input() { return *reader; }

    std::string Value(int code) const { return map->Value(code).toStdString(); }
    std::string Split(int code) const { return map->Split(code).join('|').toStdString(); }

    std::string Doubles(int code) const
    {
        std::vector<double> items;
        map->SplitDoubles(code, items);
        std::string text;
        for (const double item : items) {
            text += Shortest(item) + ' ';
        }
        return text;
    }

    std::string Shown(const CDXFTag& tag) const
    {
        return std::to_string(tag.code) + ' ' + reader->Text(tag.value).toStdString();
    }

private:
    std::unique_ptr<QBuffer> device;
    std::unique_ptr<CTagReader> reader;
    std::unique_ptr<CDXFTagMap> map;
};

// The object with all its groups in the map.
inline CMappedObject Gathered(const char* tags)
{
    CMappedObject object(tags);
    object->ReadObject();
    return object;
}

inline CMappedObject Chained(const char* tags, CDXFTagMap::CChain chain = {10, 20, 30, 42})
{
    CMappedObject object(tags);
    object->ReadObject(chain);
    return object;
}

} // namespace VelorExchange::test
