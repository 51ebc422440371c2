// SPDX-License-Identifier: MIT
#include "tools/velorx/formats/MifRows.h"

#include <QRegularExpression>
#include <QStringList>

namespace velorx {

namespace {

struct SClause
{
    const char* word;
    const char* separators;
    int leastTokens;
};

constexpr char kBlanks[] = "[\t ]";
constexpr SClause kPen = {"Pen", "[(),]", 4};
constexpr SClause kBrush = {"Brush", "[(),]", 3};
constexpr SClause kCenter = {"Center", kBlanks, 3};
constexpr SClause kSmooth = {"smooth", kBlanks, 0};
constexpr SClause kSymbol = {"Symbol", "[()]", 2};

bool Contains(const QString& line, const char* word)
{
    return line.contains(QLatin1String(word), Qt::CaseInsensitive);
}

QStringList Split(const QString& line, const char* separators)
{
    return line.split(QRegularExpression(QLatin1String(separators)), Qt::SkipEmptyParts);
}

// Whether the clauses behind an object can be read. `clauses` end at null.
bool AreClausesSound(CMifLines& lines, const SClause* const* clauses, bool isLoop)
{
    QString line;
    for (bool goesOn = true; goesOn && lines.Next(line); goesOn = goesOn && isLoop) {
        const SClause* const* clause = clauses;
        while (*clause != nullptr && !Contains(line, (*clause)->word)) {
            ++clause;
        }
        goesOn = *clause != nullptr;
        if (goesOn && Split(line, (*clause)->separators).size() < (*clause)->leastTokens) {
            return false;
        }
    }
    return true;
}

bool AreVerticesSound(CMifLines& lines, int count)
{
    QString line;
    for (int i = 0; i < count; ++i) {
        if (!lines.Next(line) || Split(line, kBlanks).size() < 2) {
            return false;
        }
    }
    return true;
}

// A region that has only rings of up to two vertices.
bool IsBareRegion(CMifLines& lines, const QString& first)
{
    constexpr int kMostDropped = 2;
    static constexpr const SClause* kClauses[] = {&kPen, &kBrush, &kCenter, nullptr};
    const QStringList tokens = Split(first, kBlanks);
    if (tokens.size() < 2) {
        return false;
    }
    const int rings = tokens[1].toInt();
    QString line;
    for (int i = 0; i < rings; ++i) {
        if (!lines.Next(line) || line.toInt() > kMostDropped
            || !AreVerticesSound(lines, line.toInt())) {
            return false;
        }
    }
    return AreClausesSound(lines, kClauses, true);
}

// A multipoint of no points.
bool IsBareMultipoint(CMifLines& lines, const QString& first)
{
    static constexpr const SClause* kClauses[] = {&kSymbol, nullptr};
    const QStringList tokens = Split(first, kBlanks);
    return tokens.size() >= 2 && tokens[1].toInt() == 0 && AreClausesSound(lines, kClauses, false);
}

// A polyline of no sections.
bool IsBarePLine(CMifLines& lines, const QString& first)
{
    static constexpr const SClause* kClauses[] = {&kPen, &kSmooth, nullptr};
    const QStringList tokens = Split(first, kBlanks);
    return tokens.size() == 3 && Contains(first, "Multiple") && tokens[2].toInt() == 0
        && AreClausesSound(lines, kClauses, true);
}

struct SKeyword
{
    const char* word;
    bool (*isBare)(CMifLines& lines,
                   const QString& first); ///< Null where there are always records.
};

// In the order in which the library looks for them.
constexpr SKeyword kKeywords[] = {
    {"Region", IsBareRegion}, {"Text", nullptr},      {"Multipoint", IsBareMultipoint},
    {"Point", nullptr},       {"PLine", IsBarePLine}, {"Line", nullptr},
    {"Arc", nullptr},         {"RoundRect", nullptr}, {"Rect", nullptr},
    {"Ellipse", nullptr}};

const SKeyword* FindKeyword(const QString& line)
{
    for (const SKeyword& keyword : kKeywords) {
        if (Contains(line, keyword.word)) {
            return &keyword;
        }
    }
    return nullptr;
}

quint32 PartsOf(const QString& collection)
{
    constexpr int kUsualParts = 3;
    const QStringList tokens = Split(collection, kBlanks);
    return static_cast<quint32>(tokens.size() == 2 ? tokens[1].toInt() : kUsualParts);
}

// The rows of a file, without keeping any.
std::optional<qint64> CountRows(const QString& path)
{
    constexpr qint64 kBlock = 64 * 1024;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        return std::nullopt;
    }
    qint64 rows = 0;
    char last = '\n';
    for (QByteArray block = file.read(kBlock); !block.isEmpty(); block = file.read(kBlock)) {
        rows += block.count('\n');
        last = block.back();
    }
    return last == '\n' ? rows : rows + 1;
}

} // namespace

CMifRows::CMifRows(const QString& table, const QString& rows) : lines(table), total(CountRows(rows))
{
}

void CMifRows::Report(quint32 low)
{
    const qint64 next = position + static_cast<quint32>(low - static_cast<quint32>(position));
    if (isStarted) {
        EndObject(next);
    }
    isStarted = true;
    hasRecord = false;
    before = position;
    position = next;
}

bool CMifRows::Deliver()
{
    const bool isFirst = !hasRecord;
    hasRecord = true;
    return isFirst;
}

std::optional<qint64> CMifRows::Left() const
{
    return total ? std::optional<qint64>(*total - taken) : std::nullopt;
}

void CMifRows::EndObject(qint64 end)
{
    if (hasRecord) {
        TakeRow();
        return;
    }
    const QString line = lines.EndingAt(before, position);
    const SKeyword* keyword = FindKeyword(line);
    lines.Seek(position, end);
    if (keyword != nullptr) {
        if (keyword->isBare != nullptr && keyword->isBare(lines, line)) {
            TakeRow();
        }
    } else if (Contains(line, "Collection")) {
        TakeRow();
        repeats = PartsOf(line);
    }
}

// Goes to the next row, if there is one and the row at hand isn't shared.
void CMifRows::TakeRow()
{
    const bool isShared = repeats != 0;
    repeats -= isShared ? 1 : 0;
    if (taken == total.value_or(0)) {
        hasRow = hasRow && isShared;
    } else if (!isShared || !hasRow) {
        hasRow = true;
        ++taken;
    }
}

} // namespace velorx
