// SPDX-License-Identifier: MIT
#include "tools/velorx/formats/SxfCodec.h"
#include "tools/velorx/formats/SxfCodes.h"
#include "tools/velorx/formats/SxfDetails.h"

#include <QByteArray>
#include <QFile>
#include <QList>

#include <algorithm>
#include <array>
#include <utility>

namespace velorx {

using namespace VelorExchange::pnr;

namespace {

constexpr std::pair<const char*, int> kAlignWords[] = {
    {"RIGHT", 1}, {"CENTER", 2}, {"MIDDLE", 3}, {"BOTTOM", 6}, {"TOP", 9}};
constexpr int kRowBits = 32;

constexpr std::pair<const char*, qint32 PnrPointImage::*> kMarkFields[] = {
    {"SIZE", &PnrPointImage::size},
    {"POSV", &PnrPointImage::posV},
    {"POSH", &PnrPointImage::posH},
    {"COLOR", &PnrPointImage::color},
};

// Whatever the case of its letters.
bool Contains(const QByteArray& line, const char* word)
{
    for (int at = line.indexOf('.'); at >= 0; at = line.indexOf('.', at + 1)) {
        if (qstrnicmp(line.constData() + at, word, qstrlen(word)) == 0) {
            return true;
        }
    }
    return false;
}

// The library reads such files by the encoding that the mark tells.
bool HasByteOrderMark(QFile& file)
{
    const QByteArray start = file.peek(3);
    return start.startsWith("\xEF\xBB\xBF") || start.startsWith("\xFF\xFE")
        || start.startsWith("\xFE\xFF");
}

QList<QByteArray> Words(const QByteArray& line)
{
    return line.simplified().split(' ');
}

// What stands behind the bracket, without the end of the line.
QByteArray PartOf(const QByteArray& line)
{
    const int end = line.endsWith("\r\n") ? 2 : line.endsWith('\n') ? 1 : 0;
    return line.mid(1, line.size() - 1 - end);
}

qint16 AlignOf(const QList<QByteArray>& words)
{
    int align = kFirstSxfAlign;
    for (const auto& [word, value] : kAlignWords) {
        align += words.contains(word) ? value : 0;
    }
    return static_cast<qint16>(align);
}

/// The lines of a point's own drawing, one after the other.
class CMarkReader
{
public:
    void Take(const QList<QByteArray>& words)
    {
        for (const auto& [word, field] : kMarkFields) {
            if (words.size() > 1 && words.first() == word) {
                mark.*field = words.at(1).toInt();
            }
        }
        if (words.size() == kRowBits && row < kRowBits) {
            TakeRow(words);
        }
    }

    PnrPointImage mark;

private:
    void TakeRow(const QList<QByteArray>& words)
    {
        constexpr int kByteBits = 8;
        constexpr int kRowBytes = kRowBits / kByteBits;
        for (int i = 0; i < kRowBytes; ++i) {
            unsigned bits = 0;
            for (int bit = 0; bit < kByteBits; ++bit) {
                bits = bits * 2 + (words.at(i * kByteBits + bit) == "1" ? 1U : 0U);
            }
            mark.bits[static_cast<std::size_t>(row * kRowBytes + i)] = static_cast<quint8>(bits);
        }
        ++row;
    }

    int row = 0;
};

class CSxfTextDetails final : public ISxfDetails
{
public:
    explicit CSxfTextDetails(const QString& path) : file(path)
    {
        if (file.open(QIODevice::ReadOnly) && !HasByteOrderMark(file)) {
            while (NextLine() && !Contains(line, ".DAT")) {
            }
            while (NextLine() && !Contains(line, ".OBJ")) {
            }
        }
    }

    SSxfDetails Next() override
    {
        SSxfDetails details;
        if (!hasLine) {
            return details;
        }
        const QList<QByteArray> head = Words(line);
        details.code = head.size() > 1 ? head.at(1).toInt() : 0;
        CMarkReader mark;
        bool isInMark = false;
        while (NextLine() && !Contains(line, ".OBJ") && !Contains(line, ".END")) {
            if (line.startsWith('>')) {
                details.parts.append(SxfCodec().toUnicode(PartOf(line)));
            } else if (line.startsWith(".ALG")) {
                details.aligns.push_back(AlignOf(Words(line)));
            } else if (line.startsWith("_MARK")) {
                isInMark = true;
            } else if (isInMark) {
                mark.Take(Words(line));
            }
        }
        if (isInMark) {
            details.mark = mark.mark;
        }
        while (hasLine && !Contains(line, ".OBJ")) {
            NextLine();
        }
        return details;
    }

private:
    bool NextLine()
    {
        hasLine = !file.atEnd();
        line = file.readLine();
        return hasLine;
    }

    QFile file;
    QByteArray line;
    bool hasLine = false;
};

} // namespace

std::unique_ptr<ISxfDetails> MakeSxfTextDetails(const QString& path)
{
    return std::make_unique<CSxfTextDetails>(path);
}

} // namespace velorx
