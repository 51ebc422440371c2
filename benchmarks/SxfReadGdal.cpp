// SPDX-License-Identifier: MIT
// Reads a map through GDAL, with a look at every geometry.
#include <gdal.h>
#include <ogr_api.h>

#include <cstdio>

int main(int argc, char** argv)
{
    if (argc < 2) {
        return 2;
    }
    GDALAllRegister();
    GDALDatasetH data =
        GDALOpenEx(argv[1], GDAL_OF_VECTOR | GDAL_OF_READONLY, nullptr, nullptr, nullptr);
    if (data == nullptr) {
        return 1;
    }
    long objects = 0;
    double sum = 0;
    for (int i = 0; i < GDALDatasetGetLayerCount(data); ++i) {
        OGRLayerH layer = GDALDatasetGetLayer(data, i);
        while (OGRFeatureH feature = OGR_L_GetNextFeature(layer)) {
            OGRGeometryH geometry = OGR_F_GetGeometryRef(feature);
            if (geometry != nullptr) {
                OGREnvelope box;
                OGR_G_GetEnvelope(geometry, &box);
                sum += box.MinX;
            }
            ++objects;
            OGR_F_Destroy(feature);
        }
    }
    GDALClose(data);
    std::printf("%ld features, sum %.3f\n", objects, sum);
    return 0;
}
