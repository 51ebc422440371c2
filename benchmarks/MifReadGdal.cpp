// SPDX-License-Identifier: MIT
// mif_read_gdal PATH: reads a pair through GDAL, with a look at each geometry and two fields.
#include <gdal.h>
#include <ogr_api.h>

#include <cstdio>
#include <string>

int main(int argc, char** argv)
{
    if (argc < 2) {
        return 2;
    }
    GDALAllRegister();
    GDALDatasetH data = GDALOpenEx((std::string(argv[1]) + ".mif").c_str(),
                                   GDAL_OF_VECTOR | GDAL_OF_READONLY, nullptr, nullptr, nullptr);
    if (data == nullptr) {
        return 1;
    }
    long objects = 0;
    double sum = 0;
    OGRLayerH layer = GDALDatasetGetLayer(data, 0);
    while (OGRFeatureH feature = OGR_L_GetNextFeature(layer)) {
        OGRGeometryH geometry = OGR_F_GetGeometryRef(feature);
        if (geometry != nullptr) {
            OGREnvelope box;
            OGR_G_GetEnvelope(geometry, &box);
            sum += box.MinX;
        }
        sum += OGR_F_GetFieldAsInteger(feature, 0) + OGR_F_GetFieldAsDouble(feature, 3);
        ++objects;
        OGR_F_Destroy(feature);
    }
    GDALClose(data);
    std::printf("%ld features, sum %.3f\n", objects, sum);
    return 0;
}
