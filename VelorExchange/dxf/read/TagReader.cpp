// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/read/TagReader_p.h"

#include <QTextCodec>

#include <algorithm>

namespace VelorExchange::dxf {

namespace {

constexpr int kVersionOfIbm866 = 1006;
constexpr int kFirstVersionOfUtf8 = 1019;

char Lower(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
}

// The codec that a version has of its own, or null for the local one.
QTextCodec* CodecOf(int version)
{
    if (version == kVersionOfIbm866) {
        return QTextCodec::codecForName("IBM866"); // null where Qt lacks it
    }
    return version < kFirstVersionOfUtf8 ? nullptr : QTextCodec::codecForName("UTF-8");
}

} // namespace

bool detail::IsAscii(std::string_view bytes)
{
    return std::all_of(bytes.begin(), bytes.end(),
                       [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

CTagReader::CTagReader(QIODevice& device)
    : lines(device), local(CTextDecoder::Local()), decoder(&local)
{
}

void CTagReader::SetVersion(int drawingVersion)
{
    if (version == drawingVersion) {
        return;
    }
    version = drawingVersion;
    QTextCodec* const codec = CodecOf(version);
    fixed = codec != nullptr ? std::make_unique<CTextDecoder>(codec) : nullptr;
    decoder = fixed ? fixed.get() : &local;
    ++decoderRound;
}

// The host may change the codec of the process in a callback, so it is looked at for each object.
void CTagReader::StartObject()
{
    lines.Keep();
    recoded.clear();
    if (!fixed && local.Codec() != QTextCodec::codecForLocale()) {
        local = CTextDecoder::Local();
        ++decoderRound;
    }
}

// Beyond ASCII there are other blanks, and bytes can lean on their neighbours.
CTextSpan CTagReader::TakeUncommonText(const CRawLine& line)
{
    const char* begin = line.begin;
    const char* end = line.end;
    if (!decoder->Trim(begin, end)) {
        return Recode(line);
    }
    return MakeSpan(begin - lines.Base(), CTextSpan::Buffer, end - begin);
}

CTextSpan CTagReader::TakeAnyText()
{
    return TakeUncommonText(lines.NextLine());
}

CTextSpan CTagReader::Recode(const CRawLine& line)
{
    const QByteArray text =
        decoder->Recode(line.begin, static_cast<std::size_t>(line.end - line.begin));
    const int offset = recoded.size();
    recoded += text;
    return MakeSpan(offset, CTextSpan::Recoded, text.size());
}

// A code that is not a plain number at first sight can still be one with blanks of another kind.
int CTagReader::TakeOtherCode()
{
    constexpr std::size_t kMostDigits = 4;
    const std::string_view text = Bytes(TakeAnyText());
    if (text.empty()) {
        return CDXFTag::kNoCode;
    }
    const bool isNumber = text.size() <= kMostDigits && (text.size() == 1 || text[0] != '0')
        && std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
    int code = CDXFTag::kOtherCode;
    if (!isNumber || !ParsePlainInt(text.data(), text.size(), code)) {
        otherCode = QByteArray(text.data(), static_cast<int>(text.size()));
    }
    return code;
}

QString CTagReader::Text(const CTextSpan& span) const
{
    const std::string_view bytes = Bytes(span);
    return span.source == CTextSpan::Recoded
        ? CTextDecoder::DecodeRecoded(bytes.data(), bytes.size())
        : decoder->Decode(bytes.data(), bytes.size());
}

double CTagReader::ToUncommonDouble(const CTextSpan& span) const
{
    return Text(span).toDouble();
}

int CTagReader::ToInt(const CTextSpan& span) const
{
    const std::string_view bytes = Bytes(span);
    int value = 0;
    return ParsePlainInt(bytes.data(), bytes.size(), value) ? value : Text(span).toInt();
}

bool CTagReader::Is(const CDXFTag& tag, int code, std::string_view name) const
{
    return tag.code == code && SameText(tag.value, name);
}

// Letters beyond ASCII can be equal to ASCII ones without regard to case (U+017F and s), so they are
// left to Qt.
bool CTagReader::SameText(const CTextSpan& span, std::string_view name) const
{
    const std::string_view bytes = Bytes(span);
    if (bytes == name) {
        return true;
    }
    if (!detail::IsAscii(bytes)) {
        const QLatin1String other(name.data(), static_cast<int>(name.size()));
        return Text(span).compare(other, Qt::CaseInsensitive) == 0;
    }
    return bytes.size() == name.size()
        && std::equal(bytes.begin(), bytes.end(), name.begin(),
                      [](char a, char b) { return Lower(a) == Lower(b); });
}

bool CTagReader::LongCodeContains(int longCode, int code) const
{
    const QByteArray text =
        longCode == CDXFTag::kOtherCode ? otherCode : QByteArray::number(longCode);
    return text.contains(QByteArray::number(code));
}

} // namespace VelorExchange::dxf
