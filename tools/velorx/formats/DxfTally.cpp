// SPDX-License-Identifier: MIT
#include "tools/velorx/formats/DxfTally.h"

#include <QStringList>

namespace velorx {

namespace {

constexpr std::size_t kMostKinds = 1000;
constexpr char kOtherKinds[] = "others";

constexpr const char* kLossTexts[] = {
    "elements of paper space, left out",
    "elements of layout blocks, left out",
    "images of blocks, standing in the drawing once and in the block's coordinates",
    "attribute definitions, left out",
    "inserts in rows and columns, written once each",
    "elements of blocks without a name, left out",
    "blocks defined once more under the same name, left out",
    "blocks that are inserted but not defined, written empty",
    "blocks that refer to other files, written without the reference",
    "base points of blocks, made up for in the points of their inserts",
    "elements of blocks moved to layer 0 of their block",
    "elements of blocks on hidden layers, which show in the result",
    "elements marked as invisible, which show in the result",
    "elements drawn on a plane seen from behind, mirrored in part",
    "elements with the colour \"by layer\" written out, black in the result",
    "elements with a true colour but no colour number, in the layer's colour",
    "layers with a colour, which their elements carry instead",
    "layers with a line type, which their elements carry instead",
    "line types with letters or shapes, written with their dashes alone",
    "elements with a line type scale, at scale 1 in the result",
    "line types of points, faces and polylines in space, dropped",
    "line weights by block, dropped",
    "elements with a thickness, flat in the result",
    "heights of lines without ends and of hatches, dropped",
    "circles, written as whole arcs",
    "ellipses, written as splines of third degree",
    "rays, written as lines without ends",
    "solids, written as hatches",
    "polylines of the old form in the plan, written in the new one",
    "polylines in the plan whose heights change, written as polylines in space",
    "meshes, written as polylines through their vertices",
    "closed polylines of two vertices, open in the result",
    "polylines whose width changes, in one width",
    "splines of another degree than the third, written in the third",
    "splines of fit points alone, written as curves through them",
    "splines with weights, which are dropped",
    "faces with hidden edges, which show in the result",
    "colours of multilines, dropped",
    "multilines whose scale differs from the first of their style, at that scale",
    "multilines drawn to one side of their axis, drawn on both",
    "multilines whose style is not in the drawing, drawn as two lines",
    "hatches with a pattern, filled with plain lines under its name",
    "curved edges of hatches, written in chords",
    "boundaries of hatches that enclose nothing, left out",
    "inserts with a line type, dropped",
    "inserts with a factor along Z, dropped",
    "texts set by their middle or right end, set by the left one at the same place",
    "texts set by their top, middle or bottom, set by their base line",
    "texts turned by an angle that is not read, level in the result",
    "long texts with a semicolon between their pieces",
    "texts with runs of blanks, which become one",
    "texts of more than 255 letters, cut",
    "texts with letters that have no place in the file, \"?\" in the result",
    "names changed, so that programs take them",
    "text styles with a height, width, slant or font of the system, dropped",
    "text styles whose font gives way to the drawing's own",
    "images, written without brightness, contrast and size in pixels",
    "elements with extended data, dropped",
    "texts without a letter, left out",
    "elements refused: nothing to draw, or a number that is none",
};

static_assert(sizeof kLossTexts / sizeof *kLossTexts == static_cast<std::size_t>(EDxfLoss::kCount));

} // namespace

const char* LossText(EDxfLoss loss)
{
    return kLossTexts[static_cast<std::size_t>(loss)];
}

void CDxfTally::Unread(const std::string& kind)
{
    const bool hasPlace = unread.size() < kMostKinds || unread.count(kind) != 0;
    ++unread[hasPlace ? kind : kOtherKinds];
}

void CDxfTally::FillReport(CConversionReport& report) const
{
    for (std::size_t i = 0; i < kDxfKinds; ++i) {
        if (inDrawing[i] + inBlocks[i] == 0) {
            continue;
        }
        QStringList names;
        for (const auto& entry : writtenAs[i]) {
            names.append(QString::fromStdString(entry.first));
        }
        report.kinds.push_back({QLatin1String(EntityName(i)), names.join(QStringLiteral(", ")),
                                inDrawing[i], inBlocks[i], written[i]});
    }
    for (const auto& [kind, count] : unread) {
        report.losses.push_back(
            {QString::fromUtf8(kind.c_str()) + QStringLiteral(", not read: left out"), count, {}});
    }
    for (std::size_t i = 0; i < losses.size(); ++i) {
        if (losses[i] != 0) {
            report.losses.push_back({QLatin1String(kLossTexts[i]), losses[i], {}});
        }
    }
}

} // namespace velorx
