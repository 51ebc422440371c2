/* SPDX-License-Identifier: MIT */
#pragma once

/**
 * \file
 * Eight plain functions that write a DXF drawing, for programs in C (C99) and other languages.
 *
 * The order of calls: create, init, any number of adds, rewrite, delete. Texts are UTF-16, ended by a
 * zero; a null pointer is an empty text. Everything that a structure points at stays the caller's and
 * is copied within the call. A writer belongs to one thread at a time; there is no state besides it.
 *
 * Handles and data pointers are not tested, but for that of DXF_DeleteWriter. When a file operation
 * fails, the C++ exception VelorExchange::FileError leaves the function: no function is noexcept, and
 * the caller has to be built to take it. After that only DXF_Init and DXF_DeleteWriter are allowed.
 */

#include "VelorExchange/foundation/Export.h"

#include <stdbool.h> /* NOLINT(modernize-deprecated-headers): this header is C too */

#ifdef __cplusplus
extern "C" {
#endif

typedef void* DXFWriterHandle; /**< A writer, made by DXF_CreateWriter. */
typedef unsigned short DXFChar; /**< A unit of UTF-16. */

/** A colour, each part 0 to 255. */
typedef struct DXFColor
{
    unsigned char red; /**< 0 to 255. */
    unsigned char green; /**< 0 to 255. */
    unsigned char blue; /**< 0 to 255. */
} DXFColor;

/** A vertex in drawing units. */
typedef struct DXFVertex
{
    double x; /**< To the right. */
    double y; /**< Upwards. */
    double bulge; /**< Tangent of a quarter of the arc to the next vertex; 0 for a straight line. */
} DXFVertex;

/** An inner boundary of a region. */
typedef struct DXFHole
{
    const DXFVertex* vertices; /**< Its corners; the first need not come again at the end. */
    int vertexCount; /**< Number of `vertices`. */
} DXFHole;

/** A polyline. On the layers "Dimensions" and "Notes" it takes the layer's colour, not its own. */
typedef struct DXFPolylineData
{
    const DXFChar* layer; /**< Name of the layer, made safe for a drawing. */
    const DXFVertex* vertices; /**< From start to end. */
    int vertexCount; /**< Number of `vertices`. */
    double width; /**< Constant width in drawing units. */
    DXFColor color; /**< Own colour. */
} DXFPolylineData;

/** A filled region. Its colour follows the rule of polylines. */
typedef struct DXFRegionData
{
    const DXFChar* layer; /**< Name of the layer, made safe for a drawing. */
    const DXFVertex* vertices; /**< The outer boundary. */
    int vertexCount; /**< Number of `vertices`. */
    DXFColor color; /**< Own colour. */
    const DXFHole* holes; /**< What is left out of the region. */
    int holeCount; /**< Number of `holes`. */
} DXFRegionData;

/** A text in a box. Its colour follows the rule of polylines. */
typedef struct DXFTextData
{
    const DXFChar* layer; /**< Name of the layer, made safe for a drawing. */
    double x; /**< Of the point that `alignment` names, drawing units. */
    double y; /**< Of the same point. */
    const DXFChar* text; /**< What is written. */
    double height; /**< Drawing units. */
    double angle; /**< Radians, counter-clockwise. */
    DXFColor color; /**< Own colour. */
    double width; /**< Width of the box in drawing units. */
    /** 0, 1, 2 top, 4, 5, 6 middle, 9, 10 bottom, each from left to right; any other: bottom left. */
    int alignment;
} DXFTextData;

/** A picture. */
typedef struct DXFImageData
{
    const DXFChar* layer; /**< Name of the layer, made safe for a drawing. */
    const DXFChar* name; /**< Name of the picture in the drawing. */
    const DXFChar* path; /**< Path of its file, written as it is. */
    double x; /**< Of the lower left corner, drawing units. */
    double y; /**< Of the lower left corner, drawing units. */
    int pixelWidth; /**< Pixels along the picture. */
    int pixelHeight; /**< Pixels across the picture. */
    double sizeX; /**< Width of one pixel in drawing units. */
    double sizeY; /**< Height of one pixel in drawing units. */
    double angle; /**< Radians, counter-clockwise. */
    const DXFVertex* clip; /**< Clip outline in pixels; the bulge plays no part. */
    int clipCount; /**< Number of vertices in `clip`, 0 for the whole picture. */
} DXFImageData;

/** A new writer, set to AC1018. The caller gives it back to DXF_DeleteWriter. */
VELOREXCHANGE_EXPORT DXFWriterHandle DXF_CreateWriter(void);

/** Starts a new drawing: AC1015 if newVersion is 0, otherwise AC1018. */
VELOREXCHANGE_EXPORT void DXF_Init(DXFWriterHandle writer, int newVersion);

/** Adds a polyline. Of vertices that coincide the last one stays. False without vertices. */
VELOREXCHANGE_EXPORT bool DXF_AddPolyline(DXFWriterHandle writer, const DXFPolylineData* data);

/** Adds a filled region. False if its outer boundary encloses nothing. */
VELOREXCHANGE_EXPORT bool DXF_AddRegion(DXFWriterHandle writer, const DXFRegionData* data);

/** Adds a text. False if it is empty. */
VELOREXCHANGE_EXPORT bool DXF_AddText(DXFWriterHandle writer, const DXFTextData* data);

/** Adds a picture. False without a name. */
VELOREXCHANGE_EXPORT bool DXF_AddImage(DXFWriterHandle writer, const DXFImageData* data);

/** Writes the drawing. More adds and another DXF_Rewrite can follow. */
VELOREXCHANGE_EXPORT void DXF_Rewrite(DXFWriterHandle writer, const DXFChar* fileName);

/** Destroys a writer; null is ignored. */
VELOREXCHANGE_EXPORT void DXF_DeleteWriter(DXFWriterHandle writer);

#ifdef __cplusplus
}
#endif
