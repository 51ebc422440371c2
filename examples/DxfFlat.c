/* SPDX-License-Identifier: MIT */
/*
 * Writes a small drawing through the eight plain functions: a polyline, a region with a hole, a text
 * and a picture. Shows how a C99 program hands over UTF-16 texts and plain structures.
 *
 * Usage: DxfFlat OUT.dxf [1015]
 *
 * C++ programs have more elements at hand: see DxfFromScratch.cpp.
 */
#include "VelorExchange/DXFFlat.h"

#include <stdio.h>
#include <stdlib.h>
#include <string.h>

/* ASCII to UTF-16; the caller frees the result. */
static DXFChar* Wide(const char* text)
{
    const size_t length = strlen(text);
    DXFChar* wide = malloc((length + 1) * sizeof *wide);
    if (wide == NULL) {
        abort();
    }
    for (size_t i = 0; i <= length; ++i) {
        wide[i] = (unsigned char)text[i];
    }
    return wide;
}

static bool AddAll(DXFWriterHandle writer)
{
    /* "Дом", the house, in UTF-16. */
    static const DXFChar house[] = {0x0414, 0x043E, 0x043C, 0};
    static const DXFVertex outline[] = {{0, 0, 0}, {20, 0, 0}, {20, 10, 0}, {0, 10, 0}, {0, 0, 0}};
    static const DXFVertex yard[] = {{5, 2, 1}, {15, 2, 1}};
    const DXFHole hole = {yard, 2};
    DXFChar* name = Wide("plan");
    DXFChar* path = Wide("plan.png");

    const DXFPolylineData polyline = {
        .layer = house, .vertices = outline, .vertexCount = 5, .width = 0.25, .color = {255, 0, 0}};
    const DXFRegionData region = {.layer = house,
                                  .vertices = outline,
                                  .vertexCount = 5,
                                  .color = {200, 200, 200},
                                  .holes = &hole,
                                  .holeCount = 1};
    const DXFTextData text = {.layer = house,
                              .x = 1,
                              .y = 11,
                              .text = house,
                              .height = 2,
                              .color = {0, 0, 0},
                              .width = 18,
                              .alignment = 0};
    const DXFImageData image = {.layer = house,
                                .name = name,
                                .path = path,
                                .x = 30,
                                .y = 0,
                                .pixelWidth = 640,
                                .pixelHeight = 480,
                                .sizeX = 0.05,
                                .sizeY = 0.05};

    const bool done = DXF_AddPolyline(writer, &polyline) && DXF_AddRegion(writer, &region)
        && DXF_AddText(writer, &text) && DXF_AddImage(writer, &image);
    free(path);
    free(name);
    return done;
}

int main(int argc, char** argv)
{
    if (argc < 2) {
        fprintf(stderr, "usage: %s OUT.dxf [1015]\n", argv[0]);
        return 2;
    }
    DXFWriterHandle writer = DXF_CreateWriter();
    if (argc > 2 && strcmp(argv[2], "1015") == 0) {
        DXF_Init(writer, 0);
    }
    const bool done = AddAll(writer);
    if (done) {
        DXFChar* fileName = Wide(argv[1]);
        DXF_Rewrite(writer, fileName);
        free(fileName);
    }
    DXF_DeleteWriter(writer);
    return done ? 0 : 1;
}
