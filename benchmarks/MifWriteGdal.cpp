// SPDX-License-Identifier: MIT
// mif_write_gdal FOLDER COUNT: writes generated objects through GDAL into one pair.
#include "MifSurvey.h"

#include <cpl_string.h>
#include <gdal.h>
#include <ogr_api.h>

#include <cstdlib>

namespace {

OGRGeometryH Line(OGRwkbGeometryType type, const std::vector<double>& c)
{
    OGRGeometryH line = OGR_G_CreateGeometry(type);
    for (std::size_t i = 0; i < c.size(); i += 2) {
        OGR_G_AddPoint_2D(line, c[i], c[i + 1]);
    }
    return line;
}

OGRGeometryH Geometry(const bench::CMifObject& object)
{
    if (object.kind == bench::EMifKind::Parcel) {
        OGRGeometryH area = OGR_G_CreateGeometry(wkbPolygon);
        OGR_G_AddGeometryDirectly(area, Line(wkbLinearRing, object.coordinates));
        return area;
    }
    if (object.kind == bench::EMifKind::Contour) {
        return Line(wkbLineString, object.coordinates);
    }
    OGRGeometryH point = OGR_G_CreateGeometry(wkbPoint);
    OGR_G_SetPoint_2D(point, 0, object.coordinates[0], object.coordinates[1]);
    return point;
}

void AddField(OGRLayerH layer, const char* name, OGRFieldType type, int width, int precision)
{
    OGRFieldDefnH field = OGR_Fld_Create(name, type);
    OGR_Fld_SetWidth(field, width);
    OGR_Fld_SetPrecision(field, precision);
    OGR_L_CreateField(layer, field, 1);
    OGR_Fld_Destroy(field);
}

const char* Style(const bench::CMifObject& object)
{
    if (object.kind == bench::EMifKind::Height) {
        return "SYMBOL(id:\"mapinfo-sym-35\")";
    }
    return object.kind == bench::EMifKind::Note ? "LABEL(f:\"Arial\",t:\"plot\",s:4g)" : nullptr;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 3) {
        return 2;
    }
    GDALAllRegister();
    char** options = CSLSetNameValue(nullptr, "FORMAT", "MIF");
    GDALDatasetH data =
        GDALCreate(GDALGetDriverByName("MapInfo File"),
                   (std::string(argv[1]) + "/survey.mif").c_str(), 0, 0, 0, GDT_Unknown, options);
    CSLDestroy(options);
    options = CSLSetNameValue(nullptr, "BOUNDS", "0,0,1000000,10000000");
    OGRLayerH layer = GDALDatasetCreateLayer(data, "survey", nullptr, wkbUnknown, options);
    CSLDestroy(options);
    AddField(layer, "number", OFTInteger, 0, 0);
    AddField(layer, "name", OFTString, 80, 0);
    AddField(layer, "use", OFTString, 40, 0);
    AddField(layer, "area", OFTReal, 20, 5);
    AddField(layer, "height", OFTReal, 0, 0);
    bench::CMifSurvey survey;
    for (long i = std::atol(argv[2]); i > 0; --i) {
        const bench::CMifObject& object = survey.Next();
        OGRFeatureH feature = OGR_F_Create(OGR_L_GetLayerDefn(layer));
        OGR_F_SetFieldInteger(feature, 0, object.number);
        OGR_F_SetFieldString(feature, 1, object.name.c_str());
        OGR_F_SetFieldString(feature, 2, object.use.c_str());
        OGR_F_SetFieldDouble(feature, 3, object.area);
        OGR_F_SetFieldDouble(feature, 4, static_cast<double>(object.height));
        OGR_F_SetGeometryDirectly(feature, Geometry(object));
        if (const char* const style = Style(object)) {
            OGR_F_SetStyleString(feature, style);
        }
        if (OGR_L_CreateFeature(layer, feature) != OGRERR_NONE) {
            return 1;
        }
        OGR_F_Destroy(feature);
    }
    GDALClose(data);
    return 0;
}
